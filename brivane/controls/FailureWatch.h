#pragma once

#include <brivane/host/Export.h>
#include <brivane/host/controls/Desktop.h>

namespace brivane::controls {

/// Sees whether something fails on a machine while it is there: a procedure of a control, which reports that to the
/// host and goes on as if nothing had happened.
///
///     const FailureWatch failures(toolkit.Desktop());
///     box.Perform(Enter{value});
///     if (failures.Seen()) ...  // the host did not take it
class BRIVANE_API FailureWatch {
 public:
  /// Begins to watch. The desktop may end before it.
  explicit FailureWatch(host::Desktop& desktop)
      : listening_(desktop.ProcedureFailed.Connect([this] { seen_ = true; })) {}
  FailureWatch(const FailureWatch&) = delete;
  FailureWatch& operator=(const FailureWatch&) = delete;
  ~FailureWatch() = default;

  /// Whether anything failed since it began, or since Forget.
  [[nodiscard]] bool Seen() const { return seen_; }
  /// What was seen until now does not count.
  void Forget() { seen_ = false; }

 private:
  bool seen_ = false;
  host::Subscription listening_;
};

}  // namespace brivane::controls
