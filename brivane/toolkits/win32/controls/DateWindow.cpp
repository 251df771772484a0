#include <windowsx.h>

#include <algorithm>

#include <brivane/frame/Dates.h>
#include <brivane/toolkits/win32/controls/Calendar.h>
#include <brivane/toolkits/win32/controls/DateWindow.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::win32 {

namespace {

constexpr int kButtonWidth = 17;
/// Of the sheet of a calendar that is drawn on it.
constexpr int kSheetWidth = 12;
constexpr int kSheetHeight = 11;
constexpr UINT kClickedElsewhere = WM_APP + 4;

bool IsPress(WPARAM message) {
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
    case WM_NCLBUTTONDOWN:
    case WM_NCRBUTTONDOWN:
    case WM_NCMBUTTONDOWN: return true;
    default: return false;
  }
}

/// The step that Page Up and Page Down make, as in the calendar.
std::optional<controls::DateStep> StepOf(WPARAM key) {
  if ((key != VK_PRIOR && key != VK_NEXT) || IsPressed(VK_MENU) || IsPressed(VK_SHIFT)) return std::nullopt;
  const bool back = key == VK_PRIOR;
  if (IsPressed(VK_CONTROL)) return back ? controls::DateStep::YearBack : controls::DateStep::Year;
  return back ? controls::DateStep::MonthBack : controls::DateStep::Month;
}

}  // namespace

/// Sees the clicks of the thread while it exists; most of what a person clicks on takes no focus.
class DateWindow::ClickWatch {
 public:
  ClickWatch() : hook_(SetWindowsHookExW(WH_MOUSE, &Clicked, nullptr, GetCurrentThreadId())) {}
  ClickWatch(const ClickWatch&) = delete;
  ClickWatch& operator=(const ClickWatch&) = delete;
  ~ClickWatch() { UnhookWindowsHookEx(hook_); }

 private:
  static LRESULT CALLBACK Clicked(int code, WPARAM message, LPARAM info) {
    const auto* const box = dynamic_cast<const DateWindow*>(Window::Of(GetFocus()));
    if (code == HC_ACTION && IsPress(message) && box != nullptr && box->calendar_) {
      const HWND calendar = box->calendar_->Handle();
      const HWND clicked = reinterpret_cast<const MOUSEHOOKSTRUCT*>(info)->hwnd;
      const bool inside = clicked == box->Handle() || clicked == calendar || IsChild(calendar, clicked) != FALSE;
      if (!inside) PostMessageW(box->Handle(), kClickedElsewhere, 0, 0);
    }
    return CallNextHookEx(nullptr, code, message, info);
  }

  HHOOK hook_;
};

DateWindow::DateWindow(controls::TextBox& box, win32::Toolkit& toolkit) : BoxWindow(box, toolkit) {
  // The frame was measured before there was anyone to make room in it.
  SetWindowPos(Handle(), nullptr, 0, 0, 0, 0,
               SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

DateWindow::~DateWindow() = default;

RECT DateWindow::ButtonPlace() const {
  RECT window{};
  GetWindowRect(Handle(), &window);
  const LONG across = GetSystemMetrics(SM_CXEDGE);
  const LONG along = GetSystemMetrics(SM_CYEDGE);
  const LONG right = WidthOf(window) - across;
  return {std::max(across, right - Toolkit().Edge().Designed(kButtonWidth)), along, right, HeightOf(window) - along};
}

void DateWindow::PaintFrame(HDC context) {
  BoxWindow::PaintFrame(context);
  const RECT place = ButtonPlace();
  const bool open = IsWindowEnabled(Handle()) != FALSE && !ReadOnly();
  FillRect(context, &place, GetSysColorBrush(open ? COLOR_WINDOW : COLOR_BTNFACE));
  const HBRUSH ink = GetSysColorBrush(open ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT);
  const win32::Edge& edge = Toolkit().Edge();
  const LONG x = place.left + (WidthOf(place) - edge.Designed(kSheetWidth)) / 2;
  const LONG y = place.top + (HeightOf(place) - edge.Designed(kSheetHeight)) / 2;
  const auto fill = [&](int left, int top, int width, int height) {
    const RECT part{x + edge.Designed(left), y + edge.Designed(top), x + edge.Designed(left + width),
                    y + edge.Designed(top + height)};
    FillRect(context, &part, ink);
  };
  fill(0, 0, kSheetWidth, 3);
  fill(0, 0, 1, kSheetHeight);
  fill(kSheetWidth - 1, 0, 1, kSheetHeight);
  fill(0, kSheetHeight - 1, kSheetWidth, 1);
  for (int row = 0; row < 2; ++row)
    for (int day = 0; day < 3; ++day) fill(2 + 3 * day, 5 + 3 * row, 2, 2);
}

void DateWindow::PressButton() {
  const auto life = Life();
  if (!Toolkit().LeaveBox(*this) || life.expired()) return;
  if (calendar_)
    CloseCalendar();
  else
    OpenCalendar();
}

HWND DateWindow::CalendarShown() const { return calendar_ ? calendar_->Handle() : nullptr; }

void DateWindow::OpenCalendar() {
  if (calendar_ || ReadOnly() || !Control().Reachable()) return;
  SetFocus(Handle());
  const controls::TypedContent typed = Edit().Read(Narrow(TextOf(Handle())));
  const auto* const date = std::get_if<host::Date>(&typed.value);
  const host::Date today = Edit().Today();
  const Calendar::Days days{.shown = date != nullptr ? *date : today, .today = today};
  calendar_ = std::make_unique<Calendar>(Toolkit(), Handle(), days, Font(), [this](host::Date day) { Pick(day); });
  clicks_ = std::make_unique<ClickWatch>();
}

void DateWindow::CloseCalendar() {
  clicks_.reset();
  calendar_.reset();
}

void DateWindow::Pick(host::Date date) {
  if (!calendar_) return;  // a double click reports the day twice
  CloseCalendar();
  SetFocus(Handle());
  Edit().TypeOver(frame::ShowDate(date));
  Edit().CommitAndSelect();
}

bool DateWindow::OnKey(WPARAM key) {
  if (calendar_) {
    switch (key) {
      case VK_RETURN: Pick(calendar_->Selected()); return true;
      case VK_ESCAPE:
      case VK_F4: CloseCalendar(); return true;
      case VK_CONTROL:
      case VK_SHIFT: return false;  // what is pressed with it says what is meant
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
  if (const auto step = StepOf(key); step && Edit().Step(*step)) return true;
  return BoxWindow::OnKey(key);
}

LRESULT DateWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_KILLFOCUS:
      if (calendar_ && IsChild(calendar_->Handle(), reinterpret_cast<HWND>(wParam)) == FALSE) CloseCalendar();
      break;
    case WM_LBUTTONDOWN:
    case kClickedElsewhere: CloseCalendar(); break;
    case WM_CHAR:
      if ((wParam == L'+' || wParam == L'-') && Edit().StepBySign(static_cast<char>(wParam))) return 0;
      break;
    case WM_NCCALCSIZE: {
      const LRESULT result = BoxWindow::OnMessage(message, wParam, lParam);
      RECT& inside = *reinterpret_cast<RECT*>(lParam);  // also the first of the structure
      inside.right = std::max(inside.left, inside.right - Toolkit().Edge().Designed(kButtonWidth));
      return result;
    }
    case WM_NCHITTEST: {
      RECT button = ButtonPlace();
      RECT window{};
      GetWindowRect(Handle(), &window);
      OffsetRect(&button, window.left, window.top);
      if (PtInRect(&button, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}) != FALSE) return HTOBJECT;
      break;
    }
    case WM_NCLBUTTONDOWN:
    case WM_NCLBUTTONDBLCLK:
      if (wParam != HTOBJECT) break;
      PressButton();
      return 0;
    default: break;
  }
  return BoxWindow::OnMessage(message, wParam, lParam);
}

}  // namespace brivane::win32
