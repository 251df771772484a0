#pragma once

#include "component/idl/Windows.h"

#include <brivane/host/Color.h>

namespace brivane::component {

/// A colour of the screen for a colour that may be a system colour.
[[nodiscard]] COLORREF ScreenColor(host::Color color);

/// Draws a window with everything on it as it looks on the screen, also where it is not on the screen, stretched over
/// `bounds`. Its windows draw themselves on WM_ERASEBKGND and WM_PRINTCLIENT, and on WM_PRINT what stands in their
/// edge.
HRESULT PaintWindow(HWND window, COLORREF background, HDC target, const RECT& bounds);

}  // namespace brivane::component
