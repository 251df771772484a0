#include <system_error>

#include <brivane/toolkits/win32/Toolkit.h>
#include <brivane/toolkits/win32/window/Window.h>

namespace brivane::win32 {

namespace {

/// Another copy of this code in the process has objects of its own, so the property is named after where
/// the code stands.
const char kHere = 0;
const std::wstring kPropertyName = L"Brivane" + std::to_wstring(reinterpret_cast<std::uintptr_t>(&kHere));

}  // namespace

Window* Window::Of(HWND window) { return static_cast<Window*>(GetPropW(window, kPropertyName.c_str())); }

Window* Window::Around(HWND window) {
  for (; window != nullptr; window = GetAncestor(window, GA_PARENT))
    if (Window* const found = Of(window)) return found;
  return nullptr;
}

Window::Window(win32::Toolkit& toolkit, const Making& making, HWND parent)
    : toolkit_(toolkit), handle_(toolkit.MakeWindow(making, parent)) {
  if (handle_ == nullptr)
    throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), "CreateWindowEx");
  SetPropW(handle_, kPropertyName.c_str(), this);
  original_ = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Window::Procedure)));
}

Window::~Window() {
  if (handle_ == nullptr) return;
  const HWND window = std::exchange(handle_, nullptr);
  SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original_));
  RemovePropW(window, kPropertyName.c_str());
  DestroyWindow(window);
}

LRESULT CALLBACK Window::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  Window* const object = Of(window);
  if (object == nullptr) return DefWindowProcW(window, message, wParam, lParam);
  if (message == WM_NCDESTROY) {
    const WNDPROC original = object->original_;
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original));
    RemovePropW(window, kPropertyName.c_str());
    object->handle_ = nullptr;
    return CallWindowProcW(original, window, message, wParam, lParam);
  }
  win32::Toolkit& toolkit = object->toolkit_;
  LRESULT result = 0;
  toolkit.Guard([&] { result = object->OnMessage(message, wParam, lParam); });
  return result;
}

LRESULT Window::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (const std::optional<LRESULT> result = Reflect(message, wParam, lParam)) return *result;
  return Default(message, wParam, lParam);
}

LRESULT Window::Default(UINT message, WPARAM wParam, LPARAM lParam) {
  return CallWindowProcW(original_, handle_, message, wParam, lParam);
}

std::optional<LRESULT> Window::Reflect(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND: {
      Window* const sender = Of(reinterpret_cast<HWND>(lParam));
      if (lParam == 0 || sender == nullptr) break;
      sender->OnCommand(HIWORD(wParam));
      return 0;
    }
    case WM_NOTIFY: {
      auto& header = *reinterpret_cast<NMHDR*>(lParam);
      Window* const sender = Of(header.hwndFrom);
      return sender != nullptr ? sender->OnNotify(header) : std::nullopt;
    }
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORSTATIC: {
      Window* const sender = Of(reinterpret_cast<HWND>(lParam));
      const HBRUSH brush = sender != nullptr ? sender->OnColor(message, reinterpret_cast<HDC>(wParam)) : nullptr;
      if (brush != nullptr) return reinterpret_cast<LRESULT>(brush);
      break;
    }
    default: break;
  }
  return std::nullopt;
}

}  // namespace brivane::win32
