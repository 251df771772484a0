#include "app/report/Tables.h"

#include <cmath>

#include "app/desk/Csv.h"
#include "app/report/KolomWords.h"
#include "app/report/Years.h"
#include <brivane/frame/Dates.h>
#include <brivane/host/model/Codes.h>

namespace brivane::app::report {
namespace {

using dossier::KolomGegevens;

void Headings(Csv& csv, std::initializer_list<const char*> headings) {
  for (const char* heading : headings) csv.Text(heading);
  csv.EndRow();
}

void YesNo(Csv& csv, bool yes) { csv.Text(yes ? "Ja" : "Nee"); }

/// An amount, a percentage; nothing for what is no number.
void Value(Csv& csv, double value, sums::Eenheid unit) {
  if (!std::isfinite(value)) {
    csv.Empty();
  } else if (unit == sums::Eenheid::Procent) {
    csv.Number(value);
  } else {
    csv.Amount(value);
  }
}

/// A number, or nothing for the 0 that stands for none.
void NumberOrNothing(Csv& csv, double number) { number == 0 ? csv.Empty() : csv.Number(number); }

const char* UnitText(const KolomGegevens& kolom) {
  return sums::EenheidVan(kolom.Bedrag) == sums::Eenheid::Procent ? "procent" : "euro";
}

const char* InvoerText(const KolomGegevens& kolom) {
  switch (kolom.Bedrag.Invoersoort) {
    case 1: return "bedragen";
    case 2: return "percentages";
    case 3: return "bedragen met groei";
    default: return "";
  }
}

template <class Visit> void ForEachKolom(const Source& source, Visit&& visit) {
  std::size_t number = 0;
  const auto lening = [&](const dossier::LeningGegevens& one) {
    for (const KolomGegevens& kolom : one.VrijeKolommen) visit(number, kolom);
    ++number;
  };
  lening(source.gegevens.HuidigeLening);
  for (const auto& one : source.gegevens.Leningen) lening(one);
}

void Place(Csv& csv, const Source& source, std::size_t lening, const KolomGegevens& kolom) {
  csv.Text(lening == 0 ? "Huidige situatie" : "Nieuwe situatie").Text(source.leningen.at(lening)).Number(kolom.Id);
}

void KolomRow(Csv& csv, const Source& source, std::size_t lening, const KolomGegevens& kolom) {
  const auto& gegevens = source.gegevens;
  const sums::Looptijd runs = sums::LooptijdVan(kolom);
  const bool contract = host::codes::IsContractsoort(kolom.Productsoort);
  Place(csv, source, lening, kolom);
  csv.Text(kolom.Omschrijving);
  Value(csv, kolom.Bedrag.Bedrag, sums::EenheidVan(kolom.Bedrag));
  csv.Text(UnitText(kolom)).Text(InvoerText(kolom)).Text(TermijnText(kolom));
  csv.Text(frame::ShowDate(kolom.DatumAanvang)).Text(contract ? "" : frame::ShowDate(runs.einde));
  NumberOrNothing(csv, contract ? 0 : kolom.Looptijd);
  csv.Text(contract ? frame::ShowDate(kolom.Contractvervaldatum) : "");
  csv.Text(CorrectieLastText(kolom)).Text(CorrectieFiscaalText(kolom));
  YesNo(csv, kolom.InkomenUitArbeid);
  YesNo(csv, kolom.InDagloon);
  csv.Text(NameOf(gegevens.Personen, kolom.HeffingBij));
  YesNo(csv, kolom.IsProduct);
  csv.Text(ProductsoortText(kolom)).Text(kolom.IsProduct ? kolom.MaatschappijNaam : "");
  csv.Text(kolom.IsProduct ? kolom.Productnaam : "");
  YesNo(csv, kolom.IsProduct && kolom.UwBemiddeling);
  for (const auto& proposal : gegevens.Voorstellen) YesNo(csv, proposal.contains(kolom.Id));
  // The editor asks whether it counts; the record keeps what leaves it out.
  YesNo(csv, !kolom.UitsluitenAO);
  YesNo(csv, !kolom.UitsluitenWW);
  YesNo(csv, !kolom.UitsluitenLangleven);
  YesNo(csv, kolom.ScenarioOverlijden);
  NumberOrNothing(csv, static_cast<double>(kolom.PercentageOvergang));
  csv.Text(frame::ShowDate(kolom.EinddatumOvergang));
  NumberOrNothing(csv, kolom.EindleeftijdOvergang);
  csv.EndRow();
}

}  // namespace

std::string KolommenCsv(const Source& source) {
  Csv csv;
  Headings(csv, {"Situatie",
                 "Lening",
                 "Nummer",
                 "Omschrijving",
                 "Bedrag",
                 "Eenheid",
                 "Invoer",
                 "Termijn",
                 "Aanvangsdatum",
                 "Einddatum",
                 "Looptijd in maanden",
                 "Contractvervaldatum",
                 "Correctie last",
                 "Correctie fiscaal",
                 "Inkomen uit arbeid",
                 "Onderdeel dagloon",
                 "Heffing bij",
                 "Product",
                 "Soort product",
                 "Maatschappij",
                 "Productnaam",
                 "Uw bemiddeling",
                 "Beëindigen in voorstel 1",
                 "Beëindigen in voorstel 2",
                 "Beëindigen in voorstel 3",
                 "Arbeidsongeschiktheid",
                 "Werkloosheid",
                 "Langleven",
                 "Overlijden",
                 "Overgang naar partner (%)",
                 "Einddatum overgang",
                 "Eindleeftijd overgang"});
  ForEachKolom(source, [&](std::size_t lening, const KolomGegevens& kolom) { KolomRow(csv, source, lening, kolom); });
  return csv.Bytes();
}

std::string PeriodenCsv(const Source& source) {
  Csv csv;
  Headings(csv, {"Situatie", "Lening", "Nummer", "Omschrijving", "Jaar", "Van", "Tot en met", "Bedrag", "Eenheid",
                 "Termijn", "Op jaarbasis"});
  ForEachKolom(source, [&](std::size_t lening, const KolomGegevens& kolom) {
    for (const Year& year : YearsOf(kolom, RowsUntilAgeLimit(source.gegevens, kolom, source.today))) {
      Place(csv, source, lening, kolom);
      csv.Text(kolom.Omschrijving).Number(year.number);
      csv.Text(frame::ShowDate(year.from)).Text(frame::ShowDate(year.to));
      Value(csv, year.value, sums::EenheidVan(kolom.Bedrag));
      csv.Text(UnitText(kolom)).Text(TermijnText(kolom));
      YesNo(csv, year.whole_year);
      csv.EndRow();
    }
  });
  return csv.Bytes();
}

}  // namespace brivane::app::report
