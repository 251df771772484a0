#include "tests/support/ControlTest.h"

namespace brivane::test {

Lines Only(const Lines& lines, std::string_view kind) {
  Lines found;
  for (const std::string& line : lines)
    if (line.starts_with(kind) && line.size() > kind.size() && line[kind.size()] == ' ') found.push_back(line);
  return found;
}

ControlTest::ControlTest(const frame::Design& design) : surface_(toolkit_.MakeSurface(design)), on_(*surface_) {
  memory::Desktop& desktop = toolkit_.Desktop();
  desktop.today = D(2026, 11, 21);
  desktop.answer = [this](const std::string& title, const std::string& text, host::MessageStyle style) {
    host_.calls.Add("message " + title + '|' + text + '|' + std::to_string(static_cast<int>(style)));
    if (!answers_.empty()) {
      const host::MessageAnswer answer = answers_.front();
      answers_.pop_front();
      return answer;
    }
    return style == host::MessageStyle::YesNoQuestion ? host::MessageAnswer::No : host::MessageAnswer::Ok;
  };
  desktop.pending = [this] {
    host_.calls.Add("pending");
    if (pending_) pending_();
  };
  toolkit_.focusMoved = [this](controls::AnyControl& control) { host_.calls.Add("focus " + control.ElementName()); };
}

controls::Outcome ControlTest::Try(host::Control& control, const controls::Action& action) {
  return controls::AnyControl::Of(control).Perform(action);
}

bool ControlTest::Act(host::Control& control, const controls::Action& action) {
  const controls::Outcome outcome = Try(control, action);
  EXPECT_NE(outcome, controls::Outcome::Ignored) << control.Name();
  return outcome == controls::Outcome::Refused;
}

}  // namespace brivane::test
