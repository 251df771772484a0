#include "component/control/FrameWindow.h"

#include <algorithm>
#include <mutex>
#include <string>
#include <utility>

#include "component/automation/ComPtr.h"
#include <brivane/toolkits/win32/window/Owned.h>

namespace brivane::component {

namespace {

std::mutex classLock;
int classUsers = 0;

HINSTANCE Module() {
  static const char here = 0;
  HMODULE module = nullptr;
  ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&here), &module);
  return module;
}

bool IsDown(int key) { return ::GetKeyState(key) < 0; }

// The address is part of the name: a class that an unloaded library might have left is never taken for this one.
const std::wstring kClassName =
    L"BrivaneVrijeKolom.Kader." + std::to_wstring(reinterpret_cast<std::uintptr_t>(&classUsers));

}  // namespace

const wchar_t* FrameWindow::ClassName() { return kClassName.c_str(); }

FrameWindow::ClassUse::ClassUse() {
  const std::scoped_lock lock(classLock);
  if (classUsers++ != 0) return;
  WNDCLASSEXW kind{};
  kind.cbSize = sizeof kind;
  kind.lpfnWndProc = &Procedure;
  kind.hInstance = Module();
  kind.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
  kind.lpszClassName = ClassName();
  ::RegisterClassExW(&kind);
}

FrameWindow::ClassUse::~ClassUse() {
  const std::scoped_lock lock(classLock);
  if (--classUsers == 0) ::UnregisterClassW(ClassName(), Module());
}

FrameWindow::~FrameWindow() { Destroy(); }

bool FrameWindow::Create(HWND container) {
  const SIZE size = SizeOfWindow(subject_.Window());
  ::CreateWindowExW(WS_EX_CONTROLPARENT, ClassName(), L"", WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, 0, 0, size.cx,
                    size.cy, container, nullptr, Module(), this);
  if (!window_) return false;
  hiddenParent_ = ::GetAncestor(subject_.Window(), GA_PARENT);
  ::SetParent(subject_.Window(), window_);
  ::SetWindowPos(subject_.Window(), nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
  return true;
}

void FrameWindow::Destroy() {
  const HWND window = std::exchange(window_, nullptr);
  if (!window) return;
  ::SetWindowLongPtrW(window, GWLP_USERDATA, 0);  // nothing of this comes back here
  GiveBackContent();
  ::DestroyWindow(window);
}

void FrameWindow::GiveBackContent() {
  const HWND parent = std::exchange(hiddenParent_, nullptr);
  if (!parent) return;
  const HWND content = subject_.Window();
  if (::IsChild(content, ::GetFocus())) ::SetFocus(nullptr);
  ::SetParent(content, parent);
}

void FrameWindow::Place(const RECT& place, const RECT& clip) {
  const SIZE own = SizeOfWindow(subject_.Window());
  const int width = std::min<int>(WidthOf(place), own.cx);
  const int height = std::min<int>(HeightOf(place), own.cy);
  ::SetWindowPos(window_, nullptr, place.left, place.top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);

  const RECT whole{place.left, place.top, place.left + width, place.top + height};
  RECT shown{};
  ::IntersectRect(&shown, &whole, &clip);
  win32::OwnedRegion region;
  if (!::EqualRect(&shown, &whole)) {
    ::OffsetRect(&shown, -place.left, -place.top);
    region.Reset(::CreateRectRgnIndirect(&shown));
  }
  // The window keeps the region that it was given.
  if (::SetWindowRgn(window_, region.Get(), TRUE)) (void)region.Release();
}

bool FrameWindow::HasFocus() const {
  const HWND focus = ::GetFocus();
  return window_ && focus && (focus == window_ || ::IsChild(window_, focus));
}

LRESULT CALLBACK FrameWindow::Procedure(HWND window, UINT message, WPARAM wide, LPARAM lng) {
  if (message == WM_NCCREATE) {
    auto* self = static_cast<FrameWindow*>(reinterpret_cast<const CREATESTRUCTW*>(lng)->lpCreateParams);
    self->window_ = window;
    ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
  }
  auto* self = reinterpret_cast<FrameWindow*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  return self ? self->Handle(message, wide, lng) : ::DefWindowProcW(window, message, wide, lng);
}

LRESULT FrameWindow::Handle(UINT message, WPARAM wide, LPARAM lng) {
  const HWND window = window_;
  if (message == WM_SETFOCUS || message == WM_MOUSEACTIVATE || message == WM_DESTROY) {
    const ComPtr<IUnknown> keep(&subject_.Outer());  // what is told here may make the container let go
    Tell(message);
  }
  return ::DefWindowProcW(window, message, wide, lng);
}

void FrameWindow::Tell(UINT message) {
  if (message == WM_SETFOCUS)
    return listener_.FocusCame(IsDown(VK_TAB) && IsDown(VK_SHIFT) ? TabEnd::Last : TabEnd::First);
  if (message == WM_MOUSEACTIVATE) return listener_.MouseCame();
  GiveBackContent();
  ::SetWindowLongPtrW(std::exchange(window_, nullptr), GWLP_USERDATA, 0);
  listener_.WindowLost();
}

}  // namespace brivane::component
