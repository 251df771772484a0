#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "tests/toolkits/conformance/Keys.h"
#include <brivane/controls/Action.h>
#include <brivane/controls/Dump.h>
#include <brivane/controls/Form.h>
#include <brivane/toolkits/web/Toolkit.h>

/// A toolkit on an element of the page, and a person before it: what he does goes through the input of the browser, and
/// what he sees is what stands in the page. What takes the browser time is waited for in the test's own turn, while the
/// page goes on.
namespace brivane::test {

/// How a letter, a digit or another key is named to the browser.
[[nodiscard]] std::string NameOf(Key key, With with = With::None);
[[nodiscard]] std::string NameOf(char key, With with);

class Stage {
 public:
  Stage();
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;
  ~Stage();

  [[nodiscard]] web::Toolkit& Toolkit() { return toolkit_; }
  /// Puts a surface of the toolkit in the place of what was shown before.
  void Show(controls::Surface& surface);
  /// What was shown last; letters that are pressed in no form lead to what stands there.
  [[nodiscard]] controls::Surface& Shown() { return *shown_; }
  /// Runs while the next form is open, in a turn of its own.
  void WhileOpen(std::function<void(controls::Form&)> script) { whileOpen_ = std::move(script); }
  /// The same of the next message box.
  void WhileAsked(std::function<void()> script) { whileAsked_ = std::move(script); }

  /// Has something done, and comes back when it has been: "press Shift+Tab", "type 12", "focus 7".
  void Do(const std::string& what) const;
  /// What is to be seen of an element: "focused", "typed".
  [[nodiscard]] std::string Look(std::string_view what, const controls::AnyControl* control = nullptr,
                                 int number = 0) const;
  [[nodiscard]] bool Sees(std::string_view what, const controls::AnyControl* control = nullptr) const;

  void Settle() const { Do("settle"); }
  void Press(Key key, With with = With::None) const { Do("press " + NameOf(key, with)); }
  void Press(char key, With with = With::None) const { Do("press " + NameOf(key, with)); }
  void Type(const std::string& text) const { Do("type " + text); }
  /// Clicks on a part of what shows a control, or where that would stand.
  enum class Where { Middle, LeftEnd, LeftQuarter, RightQuarter, RightEnd };
  void Click(const controls::AnyControl& control, Where where = Where::LeftEnd) const;
  void TurnWheel(const controls::AnyControl& control, int notches) const;
  /// Does an action by mouse and keyboard.
  void Gesture(controls::AnyControl& control, const controls::Action& action) const;

  /// The stage of a page; nothing where it is gone.
  [[nodiscard]] static Stage* Find(int page);
  /// A form or a message box has come on the screen.
  void Opened(web::NodeId form);
  void Asked(int box);

 private:
  /// An element of the page, as long as it is needed.
  struct Element {
    Element();
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;
    ~Element();
    int page;
  };

  Element element_;
  web::Toolkit toolkit_{element_.page};
  controls::Surface* shown_ = nullptr;
  std::function<void(controls::Form&)> whileOpen_;
  std::function<void()> whileAsked_;
};

/// The number of the element that shows a control, or of the dialog of a form.
[[nodiscard]] web::NodeId NodeOf(const controls::AnyControl& control);

/// The controls of a surface as the page shows them.
[[nodiscard]] std::vector<controls::ControlDump> DumpShown(const controls::Surface& surface, const Stage& stage);

}  // namespace brivane::test
