#pragma once

#include <brivane/controls/Choices.h>
#include <brivane/controls/Plain.h>
#include <brivane/toolkits/win32/window/ControlWindow.h>

/// The button classes of Windows: push button, option and check box. What they show is what the control holds;
/// a click asks the control, and changes nothing by itself.
namespace brivane::win32 {

class ButtonWindow : public ControlWindow {
 protected:
  ButtonWindow(controls::AnyControl& control, win32::Toolkit& toolkit, DWORD kind);
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void OnCommand(int code) override;
  /// A person clicked it, or pressed the space bar in it.
  virtual void OnClick() = 0;

 private:
  bool gettingFocus_ = false;
};

class PushWindow final : public ButtonWindow {
 public:
  PushWindow(controls::Button& button, win32::Toolkit& toolkit);
  void Refresh(controls::Aspect aspect) override;
  void Choose() override;
  /// Presses it as a person does.
  void Press();
  /// Shows it as the button that Enter presses.
  void ShowDefault() const;

 protected:
  bool OnKey(WPARAM key) override;
  void OnClick() override { Press(); }

 private:
  controls::Button& button_;
};

class OptionWindow final : public ButtonWindow {
 public:
  OptionWindow(controls::OptionButton& option, win32::Toolkit& toolkit);
  void Refresh(controls::Aspect aspect) override;
  void Choose() override;

 protected:
  void OnClick() override;

 private:
  controls::OptionButton& option_;
};

class CheckWindow final : public ButtonWindow {
 public:
  CheckWindow(controls::CheckBox& check, win32::Toolkit& toolkit);
  void Refresh(controls::Aspect aspect) override;
  void Choose() override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void OnClick() override;

 private:
  void DrawFocus() const;

  controls::CheckBox& check_;
  bool busy_ = false;  ///< handling a message
};

}  // namespace brivane::win32
