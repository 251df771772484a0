#pragma once

#include <cmath>

#include <brivane/host/Twips.h>

namespace brivane::controls {

/// In double precision: what draws scales pixels, not twips.
inline constexpr double kTwipsPerPixel = host::kTwipsPerPixel;

/// A place in whole pixels.
struct PixelPlace {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  friend bool operator==(const PixelPlace&, const PixelPlace&) = default;
};

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
