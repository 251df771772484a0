#include <algorithm>

#include <brivane/frame/Phrase.h>
#include <brivane/toolkits/win32/controls/HintWindow.h>
#include <brivane/toolkits/win32/form/FormWindow.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::win32 {

HintWindow::HintWindow(controls::Hint& hint, win32::Toolkit& toolkit)
    : ControlWindow(hint, toolkit,
                    {.className = L"BUTTON",
                     .style = WS_CHILD | WS_CLIPSIBLINGS | WS_TABSTOP | BS_PUSHBUTTON,
                     .text = Wide(frame::Phrase(frame::TextId::HelpOn, {hint.HelpText()}).In(toolkit.Texts()))}),
      hint_(hint) {}

void HintWindow::ShowHelp() { tip_.Show(Toolkit(), Handle(), Wide(hint_.HelpText()), Font()); }

void HintWindow::FocusByKey() {
  ControlWindow::FocusByKey();
  if (GetFocus() == Handle()) ShowHelp();
}

bool HintWindow::OnKey(WPARAM key) {
  if (key == VK_SPACE && IsPlainKey()) return ShowHelp(), true;
  if (key != VK_ESCAPE || !tip_.IsShown()) return false;
  tip_.Hide();
  return true;
}

void HintWindow::AwaitHover() const {
  TRACKMOUSEEVENT await{sizeof await, TME_HOVER | TME_LEAVE, Handle(), HOVER_DEFAULT};
  TrackMouseEvent(&await);
}

LRESULT HintWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: {
      const auto life = Life();
      if (!Toolkit().LeaveBox(*this) || life.expired() || !hint_.Reachable()) return 0;
      SetFocus(Handle());
      ShowHelp();
      return 0;
    }
    case BM_CLICK: ShowHelp(); return 0;
    case WM_MOUSEMOVE: AwaitHover(); return 0;
    case WM_MOUSEHOVER:
      if (!tip_.IsShown()) ShowHelp();
      return 0;
    case WM_MOUSELEAVE:
      if (GetFocus() != Handle()) tip_.Hide();
      return 0;
    // The class would draw its own face at once for each of these.
    case WM_LBUTTONUP:
    case WM_KEYUP:
    case BM_SETSTATE: return 0;
    case WM_KILLFOCUS: tip_.Hide(); [[fallthrough]];
    case WM_ENABLE: InvalidateRect(Handle(), nullptr, TRUE); return 0;
    case WM_SETFOCUS:
      InvalidateRect(Handle(), nullptr, TRUE);
      FormWindow::BringIntoView(*this);
      return 0;
    case WM_SHOWWINDOW:
      if (wParam == FALSE) tip_.Hide();
      return 0;
    case WM_ERASEBKGND: return 1;
    case WM_PAINT:
    case WM_PRINTCLIENT: Paint(Drawing(Handle(), message, wParam).Context()); return 0;
    default: return ControlWindow::OnMessage(message, wParam, lParam);
  }
}

void HintWindow::Paint(HDC context) const {
  RECT area{};
  GetClientRect(Handle(), &area);
  const OwnedBrush back(CreateSolidBrush(DrawnColor(BackgroundOf(hint_))));
  FillRect(context, &area, back.Get());

  const LONG diameter = std::min(area.right, area.bottom) - 2;
  const LONG left = (area.right - diameter) / 2;
  const LONG top = (area.bottom - diameter) / 2;
  const bool enabled = IsWindowEnabled(Handle()) != FALSE;
  {
    const Selected pen(context, GetStockObject(NULL_PEN));
    const Selected brush(context, GetSysColorBrush(enabled ? COLOR_HIGHLIGHT : COLOR_GRAYTEXT));
    Ellipse(context, left, top, left + diameter + 1, top + diameter + 1);
  }

  const auto points = static_cast<float>(diameter * 0.75 * 0.75 / Toolkit().Edge().Scale());
  const Selected font(context, Toolkit().FontOf(hint_.Owner()->Table(), points, Weight::Bold));
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, GetSysColor(COLOR_HIGHLIGHTTEXT));
  RECT circle{left, top, left + diameter, top + diameter};
  DrawTextW(context, L"?", -1, &circle, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
  if (GetFocus() == Handle()) {
    SetTextColor(context, GetSysColor(COLOR_BTNTEXT));
    DrawFocusRect(context, &area);
  }
}

}  // namespace brivane::win32
