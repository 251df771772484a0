#include "component/control/Paint.h"

#include <olectl.h>

#include "component/control/Units.h"

namespace brivane::component {

namespace {

bool HasStyle(HWND window, LONG style) {
  return (::GetWindowLongW(window, GWL_STYLE) & style) != 0;
}
bool HasExtendedStyle(HWND window, LONG style) {
  return (::GetWindowLongW(window, GWL_EXSTYLE) & style) != 0;
}

/// The edge around a window whose upper left corner is the origin.
void PaintEdge(HWND window, HDC target) {
  const SIZE size = SizeOfWindow(window);
  RECT whole{0, 0, size.cx, size.cy};
  if (HasExtendedStyle(window, WS_EX_CLIENTEDGE)) {
    ::DrawEdge(target, &whole, EDGE_SUNKEN, BF_RECT);
  } else if (HasExtendedStyle(window, WS_EX_STATICEDGE)) {
    ::DrawEdge(target, &whole, BDR_SUNKENOUTER, BF_RECT);
  } else if (HasStyle(window, WS_BORDER)) {
    ::FrameRect(target, &whole, ::GetSysColorBrush(COLOR_WINDOWFRAME));
  }
}

void PaintAt(HWND window, HDC target, POINT corner);

/// The windows on a window, the lowest first.
void PaintChildren(HWND window, HDC target) {
  HWND child = ::GetWindow(window, GW_CHILD);
  if (child) child = ::GetWindow(child, GW_HWNDLAST);
  for (; child; child = ::GetWindow(child, GW_HWNDPREV)) {
    if (!HasStyle(child, WS_VISIBLE)) continue;
    RECT place{};
    ::GetWindowRect(child, &place);
    POINT corner{place.left, place.top};
    ::ScreenToClient(window, &corner);
    PaintAt(child, target, corner);
  }
}

/// A window with its upper left corner at a point, and what stands on it.
void PaintAt(HWND window, HDC target, POINT corner) {
  const int saved = ::SaveDC(target);
  ::OffsetViewportOrgEx(target, corner.x, corner.y, nullptr);
  const SIZE size = SizeOfWindow(window);
  ::IntersectClipRect(target, 0, 0, size.cx, size.cy);
  PaintEdge(window, target);

  RECT place{};
  ::GetWindowRect(window, &place);
  POINT inside{0, 0};
  ::ClientToScreen(window, &inside);
  RECT client{};
  ::GetClientRect(window, &client);
  ::OffsetViewportOrgEx(target, inside.x - place.left, inside.y - place.top, nullptr);
  ::IntersectClipRect(target, 0, 0, client.right, client.bottom);

  const auto drawing = reinterpret_cast<WPARAM>(target);
  const int before = ::SaveDC(target);
  ::SendMessageW(window, WM_ERASEBKGND, drawing, 0);
  ::SendMessageW(window, WM_PRINTCLIENT, drawing, PRF_CLIENT | PRF_ERASEBKGND);
  ::RestoreDC(target, before);
  PaintChildren(window, target);
  ::RestoreDC(target, saved);
}

/// A picture in memory, in the colours of the screen.
class Picture {
 public:
  explicit Picture(SIZE size) {
    const HDC screen = ::GetDC(nullptr);
    drawing_ = ::CreateCompatibleDC(screen);
    bitmap_ = ::CreateCompatibleBitmap(screen, size.cx, size.cy);
    ::ReleaseDC(nullptr, screen);
    if (drawing_ && bitmap_) old_ = ::SelectObject(drawing_, bitmap_);
  }
  Picture(const Picture&) = delete;
  Picture& operator=(const Picture&) = delete;
  ~Picture() {
    if (old_) ::SelectObject(drawing_, old_);
    if (bitmap_) ::DeleteObject(bitmap_);
    if (drawing_) ::DeleteDC(drawing_);
  }
  explicit operator bool() const { return old_ != nullptr; }
  [[nodiscard]] HDC Drawing() const { return drawing_; }

 private:
  HDC drawing_ = nullptr;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ old_ = nullptr;
};

}  // namespace

COLORREF ScreenColor(host::Color color) {
  COLORREF screen = 0;
  ::OleTranslateColor(static_cast<OLE_COLOR>(color.value), nullptr, &screen);
  return screen;
}

HRESULT PaintWindow(HWND window, COLORREF background, HDC target, const RECT& bounds) {
  const SIZE size = SizeOfWindow(window);
  if (size.cx <= 0 || size.cy <= 0) return S_OK;
  const Picture picture(size);
  if (!picture) return E_OUTOFMEMORY;
  const RECT whole{0, 0, size.cx, size.cy};
  const HBRUSH brush = ::CreateSolidBrush(background);
  ::FillRect(picture.Drawing(), &whole, brush);
  ::DeleteObject(brush);
  PaintAt(window, picture.Drawing(), {0, 0});
  ::SetStretchBltMode(target, HALFTONE);
  ::StretchBlt(target, bounds.left, bounds.top, WidthOf(bounds), HeightOf(bounds), picture.Drawing(), 0, 0, size.cx,
               size.cy, SRCCOPY);
  return S_OK;
}

}  // namespace brivane::component
