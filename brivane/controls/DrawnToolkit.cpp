#include <brivane/controls/DrawnToolkit.h>
#include <brivane/controls/RowChanges.h>
#include <brivane/frame/ErrorReport.h>

namespace brivane::controls {

void DrawnToolkit::Guard(const std::function<void()>& body) {
  const controls::Life::Call call(Life());
  try {
    controls::Life::Run(Life(), body);
  } catch (...) {
    const host::Error failure = frame::CurrentError();
    Desktop().ProcedureFailed.Raise();
    if (failureListener_) return failureListener_(failure);
    const std::string what = std::to_string(failure.Number()) + ": " + failure.Description();
    (void)Ask(std::string(frame::kReportCaption), std::string(frame::kReportMessage) + "\r\n" + what,
              host::MessageStyle::OkExclamation);
  }
}

FormSubject DrawnToolkit::Subject() {
  try {
    return subjectTeller_ ? subjectTeller_() : FormSubject();
  } catch (const host::Error&) {
    return {};  // a box that holds nothing of its kind tells nothing
  }
}

frame::Phrase DrawnToolkit::ReasonOfFailure() const {
  return reasonTeller_ ? reasonTeller_() : frame::TextId::NotStored;
}

Outcome DrawnToolkit::Hand(AnyControl& control, const Action& action) {
  const std::shared_ptr<RowChanges> rows = RowChanges::Around(control);
  // The control may be gone when the action comes back.
  const RowChanges::Stays stays = rows != nullptr ? RowChanges::WhatStays(control) : RowChanges::Stays::Nothing;
  Outcome outcome = Outcome::Done;
  Guard([&] { outcome = control.Perform(action); });
  if (rows == nullptr || outcome == Outcome::Ignored) return outcome;
  rows->Mark(outcome == Outcome::Done ? stays : RowChanges::Stays::Nothing);
  return outcome;
}

}  // namespace brivane::controls
