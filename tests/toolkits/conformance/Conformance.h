#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "tests/toolkits/conformance/TestDesign.h"
#include <brivane/controls/Choices.h>
#include <brivane/controls/Dump.h>
#include <brivane/controls/Form.h>
#include <brivane/controls/ListBox.h>
#include <brivane/controls/ListView.h>
#include <brivane/controls/Plain.h>
#include <brivane/controls/TextBox.h>
#include <brivane/toolkits/memory/Toolkit.h>

/// What every toolkit does alike, as tests that are written once.
///
/// A toolkit's test program compiles these files in, wraps its toolkit, and names the ways in which a
/// person's actions reach its controls, by defining Subjects():
///
///     std::vector<Subject> Subjects() { return {{"Memory", &MakeMemory, Way::Door}}; }
namespace brivane::test {

/// A toolkit and the little that the tests need to work it.
class ToolkitUnderTest {
 public:
  virtual ~ToolkitUnderTest() = default;

  [[nodiscard]] virtual controls::ToolkitBase& Toolkit() = 0;
  /// Lets the toolkit finish what it has under way. Called after everything the tests do.
  virtual void Settle() {}
  /// Puts a surface on the screen, so that gestures reach it.
  virtual void Show(controls::Surface&) {}
  /// Does an action by the events of a real mouse and keyboard. Where nothing can be hit (a hidden or
  /// disabled control) it tries nevertheless.
  virtual void Gesture(controls::AnyControl&, const controls::Action&) {}
  /// Runs while the next forms are open.
  virtual void WhileOpen(std::function<void(controls::Form&)> script) = 0;
  /// What is really on the surface.
  [[nodiscard]] virtual std::vector<controls::ControlDump> Shown(const controls::Surface& surface) {
    return controls::DumpAll(surface);
  }
};

/// How a person's action reaches the control.
enum class Way { Door, Gesture };

struct Subject {
  std::string name;
  std::function<std::unique_ptr<ToolkitUnderTest>()> make;
  Way way = Way::Door;
};

/// The toolkit of the test program, once for each way. Defined by the program.
[[nodiscard]] std::vector<Subject> Subjects();

inline std::ostream& operator<<(std::ostream& out, const Subject& subject) { return out << subject.name; }
inline std::string SubjectName(const testing::TestParamInfo<Subject>& info) { return info.param.name; }

/// A fresh toolkit and a surface of kSurface.
class Conformance : public testing::TestWithParam<Subject> {
 protected:
  Conformance();

  /// A control of the surface as its implementation.
  template <class T> [[nodiscard]] T& Get(std::string_view name, int index = frame::kNoIndex) {
    return Get<T>(Area(), name, index);
  }
  template <class T>
  [[nodiscard]] static T& Get(controls::Surface& surface, std::string_view name, int index = frame::kNoIndex) {
    controls::AnyControl* control = surface.Find(name, index);
    if (control == nullptr) throw std::logic_error("no control " + std::string(name));
    return dynamic_cast<T&>(*control);
  }
  [[nodiscard]] controls::Surface& Area() { return controls::Surface::Of(*surface); }

  /// A person acts, in the way under test; everything that follows has happened when this returns.
  void Act(controls::AnyControl& control, const controls::Action& action);
  /// The same through the door alone, for what no real gesture can do.
  controls::Outcome Door(controls::AnyControl& control, const controls::Action& action);
  /// The state of a control as the toolkit really shows it.
  [[nodiscard]] controls::ControlDump Shown(std::string_view elementName);

  std::unique_ptr<ToolkitUnderTest> subject;
  std::unique_ptr<host::Surface> surface;
  host::Subscriptions subscriptions;
  std::vector<std::string> log;  ///< what the listeners of a test heard, in order
};

/// The number of the Error that a call throws, or 0.
template <class Call> int ErrorOf(Call&& call) {
  try {
    call();
  } catch (const host::Error& error) {
    return error.Number();
  }
  return 0;
}

}  // namespace brivane::test
