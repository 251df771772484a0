#pragma once

#include "component/objects/Companion.h"

namespace brivane::component {

/// Companions that give every object, and every class, a door for tests.
[[nodiscard]] Companions& DoorCompanions();

}  // namespace brivane::component
