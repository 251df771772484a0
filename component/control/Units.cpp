#include "component/control/Units.h"

#include <cmath>

#include <brivane/toolkits/win32/window/Owned.h>

namespace brivane::component {

namespace {

// 2540 himetric and 1440 twips make an inch.
constexpr double kHimetricPerTwip = 127.0 / 72.0;
constexpr double kTwipsPerInch = 1440.0;

}  // namespace

LONG HimetricOf(host::Twips length) { return std::lround(static_cast<double>(length.value) * kHimetricPerTwip); }

host::Twips TwipsOfHimetric(LONG length) { return {static_cast<float>(length / kHimetricPerTwip)}; }

int PixelsOf(host::Twips length, int dpi) {
  return static_cast<int>(std::lround(static_cast<double>(length.value) * dpi / kTwipsPerInch));
}

host::Twips TwipsOfPixels(int pixels, int dpi) { return {static_cast<float>(pixels * kTwipsPerInch / dpi)}; }

int ScreenDpi() { return ::GetDeviceCaps(win32::WindowContext().Get(), LOGPIXELSX); }

SIZE SizeOfWindow(HWND window) {
  RECT rect{};
  ::GetWindowRect(window, &rect);
  return {WidthOf(rect), HeightOf(rect)};
}

}  // namespace brivane::component
