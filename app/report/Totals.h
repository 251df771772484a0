#pragma once

#include <string>

#include "app/report/Contents.h"

namespace brivane::app::report {

/// "Huidige situatie: Huidige lening", "Nieuwe situatie: Nieuwe lening 1".
[[nodiscard]] std::string SituationName(const Source& source, std::int16_t situatie);

/// Adds to a report what each situation adds up to, and what that differs from the current one: recurring amounts, and
/// apart from them the one-off amounts of the year, where there are any.
void AddTotals(Report& report, const Source& source, const sums::Overzicht& overzicht);

}  // namespace brivane::app::report
