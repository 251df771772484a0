#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace brivane::app {

/// Hears that the process is to end, by SIGTERM, SIGHUP or SIGINT, and tells it in the event loop. One at a time.
class EndSignals {
 public:
  explicit EndSignals(std::function<void()> end);
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;
  /// The signals end the process again as they did.
  ~EndSignals();

 private:
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace brivane::app
