#include <chrono>
#include <ctime>

#include <brivane/frame/Calendar.h>
#include <brivane/frame/GroupedNumber.h>
#include <brivane/toolkits/memory/Desktop.h>

namespace brivane::memory {

host::MessageAnswer Desktop::MessageBox(const std::string& boxTitle, const std::string& text,
                                        host::MessageStyle style) {
  const bool question = style == host::MessageStyle::YesNoQuestion;
  life_->Check();
  const host::MessageAnswer given = answer     ? answer(boxTitle, text, style)
                                    : question ? host::MessageAnswer::No
                                               : host::MessageAnswer::Ok;
  life_->Check();
  return given;
}

host::Date Desktop::Today() const {
  if (!today.IsNone()) return today;
  const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  const std::tm local = *std::localtime(&now);
  return frame::MakeDate({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday});
}

void Desktop::DoPendingEvents() {
  life_->Check();
  if (pending) pending();
  life_->Check();
}

std::string Desktop::FormatWhole(double number) const { return frame::FormatGrouped(number, groupSeparator); }

}  // namespace brivane::memory
