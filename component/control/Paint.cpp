#include "component/control/Paint.h"

#include <olectl.h>
#include <uxtheme.h>
#include <vssym32.h>

#include "component/control/Units.h"
#include <brivane/toolkits/win32/window/Owned.h>

namespace brivane::component {

namespace {

bool HasStyle(HWND window, LONG style) { return (::GetWindowLongW(window, GWL_STYLE) & style) != 0; }
bool HasExtendedStyle(HWND window, LONG style) { return (::GetWindowLongW(window, GWL_EXSTYLE) & style) != 0; }

/// A picture in memory, in the colours of the screen.
class Picture {
 public:
  explicit Picture(SIZE size) : Picture(size, win32::WindowContext()) {}
  explicit operator bool() const { return static_cast<bool>(drawn_); }
  [[nodiscard]] HDC Drawing() const { return drawing_.Get(); }

 private:
  Picture(SIZE size, const win32::WindowContext& screen)
      : drawing_(::CreateCompatibleDC(screen.Get())),
        bitmap_(::CreateCompatibleBitmap(screen.Get(), size.cx, size.cy)),
        drawn_(drawing_.Get(), bitmap_.Get()) {}

  win32::OwnedContext drawing_;
  win32::OwnedBitmap bitmap_;
  win32::Selected drawn_;
};

/// The edge around a window, as the theme or the classic look has it.
void PaintEdge(HWND window, HDC target, RECT whole) {
  if (HasExtendedStyle(window, WS_EX_CLIENTEDGE)) {
    const win32::Owned<HTHEME, &::CloseThemeData> theme(::OpenThemeData(window, L"EDIT"));
    if (!theme) {
      ::DrawEdge(target, &whole, EDGE_SUNKEN, BF_RECT);
      return;
    }
    const int state = ::IsWindowEnabled(window) ? ETS_NORMAL : ETS_DISABLED;
    ::DrawThemeBackground(theme.Get(), target, EP_EDITTEXT, state, &whole, nullptr);
  } else if (HasExtendedStyle(window, WS_EX_STATICEDGE)) {
    ::DrawEdge(target, &whole, BDR_SUNKENOUTER, BF_RECT);
  } else if (HasStyle(window, WS_BORDER)) {
    ::FrameRect(target, &whole, ::GetSysColorBrush(COLOR_WINDOWFRAME));
  }
}

/// What a window of ours has in its edge.
void PaintInEdge(HWND window, HDC target, POINT corner) {
  const win32::SavedContext saved(target);
  ::OffsetViewportOrgEx(target, corner.x, corner.y, nullptr);
  ::SendMessageW(window, WM_PRINT, reinterpret_cast<WPARAM>(target), PRF_NONCLIENT);
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

/// A window with its upper left corner at a point, and what stands on it. Its inside is drawn on a picture of its own,
/// as not every window draws well where its origin is not that of the drawing.
void PaintAt(HWND window, HDC target, POINT corner) {
  const SIZE size = SizeOfWindow(window);
  PaintEdge(window, target, {corner.x, corner.y, corner.x + size.cx, corner.y + size.cy});
  PaintInEdge(window, target, corner);

  RECT place{};
  ::GetWindowRect(window, &place);
  POINT inside{0, 0};
  ::ClientToScreen(window, &inside);
  const POINT at{corner.x + inside.x - place.left, corner.y + inside.y - place.top};
  RECT client{};
  ::GetClientRect(window, &client);
  const Picture picture({client.right, client.bottom});
  if (!picture) return;
  // What does not draw its background shows what is behind it.
  ::BitBlt(picture.Drawing(), 0, 0, client.right, client.bottom, target, at.x, at.y, SRCCOPY);
  {
    const win32::SavedContext saved(picture.Drawing());
    const auto drawing = reinterpret_cast<WPARAM>(picture.Drawing());
    ::SendMessageW(window, WM_ERASEBKGND, drawing, 0);
    ::SendMessageW(window, WM_PRINTCLIENT, drawing, PRF_CLIENT | PRF_ERASEBKGND);
  }
  PaintChildren(window, picture.Drawing());
  ::BitBlt(target, at.x, at.y, client.right, client.bottom, picture.Drawing(), 0, 0, SRCCOPY);
}

/// Some windows draw nothing as long as they are not visible. While this stands, the window is: on a place beyond every
/// screen, if it is not on one.
class BeyondTheScreen {
 public:
  explicit BeyondTheScreen(HWND window) : window_(window) {
    if (::IsWindowVisible(window)) return;
    parent_ = ::GetAncestor(window, GA_PARENT);
    place_.Reset(::CreateWindowExW(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, L"STATIC", nullptr, WS_POPUP, kFar, kFar, 1, 1,
                                   nullptr, nullptr, nullptr, nullptr));
    ::ShowWindow(place_.Get(), SW_SHOWNA);
    wasShown_ = HasStyle(window, WS_VISIBLE);
    ::SetParent(window, place_.Get());
    ::ShowWindow(window, SW_SHOWNA);
  }
  BeyondTheScreen(const BeyondTheScreen&) = delete;
  BeyondTheScreen& operator=(const BeyondTheScreen&) = delete;
  ~BeyondTheScreen() {
    if (!place_) return;
    if (!wasShown_) ::ShowWindow(window_, SW_HIDE);
    ::SetParent(window_, parent_);
  }

 private:
  static constexpr int kFar = -32000;
  HWND window_;
  HWND parent_ = nullptr;
  win32::OwnedWindow place_;
  bool wasShown_ = false;
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
  ::FillRect(picture.Drawing(), &whole, win32::OwnedBrush(::CreateSolidBrush(background)).Get());
  const BeyondTheScreen visible(window);
  PaintAt(window, picture.Drawing(), {0, 0});
  const win32::SavedContext saved(target);
  ::SetStretchBltMode(target, HALFTONE);
  ::StretchBlt(target, bounds.left, bounds.top, WidthOf(bounds), HeightOf(bounds), picture.Drawing(), 0, 0, size.cx,
               size.cy, SRCCOPY);
  return S_OK;
}

}  // namespace brivane::component
