#pragma once

/// The door for tests, as the interface definition makes it.

#include "Proefdeur_idl.h"
#include "component/automation/Dispatching.h"

namespace brivane::component {

template <> inline constexpr module::Library kLibraryOf<IProefdeur> = module::Library::Door;

}  // namespace brivane::component
