#pragma once

#include <functional>

#include <brivane/host/Date.h>
#include <brivane/toolkits/win32/window/Window.h>

namespace brivane::win32 {

/// A month calendar in a window of its own that never takes the focus. What it picks is told after the click
/// is over, so that the receiver may destroy it.
class Calendar final : public Window {
 public:
  /// Below a box, or above it where there is no room; shows the month of a date.
  Calendar(win32::Toolkit& toolkit, HWND box, host::Date date, HFONT font, std::function<void(host::Date)> picked);

  [[nodiscard]] host::Date Selected() const;
  void Select(host::Date date) const;
  /// Moves the selected day by a key; false for a key that moves nothing.
  bool Move(WPARAM key) const;
  [[nodiscard]] HWND Month() const { return month_; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  HWND month_;
  std::function<void(host::Date)> picked_;
};

}  // namespace brivane::win32
