#pragma once

#include <brivane/controls/Choices.h>
#include <brivane/toolkits/win32/window/ControlWindow.h>

namespace brivane::win32 {

/// A toggle of two halves, "Ja" and "Nee". A click picks the half; the arrows, J and N pick one; the space bar
/// picks the other one.
///
/// It is a check box of Windows that paints itself, so that a screen reader finds one, ticked for "Ja", with
/// the control's accessible name for its text.
class ToggleWindow final : public ControlWindow {
 public:
  ToggleWindow(controls::JaNee& toggle, win32::Toolkit& toolkit);
  void Refresh(controls::Aspect aspect) override;
  /// What it shows: host::kJa or host::kNee.
  [[nodiscard]] int Shown() const { return shown_; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  bool OnKey(WPARAM key) override;

 private:
  void Pick(int value);
  void Paint(HDC context);
  void PaintHalf(HDC context, const RECT& half, int value) const;

  controls::JaNee& toggle_;
  int shown_ = host::kNee;
};

}  // namespace brivane::win32
