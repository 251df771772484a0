#pragma once

#include <functional>
#include <string>

#include "controls/ToolkitBase.h"
#include "host/Error.h"

namespace brivane::controls {

/// A toolkit that shows its controls: what a person does there comes from an event loop, across which no
/// exception may go.
class DrawnToolkit : public ToolkitBase {
 public:
  using FailureListener = std::function<void(const host::Error& failure)>;

  /// Where a failure goes that no procedure handled: it would otherwise cross the event loop. Without a
  /// listener a message box tells it.
  void SetFailureListener(FailureListener listener) { failureListener_ = std::move(listener); }
  /// Runs something that a person sets off, and hands its failure to the listener.
  void Guard(const std::function<void()>& body);

 protected:
  virtual void ShowFailure(const std::string& caption, const std::string& text) = 0;

 private:
  FailureListener failureListener_;
};

}  // namespace brivane::controls
