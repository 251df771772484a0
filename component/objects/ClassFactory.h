#pragma once

#include "component/objects/Klassen.h"

namespace brivane::component {

/// The factory of a class, counted.
[[nodiscard]] IClassFactory* NewClassFactory(const Klasse& klasse);

}  // namespace brivane::component
