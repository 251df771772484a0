#include "app/report/Years.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "dossier/sums/Jaarbedragen.h"
#include "dossier/sums/Looptijd.h"
#include <brivane/frame/Calendar.h>
#include <brivane/host/Error.h>
#include <brivane/scenario/Maanden.h>

namespace brivane::app::report {
namespace {

constexpr int kMostRows = 80;

/// Nothing beyond the calendar.
std::optional<host::Date> MonthsLater(host::Date date, std::int64_t months) {
  try {
    return frame::AddMonths(date, months);
  } catch (const host::Error&) {
    return std::nullopt;
  }
}

/// Rows in which the column runs; at most that many.
int Running(const dossier::KolomGegevens& kolom, const sums::Looptijd& runs, int at_most) {
  if (runs.aanvang.IsNone() || runs.einde.IsNone()) return at_most;
  const std::int32_t months = sums::MaandOp(runs.aanvang, host::Date{runs.einde.Days() - 1});
  return months == 0 ? 0 : std::min<int>(sums::RijVan(kolom.Bedrag, months), at_most);
}

}  // namespace

int RowsUntilAgeLimit(const dossier::DossierGegevens& gegevens, const dossier::KolomGegevens& kolom, host::Date today) {
  const auto person = static_cast<std::size_t>(kolom.HeffingBij - 1);
  if (kolom.HeffingBij < 1 || person >= gegevens.Personen.size()) return kMostRows;
  const auto limit = MonthsLater(gegevens.Personen[person].Geboortedatum,
                                 std::int64_t{gegevens.Leeftijd + 1} * scenario::kMaandenPerRij);
  return limit ? std::clamp<int>(frame::YearsBetween(today, *limit), 1, kMostRows) : kMostRows;
}

std::vector<Year> YearsOf(const dossier::KolomGegevens& kolom, int at_most) {
  if (kolom.Termijn == host::codes::kEenmalig || kolom.Bedrag.Perioden.empty()) return {};
  const sums::Looptijd runs = sums::LooptijdVan(kolom);
  const int months = sums::HeeftMaandrijen(kolom.Bedrag) ? 1 : scenario::kMaandenPerRij;
  std::vector<Year> years;
  for (const sums::Jaarbedrag& row : sums::Rijen(kolom.Bedrag, Running(kolom, runs, at_most))) {
    Year year{.number = static_cast<int>(years.size()) + 1, .value = row.waarde, .whole_year = row.opJaarbasis};
    const auto from = MonthsLater(runs.aanvang, std::int64_t{year.number - 1} * months);
    const auto next = MonthsLater(runs.aanvang, std::int64_t{year.number} * months);
    if (!runs.aanvang.IsNone() && from && next) {
      year.from = *from;
      year.to = host::Date{(runs.einde.IsNone() ? *next : std::min(*next, runs.einde)).Days() - 1};
    }
    years.push_back(year);
  }
  return years;
}

std::vector<Span> SpansOf(const std::vector<Year>& years) {
  std::vector<Span> spans;
  for (const Year& year : years) {
    if (!spans.empty() && spans.back().last.value == year.value && spans.back().last.whole_year == year.whole_year) {
      spans.back().last = year;
    } else {
      spans.push_back({year, year});
    }
  }
  return spans;
}

}  // namespace brivane::app::report
