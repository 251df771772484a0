#include <windowsx.h>

#include <brivane/toolkits/win32/controls/ToggleWindow.h>
#include <brivane/toolkits/win32/form/FormWindow.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::win32 {

using controls::Aspect;

namespace {

int Other(int value) { return value == host::kJa ? host::kNee : host::kJa; }

}  // namespace

ToggleWindow::ToggleWindow(controls::JaNee& toggle, win32::Toolkit& toolkit)
    : ControlWindow(toggle, toolkit,
                    {.className = L"BUTTON", .style = WS_CHILD | WS_CLIPSIBLINGS | WS_TABSTOP | BS_CHECKBOX}),
      toggle_(toggle),
      shown_(toggle.Value()) {}

void ToggleWindow::Refresh(Aspect aspect) {
  if (aspect != Aspect::Value) return ControlWindow::Refresh(aspect);
  shown_ = toggle_.Value();
  InvalidateRect(Handle(), nullptr, FALSE);
  NotifyWinEvent(EVENT_OBJECT_STATECHANGE, Handle(), OBJID_CLIENT, CHILDID_SELF);
}

void ToggleWindow::Pick(int value) {
  if (value != toggle_.Value()) Toolkit().Act(toggle_, controls::Toggle{value}, *this);
}

bool ToggleWindow::OnKey(WPARAM key) {
  if (!IsPlainKey()) return false;
  switch (key) {
    case 'J':
    case VK_LEFT:
    case VK_UP: Pick(host::kJa); return true;
    case 'N':
    case VK_RIGHT:
    case VK_DOWN: Pick(host::kNee); return true;
    case VK_SPACE: Pick(Other(toggle_.Value())); return true;
    default: return false;
  }
}

LRESULT ToggleWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (const auto answer = AnswerText(std::string(toggle_.AccessibleName()), message, wParam, lParam)) return *answer;
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: {
      const auto life = Life();
      if (!Toolkit().LeaveBox(*this) || life.expired() || !toggle_.Reachable()) return 0;
      SetFocus(Handle());
      RECT area{};
      GetClientRect(Handle(), &area);
      Pick(GET_X_LPARAM(lParam) < area.right / 2 ? host::kJa : host::kNee);
      return 0;
    }
    case BM_CLICK: Pick(Other(toggle_.Value())); return 0;
    case BM_GETCHECK: return shown_ == host::kJa ? BST_CHECKED : BST_UNCHECKED;
    case BM_GETSTATE:
      return (shown_ == host::kJa ? BST_CHECKED : BST_UNCHECKED) | (GetFocus() == Handle() ? BST_FOCUS : 0);
    // The class would draw its own face at once for each of these.
    case BM_SETCHECK:
    case BM_SETSTATE:
    case WM_LBUTTONUP:
    case WM_KEYUP:
    case WM_MOUSEMOVE: return 0;
    case WM_KILLFOCUS:
    case WM_ENABLE: InvalidateRect(Handle(), nullptr, FALSE); return 0;
    case WM_SETFOCUS:
      InvalidateRect(Handle(), nullptr, FALSE);
      FormWindow::BringIntoView(*this);
      return 0;
    case WM_GETDLGCODE: return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case WM_ERASEBKGND: return 1;
    case WM_PAINT:
    case WM_PRINTCLIENT: Paint(Drawing(Handle(), message, wParam).Context()); return 0;
    default: return ControlWindow::OnMessage(message, wParam, lParam);
  }
}

void ToggleWindow::PaintHalf(HDC context, const RECT& half, int value) const {
  const bool chosen = value == shown_;
  const bool enabled = IsWindowEnabled(Handle()) != FALSE;
  // A disabled toggle still tells its answer: its grey text turned inside out.
  const int back = !chosen ? COLOR_WINDOW : enabled ? COLOR_HIGHLIGHT : COLOR_GRAYTEXT;
  const int text =
      chosen ? (enabled ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOW) : (enabled ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT);
  FillRect(context, &half, GetSysColorBrush(back));
  SetTextColor(context, GetSysColor(text));
  SetBkMode(context, TRANSPARENT);
  RECT place = half;
  DrawTextW(context, value == host::kJa ? L"Ja" : L"Nee", -1, &place, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
  if (!chosen || GetFocus() != Handle()) return;
  InflateRect(&place, -1, -1);
  SetBkColor(context, GetSysColor(back));
  DrawFocusRect(context, &place);
}

void ToggleWindow::Paint(HDC context) {
  RECT area{};
  GetClientRect(Handle(), &area);
  const bool focused = GetFocus() == Handle();
  FillRect(context, &area, GetSysColorBrush(focused ? COLOR_HIGHLIGHT : COLOR_BTNSHADOW));
  const int border = focused ? 2 : 1;
  const LONG middle = area.right / 2;
  const Selected font(context, Font());
  PaintHalf(context, {border, border, middle, area.bottom - border}, host::kJa);
  PaintHalf(context, {middle, border, area.right - border, area.bottom - border}, host::kNee);
}

}  // namespace brivane::win32
