#include <algorithm>

#include <brivane/toolkits/win32/Toolkit.h>
#include <brivane/toolkits/win32/window/Bubble.h>
#include <brivane/toolkits/win32/window/Fonts.h>

namespace brivane::win32 {

namespace {

constexpr int kGap = 2;
constexpr int kMargin = 4;

/// The part of an area that its window shows: a form may be scrolled, a container may cut a surface off.
RECT SeenOf(HWND area) {
  RECT whole{};
  GetClientRect(area, &whole);
  RECT window{};
  GetClientRect(GetParent(area), &window);
  MapWindowPoints(GetParent(area), area, reinterpret_cast<POINT*>(&window), 2);
  RECT seen{};
  return IntersectRect(&seen, &whole, &window) != FALSE ? seen : whole;
}

}  // namespace

Bubble::Bubble(win32::Toolkit& toolkit, HWND area, HWND box, HFONT font, const std::wstring& text, Saying saying)
    : Window(toolkit,
             {.className = L"STATIC",
              .style = WS_CHILD | WS_BORDER | WS_CLIPSIBLINGS | SS_NOPREFIX | SS_LEFT,
              .text = text},
             area) {
  SendMessageW(Handle(), WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
  const RECT room = SeenOf(area);
  const int gap = toolkit.Edge().Designed(kGap);
  const int around = 2 * GetSystemMetrics(SM_CXBORDER) + toolkit.Edge().Designed(kMargin);
  RECT lines{0, 0, std::max<LONG>(toolkit.Edge().Designed(80), WidthOf(room) - 2 * gap - around), 0};
  const Measuring measuring(font);
  const int height = measuring.WrappedHeight(text, lines);
  // One line stands in the middle, so that it keeps from the border.
  if (height < 2 * measuring.LineHeight())
    SetWindowLongPtrW(Handle(), GWL_STYLE, GetWindowLongPtrW(Handle(), GWL_STYLE) | SS_CENTER);

  RECT place{};
  GetWindowRect(box, &place);
  MapWindowPoints(nullptr, area, reinterpret_cast<POINT*>(&place), 2);
  const LONG width = lines.right + around;
  const LONG outerHeight = height + 2 * GetSystemMetrics(SM_CYBORDER);
  LONG top = place.bottom + gap;
  if (top + outerHeight > room.bottom) top = place.top - gap - outerHeight;
  const LONG left = std::max<LONG>(room.left + gap, std::min<LONG>(place.left, room.right - width - gap));
  SetWindowPos(Handle(), HWND_TOP, left, std::max<LONG>(room.top, top), width, outerHeight,
               SWP_NOACTIVATE | SWP_SHOWWINDOW);
  if (saying == Saying::Reason) NotifyWinEvent(EVENT_SYSTEM_ALERT, Handle(), OBJID_CLIENT, CHILDID_SELF);
}

HBRUSH Bubble::OnColor(UINT, HDC context) {
  SetBkColor(context, GetSysColor(COLOR_INFOBK));
  SetTextColor(context, GetSysColor(COLOR_INFOTEXT));
  return GetSysColorBrush(COLOR_INFOBK);
}

}  // namespace brivane::win32
