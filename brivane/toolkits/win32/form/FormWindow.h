#pragma once

#include <memory>
#include <string>

#include <brivane/controls/Form.h>
#include <brivane/controls/FormSubject.h>
#include <brivane/toolkits/win32/form/RowTips.h>
#include <brivane/toolkits/win32/window/ControlWindow.h>

namespace brivane::win32 {

/// Shows a form as a modal window owned by the host's main window. A form larger than the screen scrolls.
/// Escape and the close box ask first where rows were changed, because they would be lost.
class FormWindow final : public controls::FormPeer, public Window, public AreaHolder {
 public:
  FormWindow(controls::Form& form, win32::Toolkit& toolkit);
  ~FormWindow() override;

  void Refresh(controls::Aspect aspect) override;
  void ShowModal(host::Hoofdvenster* eigenaar) override;
  void Unload() override;
  [[nodiscard]] HWND Area() const override;
  [[nodiscard]] bool IsOpen() const { return open_; }
  /// What the row of a control stands for, as a tool tip and a screen reader say it; empty on another surface.
  [[nodiscard]] static std::string RowText(const controls::AnyControl& control);
  [[nodiscard]] const RowTips* Tips() const { return tips_.get(); }

  /// Presses the first button of the form, which Enter stands for.
  void PressDefault();
  /// A person closes the window.
  void Close();

  /// Scrolls the form around a control so far that the control is seen; nothing on another surface.
  static void BringIntoView(const ControlWindow& control);

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  class AreaWindow;

  [[nodiscard]] static FormWindow* Of(const ControlWindow& control);
  [[nodiscard]] SIZE Inside() const;
  void Fit();
  void ScrollTo(POINT place);
  void OnScroll(int bar, int code);
  void GiveFocus();
  void TellSubject();
  void RunLoop();

  controls::Form& form_;
  std::unique_ptr<AreaWindow> area_;
  controls::FormSubject subject_;
  std::unique_ptr<RowTips> tips_;
  HWND focused_ = nullptr;  ///< where the focus was when the window was left
  POINT scrolled_{};
  bool open_ = false;
};

}  // namespace brivane::win32
