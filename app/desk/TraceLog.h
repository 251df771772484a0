#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/desk/EventLog.h"
#include "dossier/store/StoreTrace.h"

namespace brivane::app {

/// Writes what the controls' tracers are told into the log, nested procedures indented.
class TraceLog final : public dossier::TraceListener {
 public:
  /// `eventLog` outlives this object.
  explicit TraceLog(EventLog& eventLog) : eventLog_(eventLog) {}

  void Entered(std::string_view control, std::string_view procedure) override;
  void Left(std::string_view control) override;
  /// Procedures inside this one that were left without a word go with it.
  void Failed(std::string_view control, std::string_view procedure) override;

 private:
  void Write(std::string_view control, std::string_view mark, std::string_view procedure);

  EventLog& eventLog_;
  std::vector<std::string> running_;
};

/// The line that a filled error record gets in the log.
void WriteError(EventLog& eventLog, const host::ErrorRecord& error);

}  // namespace brivane::app
