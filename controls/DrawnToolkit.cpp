#include "controls/DrawnToolkit.h"

#include "controls/RowChanges.h"
#include "frame/ErrorReport.h"

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

Outcome DrawnToolkit::Hand(AnyControl& control, const Action& action) {
  const std::shared_ptr<RowChanges> rows = RowChanges::Around(control);
  Outcome outcome = Outcome::Done;
  Guard([&] { outcome = control.Perform(action); });
  if (rows != nullptr && outcome != Outcome::Ignored) rows->Mark();
  return outcome;
}

}  // namespace brivane::controls
