#pragma once

#include <cstddef>

namespace brivane::component::test {

/// What this process has in use.
struct Counts {
  std::size_t gdi = 0;      ///< drawing objects
  std::size_t windows = 0;  ///< also hidden ones and those for messages alone
  std::size_t bytes = 0;    ///< taken from the heaps
};

[[nodiscard]] Counts CountNow();

}  // namespace brivane::component::test
