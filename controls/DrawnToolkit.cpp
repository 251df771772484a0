#include "controls/DrawnToolkit.h"

#include "frame/ErrorReport.h"

namespace brivane::controls {

void DrawnToolkit::Guard(const std::function<void()>& body) {
  try {
    body();
  } catch (...) {
    const host::Error failure = frame::CurrentError();
    if (failureListener_) return failureListener_(failure);
    ShowFailure(
        std::string(frame::kReportCaption),
        std::string(frame::kReportMessage) + "\r\n" + std::to_string(failure.Number()) + ": " + failure.Description());
  }
}

}  // namespace brivane::controls
