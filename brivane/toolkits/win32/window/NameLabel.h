#pragma once

#include <brivane/toolkits/win32/window/ControlWindow.h>

namespace brivane::win32 {

/// A fixed text of no size that stands before a box, a list or a report list: the standard accessibility
/// proxies of those take their name from the fixed text before them. It answers with the control's
/// accessible name at the moment it is asked, and with what its row stands for.
class NameLabel final : public Window {
 public:
  NameLabel(const controls::AnyControl& control, win32::Toolkit& toolkit);

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  const controls::AnyControl& control_;
};

}  // namespace brivane::win32
