#include "app/desk/TraceLog.h"

#include <algorithm>

namespace brivane::app {

void TraceLog::Entered(std::string_view control, std::string_view procedure) {
  Write(control, "> ", procedure);
  running_.emplace_back(procedure);
}

void TraceLog::Left(std::string_view control) {
  if (running_.empty()) return;
  const std::string procedure = std::move(running_.back());
  running_.pop_back();
  Write(control, "< ", procedure);
}

void TraceLog::Failed(std::string_view control, std::string_view procedure) {
  const auto position = std::find(running_.rbegin(), running_.rend(), procedure);
  if (position != running_.rend()) running_.erase(position.base() - 1, running_.end());
  Write(control, "! ", procedure);
}

void TraceLog::Write(std::string_view control, std::string_view mark, std::string_view procedure) {
  std::string line(2 * running_.size(), ' ');
  line.append(mark).append(procedure).append("  (").append(control).append(")");
  eventLog_.Write(QString::fromStdString(line));
}

void WriteError(EventLog& eventLog, const host::ErrorRecord& error) {
  eventLog.Write(QString::fromStdString("FOUT " + error.ErrorNumber + " in " + error.ObjectName + ", bron " +
                                        error.ErrorSource + ": " + error.ErrorDescription));
}

}  // namespace brivane::app
