#pragma once

#include <string>
#include <vector>

#include "app/report/Report.h"
#include "dossier/model/Gegevens.h"
#include "dossier/sums/Overzicht.h"

namespace brivane::app::report {

/// What a report is made of.
struct Source {
  dossier::DossierGegevens gegevens;
  std::vector<std::string> leningen;  ///< what the screen calls the loans, the current one first
  std::string adviser;
  host::Date today;
  sums::Uitgangspunt uitgangspunt;  ///< what is added up
};

/// The report of a case: the client, what each situation adds up to, and its columns, each with its years where they
/// differ. A column that follows the current situation is told in one line.
[[nodiscard]] Report ReportOf(const Source& source);

}  // namespace brivane::app::report
