#include <commctrl.h>

#include <algorithm>

#include <brivane/controls/entry/TypedDate.h>
#include <brivane/frame/Calendar.h>
#include <brivane/frame/Dates.h>
#include <brivane/toolkits/win32/Toolkit.h>
#include <brivane/toolkits/win32/controls/Calendar.h>

namespace brivane::win32 {

namespace {

constexpr UINT kPicked = WM_APP + 2;
constexpr LPARAM kMonday = 0;

SYSTEMTIME ToSystem(host::Date date) {
  const frame::YearMonthDay day = frame::Split(date);
  SYSTEMTIME system{};
  system.wYear = static_cast<WORD>(day.year);
  system.wMonth = static_cast<WORD>(day.month);
  system.wDay = static_cast<WORD>(day.day);
  return system;
}

host::Date FromSystem(const SYSTEMTIME& system) { return frame::MakeDate({system.wYear, system.wMonth, system.wDay}); }

}  // namespace

Calendar::Calendar(win32::Toolkit& toolkit, HWND box, Days days, HFONT font, std::function<void(host::Date)> picked)
    : Window(toolkit,
             {.className = kAreaClass,
              .style = WS_POPUP | WS_BORDER,
              .extendedStyle = WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE},
             GetAncestor(box, GA_ROOT)),
      month_(toolkit.MakeWindow({.className = MONTHCAL_CLASSW, .style = WS_CHILD | WS_VISIBLE | MCS_WEEKNUMBERS},
                                Handle())),
      today_(days.today),
      picked_(std::move(picked)) {
  SendMessageW(month_, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
  SendMessageW(month_, MCM_SETFIRSTDAYOFWEEK, 0, kMonday);
  SYSTEMTIME range[2] = {ToSystem(frame::MakeDate({frame::kFirstYear, 1, 1})),
                         ToSystem(frame::MakeDate({9999, 12, 31}))};
  SendMessageW(month_, MCM_SETRANGE, GDTR_MIN | GDTR_MAX, reinterpret_cast<LPARAM>(range));
  SYSTEMTIME today = ToSystem(today_);
  SendMessageW(month_, MCM_SETTODAY, 0, reinterpret_cast<LPARAM>(&today));
  Select(days.shown);

  RECT month{};
  SendMessageW(month_, MCM_GETMINREQRECT, 0, reinterpret_cast<LPARAM>(&month));
  RECT frame = month;
  AdjustWindowRectEx(&frame, WS_POPUP | WS_BORDER, FALSE, WS_EX_TOOLWINDOW);
  RECT place{};
  GetWindowRect(box, &place);
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(box, MONITOR_DEFAULTTONEAREST), &monitor);
  const RECT& screen = monitor.rcWork;
  LONG top = place.bottom;
  if (top + HeightOf(frame) > screen.bottom) top = place.top - HeightOf(frame);
  const LONG left = std::max(screen.left, std::min(place.left, screen.right - WidthOf(frame)));
  SetWindowPos(month_, nullptr, 0, 0, WidthOf(month), HeightOf(month), SWP_NOZORDER | SWP_NOACTIVATE);
  SetWindowPos(Handle(), HWND_TOP, left, top, WidthOf(frame), HeightOf(frame), SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

host::Date Calendar::Selected() const {
  SYSTEMTIME selected{};
  SendMessageW(month_, MCM_GETCURSEL, 0, reinterpret_cast<LPARAM>(&selected));
  return FromSystem(selected);
}

void Calendar::Select(host::Date date) const {
  SYSTEMTIME selected = ToSystem(date);
  SendMessageW(month_, MCM_SETCURSEL, 0, reinterpret_cast<LPARAM>(&selected));
}

bool Calendar::Move(WPARAM key) const {
  using controls::DateStep;
  using controls::StepFrom;
  const host::Date from = Selected();
  const bool years = GetKeyState(VK_CONTROL) < 0;
  switch (key) {
    case VK_LEFT: Select(StepFrom(from, DateStep::DayBack)); return true;
    case VK_RIGHT: Select(StepFrom(from, DateStep::Day)); return true;
    case VK_UP: Select(host::Date(from.Days() - 7)); return true;
    case VK_DOWN: Select(host::Date(from.Days() + 7)); return true;
    case VK_PRIOR: Select(StepFrom(from, years ? DateStep::YearBack : DateStep::MonthBack)); return true;
    case VK_NEXT: Select(StepFrom(from, years ? DateStep::Year : DateStep::Month)); return true;
    case VK_HOME: Select(today_); return true;
    default: return false;
  }
}

LRESULT Calendar::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_MOUSEACTIVATE: return MA_NOACTIVATE;
    case WM_NOTIFY:
      if (reinterpret_cast<NMHDR*>(lParam)->code == MCN_SELECT) PostMessageW(Handle(), kPicked, 0, 0);
      return 0;
    case kPicked: {
      const std::function<void(host::Date)> picked = picked_;
      picked(Selected());
      return 0;
    }
    default: return Window::OnMessage(message, wParam, lParam);
  }
}

}  // namespace brivane::win32
