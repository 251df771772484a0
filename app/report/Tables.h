#pragma once

#include <string>

#include "app/report/Contents.h"

/// The case as tables for a spreadsheet.
namespace brivane::app::report {

/// A row for each column of each loan, with every field as the editor says it; amounts and dates as a spreadsheet reads
/// them.
[[nodiscard]] std::string KolommenCsv(const Source& source);

/// A row for each year of each column with periods, as its year-by-year form shows it.
[[nodiscard]] std::string PeriodenCsv(const Source& source);

}  // namespace brivane::app::report
