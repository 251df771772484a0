#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <brivane/frame/Calendar.h>
#include <brivane/frame/Dates.h>
#include <brivane/frame/Handle.h>
#include <brivane/frame/Phrase.h>
#include <brivane/vrijekolom/Ontwerp.h>

/// What the year-by-year form is about, for who has it before him: which column, which year is which row.
namespace brivane::vrijekolom {

/// A person whose age a row tells.
struct Geborene {
  std::string wie;     ///< "aanvrager", "partner"
  host::Date geboren;  ///< no date: the age is left out
};

/// What the editor shows of its column.
struct Onderwerp {
  std::string omschrijving;  ///< may be empty
  std::string termijn;       ///< as the list shows it; empty where none is chosen
  host::Date aanvang;        ///< may be no date
};

namespace detail {

inline constexpr std::int64_t kMaandenPerRij = 12;

/// "; aanvrager wordt 52, partner wordt 50".
inline std::string Leeftijden(int jaar, const std::vector<Geborene>& personen, const frame::Texts& teksten) {
  std::string tekst;
  for (const Geborene& persoon : personen) {
    const int leeftijd = jaar - frame::Split(persoon.geboren).year;
    if (persoon.geboren.IsNone() || leeftijd < 0) continue;
    const frame::Phrase wordt(frame::TextId::TurnsAge, {persoon.wie, std::to_string(leeftijd)});
    tekst += (tekst.empty() ? "; " : ", ") + wordt.In(teksten);
  }
  return tekst;
}

}  // namespace detail

/// Reads the boxes of an editor's surface. Fails with error 13 where the box of the start date holds something that is
/// none.
[[nodiscard]] inline Onderwerp LeesOnderwerp(host::Surface& surface) {
  const frame::Controls controls(surface);
  const host::ListBox& termijn = controls[cboTermijn];
  const bool gekozen = termijn.ListIndex() != host::kNoSelection;
  return {controls[TxtOm].Text(), gekozen ? termijn.Text() : std::string(), controls[TxtDtAanvang].DateValue()};
}

/// "Kinderopvang, per maand"; the term alone where there is no description.
[[nodiscard]] inline std::string Titel(const Onderwerp& onderwerp) {
  if (onderwerp.omschrijving.empty() || onderwerp.termijn.empty()) return onderwerp.omschrijving + onderwerp.termijn;
  return onderwerp.omschrijving + ", " + onderwerp.termijn;
}

/// Which year a row stands for, from 1, and the ages that the persons reach in it: "2033: 1 april 2033 tot en met 31
/// maart 2034; aanvrager wordt 52, partner wordt 50". Empty where the column has no start date, and past the calendar.
[[nodiscard]] inline std::string Rijuitleg(int rij, host::Date aanvang, const std::vector<Geborene>& personen,
                                           const frame::Texts& teksten = frame::Texts::In(frame::Language::Dutch)) {
  if (aanvang.IsNone() || rij < 1 || frame::Split(aanvang).year + rij > frame::Split(frame::kLastDay).year) return {};
  const host::Date begin = frame::AddMonths(aanvang, (rij - 1) * detail::kMaandenPerRij);
  const host::Date volgende = frame::AddMonths(aanvang, rij * detail::kMaandenPerRij);
  const frame::YearMonthDay dag = frame::Split(begin);
  const std::string jaar = std::to_string(dag.year);
  const bool heel = dag.month == 1 && dag.day == 1;
  const frame::Phrase periode(frame::TextId::RowPeriod,
                              {jaar, frame::LongDate(begin), frame::LongDate(host::Date(volgende.Days() - 1))});
  return (heel ? jaar : periode.In(teksten)) + detail::Leeftijden(dag.year, personen, teksten);
}

}  // namespace brivane::vrijekolom
