#include "component/objects/Later.h"

#include <memory>
#include <utility>

#include "component/automation/Module.h"
#include <brivane/toolkits/win32/window/Owned.h>

namespace brivane::component {

namespace {

constexpr UINT kDo = WM_APP;

/// A task and the window that it waits at. The library stays in memory until it is done.
struct Waiting : private module::LiveObject {
  explicit Waiting(std::function<void()> what) : task(std::move(what)) {}
  std::function<void()> task;
};

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wide, LPARAM lng) {
  if (message != kDo) return DefWindowProcW(window, message, wide, lng);
  const std::unique_ptr<Waiting> waiting(reinterpret_cast<Waiting*>(lng));
  win32::OwnedWindow(window).Reset();
  waiting->task();
  return 0;
}

}  // namespace

void DoLater(std::function<void()> task) {
  auto waiting = std::make_unique<Waiting>(std::move(task));
  // A window of a class of the system's own: one of ours would have to be given up before the library goes.
  win32::OwnedWindow window(
      CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr));
  if (!window) return;
  SetWindowLongPtrW(window.Get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure));
  if (!PostMessageW(window.Get(), kDo, 0, reinterpret_cast<LPARAM>(waiting.get()))) return;
  // The message has both.
  (void)waiting.release();
  (void)window.Release();
}

}  // namespace brivane::component
