#pragma once

#include "tests/support/RecordingScenario.h"
#include "tests/toolkits/conformance/Screen.h"
#include <brivane/scenario/frmScenario.h>

namespace brivane::test {

/// The form with its rows, on the screen.
class FormOnScreen : public OnScreen {
 protected:
  FormOnScreen() {
    scenario->basis = 100;
    subject->Answer([this](const std::string& title, const std::string& text, host::MessageStyle) {
      messages.push_back(title + ": " + text);
      return answer;
    });
  }

  /// Opens the form, runs a script in it, and closes what it left open without asking.
  void Open(int rows, const std::function<void()>& script, bool korting = false) {
    frmScenario formulier(subject->Toolkit());
    form = &formulier;
    for (const int row : disabled) formulier.SetDisableJaar(static_cast<std::int16_t>(row), true);
    formulier.Invoeren(scenario, static_cast<std::int16_t>(rows), 0, 0, false, korting, maximum);
    bool ran = false;
    subject->WhileOpen([&](controls::Form& open) {
      EXPECT_EQ(&open, &Window());
      subject->Settle();
      script();
      ran = true;
      closed = !subject->IsOpen(open);
      EXPECT_EQ(open.IsUnloaded(), closed);
    });
    formulier.ShowModal(nullptr);
    EXPECT_TRUE(ran);
    form = nullptr;
  }

  [[nodiscard]] controls::Form& Window() { return dynamic_cast<controls::Form&>(form->Form()); }
  [[nodiscard]] bool IsOpen() { return subject->IsOpen(Window()); }
  [[nodiscard]] controls::AnyControl& Cell(std::string_view name, int row = frame::kNoIndex) {
    return *Window().Find(name, row);
  }
  void Click(controls::AnyControl& control) { subject->Click(control); }
  void Tick(controls::AnyControl& control) {
    subject->Gesture(control, controls::Tick{host::kTicked});
    subject->Settle();
  }
  /// Pastes a text from the clipboard.
  void Paste(const std::string& text) {
    subject->Copy(text);
    Press('V', With::Control);
  }
  [[nodiscard]] double Amount(int row) { return dynamic_cast<controls::TextBox&>(Cell("txtBedrag", row)).Number(); }
  [[nodiscard]] controls::AnyControl& Current() {
    const std::string name = Focused();
    const std::size_t bracket = name.find('(');
    return Cell(name.substr(0, bracket), std::stoi(name.substr(bracket + 1)));
  }
  /// Of the box with the focus.
  [[nodiscard]] std::string Typed() { return subject->Typed(Current()); }
  [[nodiscard]] std::string Reason() { return subject->Reason(Current()); }

  std::shared_ptr<tests::RecordingScenario> scenario = std::make_shared<tests::RecordingScenario>();
  std::vector<int> disabled;
  std::vector<std::string> messages;
  host::MessageAnswer answer = host::MessageAnswer::No;
  double maximum = 0;
  frmScenario* form = nullptr;
  bool closed = false;
};

}  // namespace brivane::test
