#include "app/program/TraceLog.h"

#include <algorithm>

namespace brivane::dossier {

void Traceerlog::Entered(std::string_view control, std::string_view procedure) {
  Schrijf(control, "> ", procedure);
  lopend_.emplace_back(procedure);
}

void Traceerlog::Left(std::string_view control) {
  if (lopend_.empty()) return;
  const std::string procedure = std::move(lopend_.back());
  lopend_.pop_back();
  Schrijf(control, "< ", procedure);
}

void Traceerlog::Failed(std::string_view control, std::string_view procedure) {
  const auto plaats = std::find(lopend_.rbegin(), lopend_.rend(), procedure);
  if (plaats != lopend_.rend()) lopend_.erase(plaats.base() - 1, lopend_.end());
  Schrijf(control, "! ", procedure);
}

void Traceerlog::Schrijf(std::string_view control, std::string_view teken, std::string_view procedure) {
  std::string regel(2 * lopend_.size(), ' ');
  regel.append(teken).append(procedure).append("  (").append(control).append(")");
  logboek_.Schrijf(QString::fromStdString(regel));
}

void SchrijfFout(Logboek& logboek, const host::ErrorRecord& fout) {
  logboek.Schrijf(QString::fromStdString("FOUT " + fout.ErrorNumber + " in " + fout.ObjectName + ", bron " +
                                         fout.ErrorSource + ": " + fout.ErrorDescription));
}

}  // namespace brivane::dossier
