#pragma once

#include <brivane/toolkits/win32/window/WindowsApi.h>

#include <algorithm>
#include <vector>

namespace brivane::win32 {

/// While it exists, the other windows of the thread and the owner of a form take no input.
class OthersDisabled {
 public:
  OthersDisabled(HWND form, HWND owner) : form_(form) {
    EnumThreadWindows(GetCurrentThreadId(), &Collect, reinterpret_cast<LPARAM>(this));
    if (owner != nullptr && std::find(windows_.begin(), windows_.end(), owner) == windows_.end() &&
        IsWindowEnabled(owner) != FALSE)
      windows_.push_back(owner);
    for (const HWND window : windows_) EnableWindow(window, FALSE);
  }
  OthersDisabled(const OthersDisabled&) = delete;
  OthersDisabled& operator=(const OthersDisabled&) = delete;
  ~OthersDisabled() {
    for (const HWND window : windows_) EnableWindow(window, TRUE);
  }

 private:
  static BOOL CALLBACK Collect(HWND window, LPARAM self) {
    auto& others = *reinterpret_cast<OthersDisabled*>(self);
    if (window != others.form_ && IsWindowVisible(window) != FALSE && IsWindowEnabled(window) != FALSE)
      others.windows_.push_back(window);
    return TRUE;
  }

  HWND form_;
  std::vector<HWND> windows_;
};

}  // namespace brivane::win32
