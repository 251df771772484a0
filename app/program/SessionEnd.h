#pragma once

#include "app/program/EndSignals.h"

namespace brivane::app {

class MainWindow;

/// Has a window end in order: by the signals that end a process, and at a log-out. One at a time; the window outlives
/// it.
class SessionEnd {
 public:
  explicit SessionEnd(MainWindow& window);

 private:
  EndSignals signals_;
};

}  // namespace brivane::app
