#pragma once

#include <cstdint>

namespace brivane::host {

/// A colour: 0x00BBGGRR, or a system colour with the highest bit set (a signed 32-bit number).
struct Color {
  std::int32_t value = 0;  ///< red in the lowest byte, then green, then blue
  friend constexpr bool operator==(Color, Color) = default;
};

/// The system colour of button faces, 0x8000000F; surfaces, forms and most controls start with it.
inline constexpr Color kButtonFace{-2147483633};
/// The system colour of window backgrounds, 0x80000005; boxes and lists start with it.
inline constexpr Color kWindowBackground{-2147483643};

}  // namespace brivane::host
