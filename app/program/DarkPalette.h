#pragma once

#include <QPalette>

namespace brivane::app {

/// A dark palette for pictures; a person's palette is the system's.
[[nodiscard]] QPalette DarkPalette();

}  // namespace brivane::app
