#pragma once

#include <brivane/controls/Plain.h>
#include <brivane/toolkits/win32/window/ControlWindow.h>
#include <brivane/toolkits/win32/window/HelpTip.h>

namespace brivane::win32 {

/// A help icon that shows its text on hover, on focus by keyboard and on a click. It is a push button of
/// Windows that paints itself; its text for a screen reader is "Help: " and the help.
class HintWindow final : public ControlWindow {
 public:
  HintWindow(controls::Hint& hint, win32::Toolkit& toolkit);
  void FocusByKey() override;
  void ShowHelp();
  [[nodiscard]] const HelpTip& Tip() const { return tip_; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  bool OnKey(WPARAM key) override;

 private:
  void AwaitHover() const;
  void Paint(HDC context) const;

  controls::Hint& hint_;
  HelpTip tip_;
};

}  // namespace brivane::win32
