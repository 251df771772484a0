#pragma once

/// The door for tests, as the interface definition makes it.

#include "component/automation/Dispatching.h"

#include "Proefdeur_idl.h"

namespace brivane::component {

template <> inline constexpr module::Library kLibraryOf<IProefdeur> = module::Library::Door;

}  // namespace brivane::component
