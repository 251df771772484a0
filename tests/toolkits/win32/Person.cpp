#include "tests/toolkits/win32/Person.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include <brivane/controls/Choices.h>
#include <brivane/controls/ListBox.h>
#include <brivane/controls/TextBox.h>
#include <brivane/controls/entry/Content.h>
#include <brivane/toolkits/win32/Toolkit.h>
#include <brivane/toolkits/win32/form/FormWindow.h>
#include <brivane/toolkits/win32/window/ControlWindow.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::test {

namespace {

Stage* stage = nullptr;

void Send(INPUT input) {
  if (SendInput(1, &input, sizeof input) != 1) {
    std::fprintf(stderr, "the input was blocked\n");
    std::abort();
  }
}

void SendKey(WORD key, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = flags;
  Send(input);
}

void SendMouse(DWORD flags) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  Send(input);
}

WORD ModifierOf(With with) {
  switch (with) {
    case With::Shift: return VK_SHIFT;
    case With::Control: return VK_CONTROL;
    case With::Alt: return VK_MENU;
    case With::None: break;
  }
  return 0;
}

}  // namespace

Stage& TheStage() { return *stage; }

Stage::Stage(win32::Toolkit& toolkit) : toolkit_(toolkit) {
  WNDCLASSEXW entry{};
  entry.cbSize = sizeof entry;
  entry.lpfnWndProc = DefWindowProcW;
  entry.hInstance = toolkit.Module();
  entry.lpszClassName = L"BrivaneTestWindow";
  entry.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  RegisterClassExW(&entry);
  window_ = CreateWindowExW(WS_EX_CONTROLPARENT, entry.lpszClassName, L"Test", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                            40, 40, 900, 640, nullptr, nullptr, toolkit.Module(), nullptr);
  stage = this;
}

Stage::~Stage() {
  DestroyWindow(window_);
  stage = nullptr;
}

void Stage::Show(host::Surface& surface) {
  area_ = win32::Toolkit::WindowOf(surface);
  SetParent(area_, window_);
  SetWindowPos(area_, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  ShowWindow(window_, SW_SHOW);
  SetForegroundWindow(window_);
  Settle();
}

void Stage::Settle() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    const auto* const control = dynamic_cast<win32::ControlWindow*>(win32::Window::Of(message.hwnd));
    // A form that is open has its own.
    controls::Surface* const root = control != nullptr ? &win32::RootOf(control->Control()) : nullptr;
    if (root != nullptr && toolkit_.Navigate(root->HostSurface(), message)) continue;
    const bool inside = root != nullptr && win32::AreaOf(*root) == area_;
    if (inside && message.message == WM_KEYDOWN && message.wParam == VK_TAB) {
      host::Surface& surface = root->HostSurface();
      GetKeyState(VK_SHIFT) < 0 ? toolkit_.FocusLast(surface) : toolkit_.FocusFirst(surface);
      continue;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

POINT CenterOf(HWND window) {
  RECT area{};
  GetClientRect(window, &area);
  return {area.right / 2, area.bottom / 2};
}

void MoveTo(HWND window, POINT at) {
  ClientToScreen(window, &at);
  SetCursorPos(at.x, at.y);
  TheStage().Settle();
}

void Click(HWND window, POINT at) {
  MoveTo(window, at);
  SendMouse(MOUSEEVENTF_LEFTDOWN);
  TheStage().Settle();
  SendMouse(MOUSEEVENTF_LEFTUP);
  TheStage().Settle();
}

void Click(HWND window) { Click(window, CenterOf(window)); }

WORD CodeOf(Key key) {
  switch (key) {
    case Key::Tab: return VK_TAB;
    case Key::Enter:
    case Key::KeypadEnter: return VK_RETURN;
    case Key::Escape: return VK_ESCAPE;
    case Key::Space: return VK_SPACE;
    case Key::Delete: return VK_DELETE;
    case Key::Left: return VK_LEFT;
    case Key::Right: return VK_RIGHT;
    case Key::Up: return VK_UP;
    case Key::Down: return VK_DOWN;
    case Key::Home: return VK_HOME;
    case Key::End: return VK_END;
    case Key::PageUp: return VK_PRIOR;
    case Key::PageDown: return VK_NEXT;
    case Key::F4: return VK_F4;
    case Key::KeypadPoint: return VK_DECIMAL;
    case Key::KeypadComma: return VK_SEPARATOR;
  }
  return 0;
}

void Press(WORD key, With with) {
  const WORD modifier = ModifierOf(with);
  if (modifier != 0) SendKey(modifier, 0);
  SendKey(key, 0);
  TheStage().Settle();
  SendKey(key, KEYEVENTF_KEYUP);
  if (modifier != 0) SendKey(modifier, KEYEVENTF_KEYUP);
  TheStage().Settle();
}

void QueueKey(WORD key, With with) {
  const WORD modifier = ModifierOf(with);
  if (modifier != 0) SendKey(modifier, 0);
  SendKey(key, 0);
  SendKey(key, KEYEVENTF_KEYUP);
  if (modifier != 0) SendKey(modifier, KEYEVENTF_KEYUP);
}

void Type(const std::wstring& text) {
  for (const wchar_t character : text) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = character;
    input.ki.dwFlags = KEYEVENTF_UNICODE;
    Send(input);
    input.ki.dwFlags |= KEYEVENTF_KEYUP;
    Send(input);
    TheStage().Settle();
  }
}

void TypeOver(const std::wstring& text) {
  Press('A', With::Control);
  if (text.empty())
    Press(VK_DELETE);
  else
    Type(text);
}

void Copy(HWND owner, const std::wstring& text) {
  OpenClipboard(owner);
  EmptyClipboard();
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t));
  std::copy_n(text.c_str(), text.size() + 1, static_cast<wchar_t*>(GlobalLock(memory)));
  GlobalUnlock(memory);
  SetClipboardData(CF_UNICODETEXT, memory);
  CloseClipboard();
}

win32::ControlWindow& Shown(controls::AnyControl& control) { return win32::WindowFor(control); }

std::string Focused() {
  const auto* const control = dynamic_cast<win32::ControlWindow*>(win32::Window::Of(GetFocus()));
  return control != nullptr ? control->Control().ElementName() : "";
}

namespace {

class Doer {
 public:
  explicit Doer(controls::AnyControl& control) : control_(control) {
    const auto* const shown = dynamic_cast<win32::ControlWindow*>(control.GetPeer());
    window_ = shown != nullptr ? shown->Handle() : win32::AreaOf(control);
  }

  void operator()(const controls::Press&) const { Click(window_); }
  void operator()(const controls::Select&) const { Click(window_, LeftEnd()); }
  void operator()(const controls::Tick& tick) const {
    if (static_cast<const controls::CheckBox&>(control_).Value() != tick.value) Click(window_, LeftEnd());
  }
  void operator()(const controls::Toggle& toggle) const {
    POINT at = CenterOf(window_);
    at.x = toggle.value == host::kJa ? at.x / 2 : at.x * 3 / 2;
    Click(window_, at);
  }
  void operator()(const controls::Choose& choose) const {
    Click(window_);
    if (SendMessageW(window_, CB_GETDROPPEDSTATE, 0, 0) == FALSE) return;
    Press(VK_HOME);
    for (int i = 0; i < choose.index; ++i) Press(VK_DOWN);
    Press(VK_RETURN);
  }
  void operator()(const controls::Enter& enter) const {
    Click(window_, LeftEnd());
    if (GetFocus() != window_) return;
    const auto format = static_cast<const controls::TextBox&>(control_).Format();
    TypeOver(win32::Wide(controls::ShowContent(enter.value, format)));
    Press(VK_TAB);
  }
  void operator()(const controls::Close&) const { SendMessageW(GetAncestor(window_, GA_ROOT), WM_CLOSE, 0, 0); }

 private:
  [[nodiscard]] POINT LeftEnd() const { return {8, CenterOf(window_).y}; }

  controls::AnyControl& control_;
  HWND window_;
};

}  // namespace

void Do(controls::AnyControl& control, const controls::Action& action) { std::visit(Doer(control), action); }

}  // namespace brivane::test
