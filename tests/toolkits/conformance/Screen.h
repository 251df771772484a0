#pragma once

#include <gmock/gmock.h>

#include "tests/toolkits/conformance/Conformance.h"
#include "tests/toolkits/conformance/Keys.h"
#include <brivane/controls/DrawnToolkit.h>

/// What every toolkit with a screen does alike when a person works it with keys and mouse.
///
/// Its test program compiles these files in as well, and names its toolkit by defining Screens().
namespace brivane::test {

/// A toolkit with a screen, and a person before it: what he does goes through the events of the window system, and
/// what he sees is what stands on the screen.
class ScreenUnderTest : public ToolkitUnderTest {
 public:
  [[nodiscard]] controls::DrawnToolkit& Toolkit() override = 0;

  /// Presses and releases a key. Where it goes is for the focus to say, as for everything that is typed.
  virtual void Press(Key key, With with = With::None) = 0;
  /// The key of a capital letter or a digit.
  virtual void Press(char key, With with = With::None) = 0;
  virtual void Type(const std::string& text) = 0;
  /// Replaces what stands in the focused box.
  void TypeOver(const std::string& text);
  /// Clicks at the left end of a control.
  virtual void Click(controls::AnyControl& control) = 0;
  /// Puts a text on the clipboard.
  virtual void Copy(const std::string& text) = 0;
  /// Goes to another window of the program, and comes back.
  virtual void LeaveWindow() = 0;
  virtual void ReturnToWindow() = 0;
  /// Clicks on the button that drops the calendar of a date box down.
  virtual void ClickCalendarButton(controls::AnyControl& box) = 0;
  /// Clicks on a row of a list, from 1.
  virtual void ClickRow(controls::AnyControl& list, int row) = 0;
  /// Clicks on the close box of the window of a form.
  virtual void CloseWindow(controls::Form& form) = 0;

  /// Name of the control with the focus; empty where none has it.
  [[nodiscard]] virtual std::string Focused() = 0;
  /// What stands in a box.
  [[nodiscard]] virtual std::string Typed(controls::AnyControl& box) = 0;
  /// The reason beside a box; empty where there is none.
  [[nodiscard]] virtual std::string Reason(controls::AnyControl& box) = 0;
  /// The note beside a box; empty where there is none.
  [[nodiscard]] virtual std::string Note(controls::AnyControl& box) = 0;
  /// What the window of a form says at its top.
  [[nodiscard]] virtual std::string TitleOf(controls::Form& form) = 0;
  /// What the tool tip of a row says over one of its boxes; empty where there is none.
  [[nodiscard]] virtual std::string TipOf(controls::AnyControl& box) = 0;
  [[nodiscard]] virtual bool CalendarIsOpen(controls::AnyControl& box) = 0;
  /// The help that is shown; empty where there is none.
  [[nodiscard]] virtual std::string Help() = 0;
  /// The rows of a list that are marked, from 1.
  [[nodiscard]] virtual std::vector<int> MarkedRows(controls::AnyControl& list) = 0;
  [[nodiscard]] virtual bool IsOpen(controls::Form& form) = 0;
  /// Nothing of any surface is left in the window.
  [[nodiscard]] virtual bool IsBare() = 0;

  /// Moves the focus by code.
  void GiveFocus(controls::AnyControl& control);
  /// Answers every message box.
  virtual void Answer(
      std::function<host::MessageAnswer(const std::string& title, const std::string& text, host::MessageStyle)>) = 0;
  /// From now on it is that day.
  virtual void SetToday(host::Date today) = 0;
  /// Lets the program run until something is so, but not for ever.
  [[nodiscard]] bool Await(const std::function<bool()>& so);
};

struct ScreenSubject {
  std::string name;
  std::function<std::unique_ptr<ScreenUnderTest>()> make;
};

/// The toolkit of the test program. Defined by the program.
[[nodiscard]] std::vector<ScreenSubject> Screens();

inline std::ostream& operator<<(std::ostream& out, const ScreenSubject& subject) { return out << subject.name; }
inline std::string ScreenName(const testing::TestParamInfo<ScreenSubject>& info) { return info.param.name; }

/// A surface of kSurface on the screen. `log` holds what its boxes hand over and what message boxes say.
class OnScreen : public testing::TestWithParam<ScreenSubject> {
 protected:
  OnScreen();

  [[nodiscard]] controls::AnyControl& Control(std::string_view name, int index = frame::kNoIndex);
  template <class T> [[nodiscard]] T& Get(std::string_view name, int index = frame::kNoIndex) {
    return dynamic_cast<T&>(Control(name, index));
  }
  [[nodiscard]] controls::TextBox& Box(std::string_view name) { return Get<controls::TextBox>(name); }
  /// Notes each Validation of a box; refuses while `refuse` stands.
  void Follow(std::string_view name);

  void Press(Key key, With with = With::None) { subject->Press(key, with); }
  void Press(char key, With with = With::None) { subject->Press(key, with); }
  void TypeOver(const std::string& text) { subject->TypeOver(text); }
  void Click(std::string_view name) { subject->Click(Control(name)); }
  [[nodiscard]] std::string Focused() { return subject->Focused(); }
  [[nodiscard]] std::string Typed(std::string_view name) { return subject->Typed(Control(name)); }
  [[nodiscard]] std::string Reason(std::string_view name) { return subject->Reason(Control(name)); }
  [[nodiscard]] std::string Note(std::string_view name) { return subject->Note(Control(name)); }

  std::unique_ptr<ScreenUnderTest> subject;
  std::unique_ptr<host::Surface> surface;
  host::Subscriptions subscriptions;
  std::vector<std::string> log;
  bool refuse = false;
};

}  // namespace brivane::test
