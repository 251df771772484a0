#pragma once

#include <QDialog>

namespace brivane::app {

class EventLog;

/// Shows the log, its end first in sight.
class EventLogWindow final : public QDialog {
 public:
  EventLogWindow(const EventLog& eventLog, QWidget* parent);
};

}  // namespace brivane::app
