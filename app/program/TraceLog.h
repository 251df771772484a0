#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/program/EventLog.h"
#include "dossier/store/StoreTrace.h"

namespace brivane::dossier {

/// Writes what the controls' tracers are told into the log, nested procedures indented.
class Traceerlog final : public TraceListener {
 public:
  /// `logboek` outlives this object.
  explicit Traceerlog(Logboek& logboek) : logboek_(logboek) {}

  void Entered(std::string_view control, std::string_view procedure) override;
  void Left(std::string_view control) override;
  /// Procedures inside this one that were left without a word go with it.
  void Failed(std::string_view control, std::string_view procedure) override;

 private:
  void Schrijf(std::string_view control, std::string_view teken, std::string_view procedure);

  Logboek& logboek_;
  std::vector<std::string> lopend_;
};

/// The line that a filled error record gets in the log.
void SchrijfFout(Logboek& logboek, const host::ErrorRecord& fout);

}  // namespace brivane::dossier
