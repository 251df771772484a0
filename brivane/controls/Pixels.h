#pragma once

#include <cmath>

#include <brivane/host/Twips.h>

namespace brivane::controls {

/// In double precision: what draws scales pixels, not twips.
inline constexpr double kTwipsPerPixel = host::kTwipsPerPixel;

/// A place in whole pixels.
struct PixelPlace {
  int left = 0;    ///< from the container's left edge
  int top = 0;     ///< from its top edge
  int width = 0;   ///< outside
  int height = 0;  ///< outside
  friend bool operator==(const PixelPlace&, const PixelPlace&) = default;
};

/// A length in whole pixels, halves away from zero; a scale of 1 has 15 twips to a pixel.
[[nodiscard]] inline int Pixel(float twips, double scale) {
  return static_cast<int>(std::lround(double{twips} / kTwipsPerPixel * scale));
}

/// Edges are rounded, so that controls that touch in twips touch in pixels.
[[nodiscard]] inline PixelPlace Pixels(const host::Place& place, double scale) {
  const int left = Pixel(place.left.value, scale);
  const int top = Pixel(place.top.value, scale);
  return {left, top, Pixel(place.Right().value, scale) - left, Pixel(place.Bottom().value, scale) - top};
}

}  // namespace brivane::controls
