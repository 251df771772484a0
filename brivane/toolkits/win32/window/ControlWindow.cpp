#include <brivane/toolkits/win32/form/FormWindow.h>
#include <brivane/toolkits/win32/window/ControlWindow.h>
#include <brivane/toolkits/win32/window/Navigation.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::win32 {

using controls::Aspect;
using host::Kind;

namespace {

bool IsBox(Kind kind) { return kind == Kind::TextBox || kind == Kind::ListBox || kind == Kind::ListView; }
bool IsArea(Kind kind) { return kind == Kind::Frame || kind == Kind::Surface; }

HWND ContainerOf(const controls::AnyControl& control) {
  return control.Container() != nullptr ? AreaOf(*control.Container()) : nullptr;
}

/// What a key types after it was handled: it would make a box beep.
bool IsHandledCharacter(WPARAM character) {
  return character == L'\t' || character == L'\r' || character == L'\n' || character == VK_ESCAPE;
}

}  // namespace

HWND AreaOf(const controls::AnyControl& control) { return dynamic_cast<const AreaHolder&>(*control.GetPeer()).Area(); }

controls::Surface& RootOf(controls::AnyControl& control) {
  controls::Surface* root = control.Owner();
  if (root == nullptr) return dynamic_cast<controls::Surface&>(control);
  while (root->Owner() != nullptr) root = root->Owner();
  return *root;
}

host::Color BackgroundOf(const controls::AnyControl& control) {
  for (const controls::AnyControl* area = &control; area != nullptr; area = area->Container())
    if (const auto color = area->Host().BackColor(); color && OwnColor(*color)) return *color;
  return host::kButtonFace;
}

ControlWindow& WindowFor(const controls::AnyControl& control) {
  return dynamic_cast<ControlWindow&>(*control.GetPeer());
}

ControlWindow::ControlWindow(controls::AnyControl& control, win32::Toolkit& toolkit, const Making& making)
    : Window(toolkit, making, ContainerOf(control)), control_(control) {
  // Focus and mnemonics are always to be seen, also before the first key press.
  SendMessageW(Handle(), WM_UPDATEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS | UISF_HIDEACCEL), 0);
}

void ControlWindow::Refresh(Aspect aspect) {
  if (Handle() == nullptr) return;
  switch (aspect) {
    case Aspect::Enabled: {
      const bool enabled = control_.Host().Enabled();
      if (!enabled) LeaveInside(*this);
      EnableWindow(Handle(), enabled ? TRUE : FALSE);
      break;
    }
    case Aspect::Visible: ShowVisible(); break;
    case Aspect::Place: ShowPlace(); break;
    case Aspect::FontSize: ShowFont(); break;
    case Aspect::BackColor: ShowBackColor(); break;
    default: break;
  }
}

void ControlWindow::TakeFocus() {
  if (Handle() == nullptr) return;
  SetFocus(Handle());
  // As when Tab leads there: what is typed takes the place of what stands there.
  if (control_.ControlKind() == Kind::TextBox) SendMessageW(Handle(), EM_SETSEL, 0, -1);
}

bool ControlWindow::TakeKey(UINT message, WPARAM key) {
  if (message == WM_SYSCHAR) return PressMnemonic(RootOf(control_), static_cast<wchar_t>(key));
  if (message != WM_KEYDOWN && message != WM_SYSKEYDOWN) return false;
  return OnKey(key) || MoveByKey(*this, key);
}

void ControlWindow::Rescale() {
  if (Handle() == nullptr) return;
  ShowFont();
  ShowPlace();
}

void ControlWindow::ShowVisible() {
  const bool visible = control_.Host().Visible() && !RootOf(control_).IsVeiled();
  if (!visible) LeaveInside(*this);
  ShowWindow(Handle(), visible ? SW_SHOWNA : SW_HIDE);
}

void ControlWindow::ShowPlace() {
  const RECT place = Toolkit().Edge().Pixels(control_.Host().Place());
  SetWindowPos(Handle(), nullptr, place.left, place.top, WidthOf(place), HeightOf(place),
               SWP_NOZORDER | SWP_NOACTIVATE);
}

HFONT ControlWindow::Font() const {
  const controls::Surface& surface =
      control_.Owner() != nullptr ? *control_.Owner() : static_cast<const controls::Surface&>(control_);
  const float points = control_.Host().Read(host::Measure::FontSize).value_or(surface.Table().fontSize);
  return Toolkit().FontOf(surface.Table(), points > 0 ? points : surface.Table().fontSize);
}

void ControlWindow::ShowFont() { SendMessageW(Handle(), WM_SETFONT, reinterpret_cast<WPARAM>(Font()), TRUE); }

void ControlWindow::ShowBackColor() {
  RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

void ControlWindow::SetText(const std::string& text) const { SetWindowTextW(Handle(), Wide(text).c_str()); }

HBRUSH ControlWindow::Brush(COLORREF color) {
  if (!brush_ || brushColor_ != color) {
    brush_.Reset(CreateSolidBrush(color));
    brushColor_ = color;
  }
  return brush_.Get();
}

HBRUSH ControlWindow::OnColor(UINT message, HDC context) {
  const Kind kind = control_.ControlKind();
  const std::optional<host::Color> asked = control_.Host().BackColor();
  const bool own = asked && OwnColor(*asked);
  // A box that cannot be typed in asks for the colours of a fixed text.
  const host::Color face = message == WM_CTLCOLORSTATIC ? host::kButtonFace : host::kWindowBackground;
  const host::Color back = IsBox(kind) ? (own ? *asked : face) : BackgroundOf(control_);
  const COLORREF color = DrawnColor(back);
  SetBkColor(context, color);
  const std::optional<COLORREF> ownColor = OwnColor(back);
  const bool window = IsBox(kind) && message != WM_CTLCOLORSTATIC;
  SetTextColor(context, ownColor ? TextOn(*ownColor) : GetSysColor(window ? COLOR_WINDOWTEXT : COLOR_BTNTEXT));
  return Brush(color);
}

LRESULT ControlWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN: {
      if (!frame::detail::TakesFocus(control_.ControlKind()) || control_.ControlKind() == Kind::Surface) break;
      // What is being typed elsewhere goes first; refused, it keeps the focus and the click is dropped.
      const auto life = Life();
      if (!Toolkit().LeaveBox(*this) || life.expired() || !control_.Reachable()) return 0;
      break;
    }
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_SYSCHAR: {
      const auto life = Life();
      if (TakeKey(message, wParam) || life.expired()) return 0;
      break;
    }
    case WM_CHAR:
      if (IsHandledCharacter(wParam)) return 0;
      break;
    case WM_SETFOCUS: {
      const LRESULT result = Window::OnMessage(message, wParam, lParam);
      FormWindow::BringIntoView(*this);
      return result;
    }
    case WM_ERASEBKGND:
      if (!IsArea(control_.ControlKind())) break;
      {
        RECT area{};
        GetClientRect(Handle(), &area);
        FillRect(reinterpret_cast<HDC>(wParam), &area, Brush(DrawnColor(BackgroundOf(control_))));
      }
      return 1;
    default: break;
  }
  return Window::OnMessage(message, wParam, lParam);
}

}  // namespace brivane::win32
