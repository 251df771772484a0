#include <sstream>

#include "tests/toolkits/conformance/Screen.h"
#include "tests/toolkits/web/Stage.h"

namespace brivane::test {
namespace {

class WebUnderTest final : public ScreenUnderTest {
 public:
  [[nodiscard]] web::Toolkit& Toolkit() override { return stage_.Toolkit(); }

  void Settle() override { stage_.Settle(); }
  void Show(controls::Surface& surface) override { stage_.Show(surface); }
  void Gesture(controls::AnyControl& control, const controls::Action& action) override {
    stage_.Gesture(control, action);
  }
  void WhileOpen(std::function<void(controls::Form&)> script) override { stage_.WhileOpen(std::move(script)); }
  [[nodiscard]] std::vector<controls::ControlDump> Shown(const controls::Surface& surface) override {
    return DumpShown(surface, stage_);
  }

  void Press(Key key, With with) override { stage_.Press(key, with); }
  void Press(char key, With with) override { stage_.Press(key, with); }
  void Type(const std::string& text) override { stage_.Type(text); }
  void Click(controls::AnyControl& control) override { stage_.Click(control); }
  void Copy(const std::string& text) override { stage_.Do("copy " + text); }
  void LeaveWindow() override { stage_.Do("leave"); }
  void ReturnToWindow() override { stage_.Do("return"); }
  void ClickCalendarButton(controls::AnyControl& box) override { stage_.Click(box, Stage::Where::RightEnd); }
  void ClickRow(controls::AnyControl& list, int row) override { stage_.Do("click " + stage_.Look("row", &list, row)); }
  void CloseWindow(controls::Form& form) override { stage_.Do("click " + stage_.Look("close", &form)); }

  [[nodiscard]] std::string Focused() override { return stage_.Look("focused"); }
  [[nodiscard]] std::string Typed(controls::AnyControl& box) override { return stage_.Look("typed", &box); }
  [[nodiscard]] std::string Reason(controls::AnyControl& box) override { return stage_.Look("reason", &box); }
  [[nodiscard]] std::string Note(controls::AnyControl& box) override { return stage_.Look("note", &box); }
  [[nodiscard]] std::string TitleOf(controls::Form& form) override { return stage_.Look("title", &form); }
  [[nodiscard]] std::string TipOf(controls::AnyControl& box) override { return stage_.Look("tip", &box); }
  [[nodiscard]] bool CalendarIsOpen(controls::AnyControl& box) override { return stage_.Sees("calendar", &box); }
  [[nodiscard]] std::string Help() override { return stage_.Look("help"); }
  [[nodiscard]] std::vector<int> MarkedRows(controls::AnyControl& list) override {
    std::istringstream marked(stage_.Look("marked", &list));
    std::vector<int> rows;
    for (int row = 0; marked >> row;) rows.push_back(row);
    return rows;
  }
  [[nodiscard]] bool IsOpen(controls::Form& form) override { return stage_.Sees("open", &form); }
  [[nodiscard]] bool IsBare() override { return stage_.Sees("bare"); }
  void Answer(std::function<host::MessageAnswer(const std::string& title, const std::string& text, host::MessageStyle)>
                  answer) override {
    Toolkit().Desktop().answer = std::move(answer);
  }
  void SetToday(host::Date today) override { Toolkit().Desktop().today = today; }

 private:
  Stage stage_;
};

}  // namespace

std::vector<Subject> Subjects() {
  const auto make = [] { return std::make_unique<WebUnderTest>(); };
  return {{"WebDoor", make, Way::Door}, {"WebGesture", make, Way::Gesture}};
}

std::vector<ScreenSubject> Screens() {
  return {{"Web", [] { return std::make_unique<WebUnderTest>(); }}};
}

}  // namespace brivane::test
