#pragma once

#include "component/idl/Windows.h"

#include <brivane/host/Twips.h>

/// Containers measure in himetric (0.01 mm) and in pixels, the controls in twips (1/1440 inch).
namespace brivane::component {

struct Extent {
  host::Twips width;
  host::Twips height;

  friend constexpr bool operator==(const Extent&, const Extent&) = default;
};

/// To the nearest hundredth of a millimetre. A himetric length below 100,000 (a metre) survives the way to twips
/// and back.
[[nodiscard]] LONG HimetricOf(host::Twips length);
[[nodiscard]] host::Twips TwipsOfHimetric(LONG length);

/// To the nearest pixel, at so many dots per inch.
[[nodiscard]] int PixelsOf(host::Twips length, int dpi);
[[nodiscard]] host::Twips TwipsOfPixels(int pixels, int dpi);

/// Dots per inch of the screen.
[[nodiscard]] int ScreenDpi();

[[nodiscard]] inline int WidthOf(const RECT& rect) { return rect.right - rect.left; }
[[nodiscard]] inline int HeightOf(const RECT& rect) { return rect.bottom - rect.top; }
[[nodiscard]] SIZE SizeOfWindow(HWND window);

}  // namespace brivane::component
