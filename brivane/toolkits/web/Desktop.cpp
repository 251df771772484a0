#include <brivane/frame/GroupedNumber.h>
#include <brivane/toolkits/web/Desktop.h>

namespace brivane::web {

host::MessageAnswer Desktop::MessageBox(const std::string& boxTitle, const std::string& text,
                                        host::MessageStyle style) {
  const controls::Life::Call call(life_);
  life_->Check();
  const bool question = style == host::MessageStyle::YesNoQuestion;
  const std::string below = question && details && !answer ? details(boxTitle, text) : "";
  life_->Check();
  const host::MessageAnswer given =
      Show(Says::Controls, boxTitle, below.empty() ? text : text + "\r\n\r\n" + below, style);
  life_->Check();
  return given;
}

host::MessageAnswer Desktop::Ask(const std::string& boxTitle, const std::string& text, host::MessageStyle style) {
  return Show(Says::Toolkit, boxTitle, text, style);
}

host::MessageAnswer Desktop::Show(Says who, const std::string& boxTitle, const std::string& text,
                                  host::MessageStyle style) {
  if (answer) return answer(boxTitle, text, style);
  const bool question = style == host::MessageStyle::YesNoQuestion;
  Box box{{pause, Page::Now()}, question ? host::MessageAnswer::No : host::MessageAnswer::Ok};
  const int number = ++last_;
  if (life_->Ended() || !CanWait() || !page_.OpenBox(number, static_cast<int>(style), who, boxTitle, text))
    return box.given;
  boxes_[number] = &box;
  const controls::Life::AtEnd close(*life_, [&] { Answered(number, box.given); });
  box.waiting.Wait();
  return box.given;
}

void Desktop::Answered(int box, host::MessageAnswer given) {
  const auto open = boxes_.find(box);
  if (open == boxes_.end()) return;
  open->second->given = given;
  open->second->waiting.End();
  boxes_.erase(open);
  page_.CloseBox(box);
}

bool Desktop::IsMeant(int box, controls::KeysUnderWay::Press press, std::chrono::milliseconds ago) {
  const auto open = boxes_.find(box);
  return open != boxes_.end() && open->second->keys.IsMeant(Page::Now() - ago, press);
}

void Desktop::DoPendingEvents() {
  life_->Check();
  if (pending) {
    pending();
  } else if (CanWait()) {
    Waiting back;
    const int number = ++last_;
    pauses_[number] = &back;
    const controls::Life::AtEnd close(*life_, [&] { CameBack(number); });
    page_.ComeBack(number);
    back.Wait();
  }
  life_->Check();
}

void Desktop::CameBack(int waiting) {
  const auto found = pauses_.find(waiting);
  if (found == pauses_.end()) return;
  found->second->End();
  pauses_.erase(found);
}

std::string Desktop::FormatWhole(double number) const {
  return frame::FormatGrouped(number, groupSeparator ? *groupSeparator : Page::GroupSeparator());
}

}  // namespace brivane::web
