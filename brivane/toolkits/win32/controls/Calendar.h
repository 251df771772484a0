#pragma once

#include <functional>

#include <brivane/host/Date.h>
#include <brivane/toolkits/win32/window/Window.h>

namespace brivane::win32 {

/// A month calendar in a window of its own that never takes the focus. What it picks is told after the click
/// is over, so that the receiver may destroy it.
class Calendar final : public Window {
 public:
  /// The days that a calendar begins with.
  struct Days {
    host::Date shown;
    host::Date today;  ///< marked, and named below the month
  };

  /// Below a box, or above it where there is no room.
  Calendar(win32::Toolkit& toolkit, HWND box, Days days, HFONT font, std::function<void(host::Date)> picked);

  [[nodiscard]] host::Date Selected() const;
  void Select(host::Date date) const;
  /// Moves the selected day by a key: arrows, Page Up and Page Down (with Control by a year), Home for today. False for
  /// a key that moves nothing.
  bool Move(WPARAM key) const;
  [[nodiscard]] HWND Month() const { return month_; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  HWND month_;
  host::Date today_;
  std::function<void(host::Date)> picked_;
};

}  // namespace brivane::win32
