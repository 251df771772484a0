#pragma once

#include <vector>

#include "dossier/model/Gegevens.h"

/// What a free column amounts to year by year, as its year-by-year form shows it.
namespace brivane::app::report {

/// A row of the form: a year of the column, or of a bridging loan a month, counted from its start.
struct Year {
  int number = 1;
  host::Date from = {};     ///< its first day; no date where the column has no start
  host::Date to = {};       ///< its last day, that of the column where it ends earlier
  double value = 0;         ///< in euros in the term of the column, or in percent
  bool whole_year = false;  ///< the amount is that of the year, whatever the term

  friend bool operator==(const Year&, const Year&) = default;
};

/// How many rows the form of a column has: up to and including the year in which its person reaches the age limit, at
/// least 1 and at most 80.
[[nodiscard]] int RowsUntilAgeLimit(const dossier::DossierGegevens& gegevens, const dossier::KolomGegevens& kolom,
                                    host::Date today);

/// The rows of a column with periods, as many as the form has and the column runs; none for a column that is the same
/// every year, and for a one-off amount.
[[nodiscard]] std::vector<Year> YearsOf(const dossier::KolomGegevens& kolom, int at_most);

/// Years on end in which nothing changes.
struct Span {
  Year first;
  Year last;

  friend bool operator==(const Span&, const Span&) = default;
};

[[nodiscard]] std::vector<Span> SpansOf(const std::vector<Year>& years);

}  // namespace brivane::app::report
