#pragma once

#include "toolkits/headless/Choices.h"
#include "toolkits/headless/Plain.h"
#include "toolkits/win32/ControlWindow.h"

/// The button classes of Windows: push button, option and check box. What they show is what the control holds;
/// a click asks the control, and changes nothing by itself.
namespace brivane::win32 {

class ButtonWindow : public ControlWindow {
 protected:
  ButtonWindow(headless::AnyControl& control, win32::Toolkit& toolkit, DWORD kind);
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void OnCommand(int code) override;
  /// A person clicked it, or pressed the space bar in it.
  virtual void OnClick() = 0;

 private:
  bool gettingFocus_ = false;
};

class PushWindow final : public ButtonWindow {
 public:
  PushWindow(headless::Button& button, win32::Toolkit& toolkit);
  void Refresh(headless::Aspect aspect) override;
  void Choose() override;
  /// Presses it as a person does.
  void Press();
  /// Shows it as the button that Enter presses.
  void ShowDefault() const;

 protected:
  bool OnKey(WPARAM key) override;
  void OnClick() override { Press(); }

 private:
  headless::Button& button_;
};

class OptionWindow final : public ButtonWindow {
 public:
  OptionWindow(headless::OptionButton& option, win32::Toolkit& toolkit);
  void Refresh(headless::Aspect aspect) override;
  void Choose() override;

 protected:
  void OnClick() override;

 private:
  headless::OptionButton& option_;
};

class CheckWindow final : public ButtonWindow {
 public:
  CheckWindow(headless::CheckBox& check, win32::Toolkit& toolkit);
  void Refresh(headless::Aspect aspect) override;
  void Choose() override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void OnClick() override;

 private:
  void DrawFocus() const;

  headless::CheckBox& check_;
  bool busy_ = false;  ///< handling a message
};

}  // namespace brivane::win32
