#pragma once

/// The door for tests, as the interface definition makes it.

#include "TestDoor_idl.h"
#include "component/automation/Dispatching.h"

namespace brivane::component {

template <> inline constexpr int kTypeLibraryOf<ITestDoor> = 2;

}  // namespace brivane::component
