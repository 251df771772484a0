#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tests/toolkits/conformance/Keys.h"
#include "tests/toolkits/conformance/TestDesign.h"
#include <brivane/controls/Control.h>
#include <brivane/controls/DrawnToolkit.h>
#include <brivane/controls/Form.h>
#include <brivane/controls/ListBox.h>
#include <brivane/controls/Surface.h>
#include <brivane/host/controls/Desktop.h>

/// What a person does with keyboard and mouse, for the tests that are written once for every toolkit with a screen.
///
/// A toolkit's test program compiles these files in and defines MakeHands().
namespace brivane::test {

/// A key in a message box: one that types no letter, a letter, or a letter with Alt.
struct BoxKey {
  std::optional<Key> key = {};
  char letter = '\0';
  bool alt = false;
  bool held = false;  ///< one of the repeats of a key that is held down
  std::chrono::milliseconds after{0};
};

/// A surface of kSurface on the screen, in the toolkit of the test program.
class Hands {
 public:
  virtual ~Hands() = default;

  [[nodiscard]] virtual host::Surface& Surface() = 0;
  [[nodiscard]] virtual controls::DrawnToolkit& Toolkit() = 0;
  /// Puts another surface of the toolkit in its place.
  virtual void Show(host::Surface& surface) = 0;
  /// Runs a script in the next form that is opened, and closes what it left open without asking.
  virtual void WhileOpen(std::function<void(controls::Form&)> script) = 0;

  virtual void Press(Key key, With with = With::None) = 0;
  /// A small letter, or a digit.
  virtual void PressAlt(char letter) = 0;
  virtual void Type(const std::string& text) = 0;
  virtual void Click(controls::AnyControl& control) = 0;
  /// Turns the wheel towards the person, with the pointer over a control.
  virtual void TurnWheel(controls::AnyControl& control, int notches) = 0;
  /// How many notches have reached what the surface stands in.
  [[nodiscard]] virtual int Scrolled() const = 0;
  /// Puts the focus there, as the window system does for no key or click.
  virtual void GiveFocus(controls::AnyControl& control) = 0;
  virtual void PickInOpenList(controls::ListBox& list, int index) = 0;
  virtual bool CommitPending() = 0;

  [[nodiscard]] virtual std::string Focused() const = 0;
  /// The entry that a list shows; below 0 for none.
  [[nodiscard]] virtual int ShownEntry(controls::ListBox& list) const = 0;
  /// What stands in the focused box, with its selection in brackets: "12[,50]".
  [[nodiscard]] virtual std::string FocusedText() const = 0;

  /// Does something that brings up a message box, in which these keys are pressed; false where they left it open, and
  /// it was closed in another way.
  [[nodiscard]] virtual bool AnswerBox(std::chrono::milliseconds pause, const std::vector<BoxKey>& keys,
                                       const std::function<void()>& bringUp) = 0;
  /// Asks, and gives what the keys answer; nothing where they do not.
  [[nodiscard]] std::optional<host::MessageAnswer> Ask(host::MessageStyle style, std::chrono::milliseconds pause,
                                                       const std::vector<BoxKey>& keys) {
    host::MessageAnswer answer{};
    const bool answered =
        AnswerBox(pause, keys, [&] { answer = Toolkit().Desktop().MessageBox("Vraag", "Wilt u dit?", style); });
    return answered ? std::optional(answer) : std::nullopt;
  }
  /// The texts that the last message box showed, from the top, as one.
  [[nodiscard]] virtual std::string Read() const = 0;
  /// What the host adds to questions from now on.
  virtual void AddToQuestions(const std::string& details) = 0;
};

/// Defined by the program.
[[nodiscard]] std::unique_ptr<Hands> MakeHands();

class ByHand : public testing::Test {
 protected:
  ByHand() : hands(MakeHands()) {}

  [[nodiscard]] controls::AnyControl& Control(std::string_view name, int index = frame::kNoIndex) {
    return *controls::Surface::Of(hands->Surface()).Find(name, index);
  }
  template <class T> [[nodiscard]] T& Get(std::string_view name, int index = frame::kNoIndex) {
    return dynamic_cast<T&>(Control(name, index));
  }

  std::unique_ptr<Hands> hands;
  host::Subscriptions subscriptions;
  std::vector<std::string> log;
};

}  // namespace brivane::test
