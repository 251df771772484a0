#include <brivane/controls/Caption.h>
#include <brivane/toolkits/win32/controls/ButtonWindows.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::win32 {

using controls::Aspect;

ButtonWindow::ButtonWindow(controls::AnyControl& control, win32::Toolkit& toolkit, DWORD kind)
    : ControlWindow(control, toolkit,
                    {.className = L"BUTTON", .style = WS_CHILD | WS_CLIPSIBLINGS | WS_TABSTOP | kind}) {}

LRESULT ButtonWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  // Two quick clicks are two clicks.
  if (message == WM_LBUTTONDBLCLK) message = WM_LBUTTONDOWN;
  if (message != WM_SETFOCUS) return ControlWindow::OnMessage(message, wParam, lParam);
  // An option that gets the focus tells of a click that nobody made.
  gettingFocus_ = true;
  const LRESULT result = ControlWindow::OnMessage(message, wParam, lParam);
  gettingFocus_ = false;
  return result;
}

void ButtonWindow::OnCommand(int code) {
  if (code == BN_CLICKED && !gettingFocus_) OnClick();
}

PushWindow::PushWindow(controls::Button& button, win32::Toolkit& toolkit)
    : ButtonWindow(button, toolkit, BS_PUSHBUTTON), button_(button) {
  Refresh(Aspect::Caption);
}

void PushWindow::Refresh(Aspect aspect) {
  if (aspect != Aspect::Caption) return ControlWindow::Refresh(aspect);
  SetText(controls::MarkedCaption(button_.Row(), button_.Caption()));
}

void PushWindow::Choose() {
  FocusByKey();
  Press();
}

void PushWindow::Press() { Toolkit().Act(button_, controls::Press{}, *this); }

void PushWindow::ShowDefault() const { SendMessageW(Handle(), BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE); }

bool PushWindow::OnKey(WPARAM key) {
  if (key != VK_RETURN || !IsPlainKey()) return false;
  Press();
  return true;
}

OptionWindow::OptionWindow(controls::OptionButton& option, win32::Toolkit& toolkit)
    : ButtonWindow(option, toolkit, BS_RADIOBUTTON), option_(option) {
  Refresh(Aspect::Caption);
  Refresh(Aspect::Value);
}

void OptionWindow::Refresh(Aspect aspect) {
  if (aspect == Aspect::Value)
    SendMessageW(Handle(), BM_SETCHECK, option_.Value() ? BST_CHECKED : BST_UNCHECKED, 0);
  else if (aspect == Aspect::Caption)
    SetText(controls::MarkedCaption(option_.Row(), option_.Caption()));
  else
    ControlWindow::Refresh(aspect);
}

void OptionWindow::Choose() {
  FocusByKey();
  OnClick();
}

void OptionWindow::OnClick() { Toolkit().Act(option_, controls::Select{}, *this); }

CheckWindow::CheckWindow(controls::CheckBox& check, win32::Toolkit& toolkit)
    : ButtonWindow(check, toolkit, BS_CHECKBOX), check_(check) {
  Refresh(Aspect::Caption);
  Refresh(Aspect::Value);
}

void CheckWindow::Refresh(Aspect aspect) {
  if (aspect == Aspect::Value)
    SendMessageW(Handle(), BM_SETCHECK, check_.Value() == host::kTicked ? BST_CHECKED : BST_UNCHECKED, 0);
  else if (aspect == Aspect::Caption)
    SetText(controls::MarkedCaption(check_.Row(), check_.Caption()));
  else
    ControlWindow::Refresh(aspect);
}

/// A screen reader hears the text of a check box; one without a caption answers its name, but not to the class
/// itself, which would draw it.
LRESULT CheckWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (check_.Caption().empty() && !busy_)
    if (const auto answer = AnswerText(std::string(check_.AccessibleName()), message, wParam, lParam)) return *answer;
  const auto life = Life();
  const bool before = std::exchange(busy_, true);
  const LRESULT result = ButtonWindow::OnMessage(message, wParam, lParam);
  if (life.expired()) return result;
  busy_ = before;
  if (check_.Caption().empty() && Handle() != nullptr) {
    if (message == WM_SETFOCUS || message == WM_KILLFOCUS) InvalidateRect(Handle(), nullptr, TRUE);
    if (message == WM_PAINT) DrawFocus();
  }
  return result;
}

/// The class shows the focus around the text, so not at all where there is none.
void CheckWindow::DrawFocus() const {
  if (GetFocus() != Handle()) return;
  RECT area{};
  GetClientRect(Handle(), &area);
  FrameRect(WindowContext(Handle()).Get(), &area, GetSysColorBrush(COLOR_HIGHLIGHT));
}

void CheckWindow::Choose() {
  FocusByKey();
  OnClick();
}

void CheckWindow::OnClick() {
  Toolkit().Act(check_, controls::Tick{check_.Value() == host::kTicked ? host::kUnticked : host::kTicked}, *this);
}

}  // namespace brivane::win32
