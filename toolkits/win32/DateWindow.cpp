#include "toolkits/win32/DateWindow.h"

#include <algorithm>

#include "toolkits/entry/Dates.h"
#include "toolkits/win32/Calendar.h"
#include "toolkits/win32/Text.h"

namespace brivane::win32 {

namespace {

constexpr int kButtonWidth = 17;

}  // namespace

/// The button in the box: a sheet of a calendar.
class DateWindow::DropButton final : public Window {
 public:
  explicit DropButton(DateWindow& box)
      : Window(box.Toolkit(), {.className = kDropClass, .style = WS_CHILD | WS_VISIBLE, .text = L"Kalender"},
               box.Handle()),
        box_(box) {}

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    switch (message) {
      case WM_LBUTTONDOWN:
      case WM_LBUTTONDBLCLK: Press(); return 0;
      case WM_PAINT:
      case WM_PRINTCLIENT: Paint(Drawing(Handle(), message, wParam).Context()); return 0;
      default: return Window::OnMessage(message, wParam, lParam);
    }
  }

 private:
  void Press() {
    const auto life = Life();
    if (!Toolkit().LeaveBox(box_) || life.expired()) return;
    if (box_.CalendarShown() != nullptr)
      box_.CloseCalendar();
    else
      box_.OpenCalendar();
  }

  void Paint(HDC context) const {
    RECT area{};
    GetClientRect(Handle(), &area);
    const bool open = IsWindowEnabled(box_.Handle()) != FALSE && !box_.IsReadOnly();
    FillRect(context, &area, GetSysColorBrush(open ? COLOR_WINDOW : COLOR_BTNFACE));
    const HBRUSH ink = GetSysColorBrush(open ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT);
    const auto part = [&](int left, int top, int width, int height) {
      const win32::Edge& edge = Toolkit().Edge();
      const LONG x = (area.right - edge.Designed(12)) / 2;
      const LONG y = (area.bottom - edge.Designed(11)) / 2;
      const RECT rect{x + edge.Designed(left), y + edge.Designed(top), x + edge.Designed(left + width),
                      y + edge.Designed(top + height)};
      FillRect(context, &rect, ink);
    };
    part(0, 0, 12, 3);
    part(0, 0, 1, 11);
    part(11, 0, 1, 11);
    part(0, 10, 12, 1);
    for (int row = 0; row < 2; ++row)
      for (int day = 0; day < 3; ++day) part(2 + 3 * day, 5 + 3 * row, 2, 2);
  }

  DateWindow& box_;
};

DateWindow::DateWindow(headless::TextBox& box, win32::Toolkit& toolkit)
    : BoxWindow(box, toolkit), button_(std::make_unique<DropButton>(*this)) {}

DateWindow::~DateWindow() = default;

void DateWindow::ShowPlace() {
  BoxWindow::ShowPlace();
  PlaceButton();
}

void DateWindow::ShowFont() {
  BoxWindow::ShowFont();
  PlaceButton();
}

void DateWindow::PlaceButton() {
  if (!button_) return;
  RECT area{};
  GetClientRect(Handle(), &area);
  const int width = std::min<int>(Toolkit().Edge().Designed(kButtonWidth), area.right);
  SetWindowPos(button_->Handle(), nullptr, area.right - width, 0, width, area.bottom, SWP_NOZORDER | SWP_NOACTIVATE);
  SendMessageW(Handle(), EM_SETMARGINS, EC_RIGHTMARGIN, MAKELPARAM(0, width));
}

HWND DateWindow::CalendarShown() const { return calendar_ ? calendar_->Handle() : nullptr; }

void DateWindow::OpenCalendar() {
  if (calendar_ || IsReadOnly() || !Control().Reachable()) return;
  SetFocus(Handle());
  const auto typed = entry::ReadDate(Narrow(TextOf(Handle())));
  const host::Date date = typed.IsRefused() || typed.IsEmpty() ? Toolkit().Desktop().Today() : *typed;
  calendar_ = std::make_unique<Calendar>(Toolkit(), Handle(), date, Font(), [this](host::Date day) { Pick(day); });
}

void DateWindow::CloseCalendar() { calendar_.reset(); }

void DateWindow::Pick(host::Date date) {
  if (!calendar_) return;  // a double click reports the day twice
  CloseCalendar();
  SetFocus(Handle());
  TypeText(Wide(entry::ShowDate(date)));
  const auto life = Life();
  if (CommitPending() && !life.expired()) SelectAll();
}

bool DateWindow::OnKey(WPARAM key) {
  if (calendar_) {
    switch (key) {
      case VK_RETURN: Pick(calendar_->Selected()); return true;
      case VK_ESCAPE:
      case VK_F4: CloseCalendar(); return true;
      default:
        if (calendar_->Move(key)) return true;
        CloseCalendar();
    }
  }
  const bool altDown = key == VK_DOWN && IsPressed(VK_MENU);
  if ((key == VK_F4 && IsPlainKey()) || altDown) {
    OpenCalendar();
    return true;
  }
  return BoxWindow::OnKey(key);
}

LRESULT DateWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  const auto gaining = reinterpret_cast<HWND>(wParam);
  if (message == WM_KILLFOCUS && calendar_ && IsChild(calendar_->Handle(), gaining) == FALSE) CloseCalendar();
  const auto life = Life();
  const LRESULT result = BoxWindow::OnMessage(message, wParam, lParam);
  if (life.expired()) return result;
  // The edit control draws over what stands in it.
  const bool draws = message == WM_PAINT || message == WM_SETFOCUS || message == WM_KILLFOCUS || message == WM_ENABLE;
  if (draws && button_) InvalidateRect(button_->Handle(), nullptr, FALSE);
  return result;
}

}  // namespace brivane::win32
