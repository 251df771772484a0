#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace brivane::bench {

/// How long something took, each time, in microseconds.
using Times = std::vector<std::int64_t>;

/// Within so many milliseconds it was done in that part of the times: 0.5 is the median.
[[nodiscard]] inline double Within(Times times, double part) {
  if (times.empty()) return 0;
  std::sort(times.begin(), times.end());
  return static_cast<double>(times[static_cast<std::size_t>(part * static_cast<double>(times.size() - 1))]) / 1000;
}

}  // namespace brivane::bench
