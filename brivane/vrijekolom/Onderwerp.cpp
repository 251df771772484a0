#include <brivane/frame/Calendar.h>
#include <brivane/frame/Dates.h>
#include <brivane/frame/Handle.h>
#include <brivane/vrijekolom/Onderwerp.h>
#include <brivane/vrijekolom/Ontwerp.h>

namespace brivane::vrijekolom {

namespace {

constexpr std::int64_t kMaandenPerJaarrij = 12;

std::string Leeftijden(int jaar, const std::vector<Geborene>& personen) {
  std::string tekst;
  for (const Geborene& persoon : personen) {
    const int leeftijd = jaar - frame::Split(persoon.geboren).year;
    if (persoon.geboren.IsNone() || leeftijd < 0) continue;
    tekst += (tekst.empty() ? "; " : ", ") + persoon.wie + " wordt " + std::to_string(leeftijd);
  }
  return tekst;
}

}  // namespace

Onderwerp LeesOnderwerp(host::Surface& surface) {
  const frame::Controls controls(surface);
  const host::ListBox& termijn = controls[cboTermijn];
  const bool gekozen = termijn.ListIndex() != host::kNoSelection;
  return {controls[TxtOm].Text(), gekozen ? termijn.Text() : std::string(), controls[TxtDtAanvang].DateValue()};
}

std::string Titel(const Onderwerp& onderwerp) {
  if (onderwerp.omschrijving.empty() || onderwerp.termijn.empty()) return onderwerp.omschrijving + onderwerp.termijn;
  return onderwerp.omschrijving + ", " + onderwerp.termijn;
}

std::string Rijuitleg(int rij, host::Date aanvang, const std::vector<Geborene>& personen) {
  if (aanvang.IsNone() || rij < 1) return {};
  const host::Date begin = frame::AddMonths(aanvang, (rij - 1) * kMaandenPerJaarrij);
  const host::Date volgende = frame::AddMonths(aanvang, rij * kMaandenPerJaarrij);
  const frame::YearMonthDay dag = frame::Split(begin);
  std::string tekst = std::to_string(dag.year);
  if (dag.month != 1 || dag.day != 1)
    tekst += ": " + frame::ShowLongDate(begin) + " tot en met " + frame::ShowLongDate(host::Date(volgende.Days() - 1));
  return tekst + Leeftijden(dag.year, personen);
}

}  // namespace brivane::vrijekolom
