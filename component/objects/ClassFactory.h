#pragma once

#include "component/objects/LibraryClasses.h"

namespace brivane::component {

/// The factory of a class, counted.
[[nodiscard]] IClassFactory* NewClassFactory(const LibraryClass& entry);

}  // namespace brivane::component
