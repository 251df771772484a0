#include "app/report/Totals.h"

#include <algorithm>
#include <utility>

#include "app/report/KolomWords.h"
#include <brivane/frame/Calendar.h>
#include <brivane/frame/Dates.h>
#include <brivane/host/model/Codes.h>

namespace brivane::app::report {
namespace {

using sums::Overzicht;
using sums::Totaal;

std::string TaxText(const sums::Effect& effect) {
  return effect.belasting ? EuroText(*effect.belasting) : "tarief onbekend";
}

/// Whose income it is, where there are two.
std::vector<std::string> ByPerson(const Source& source, const Totaal& totaal) {
  std::vector<std::string> lines;
  if (source.gegevens.Personen.size() < 2) return lines;
  if (totaal.inkomen[0] != 0) lines.push_back("aanvrager " + EuroText(totaal.inkomen[0]));
  if (totaal.inkomen[1] != 0) lines.push_back("partner " + EuroText(totaal.inkomen[1]));
  return lines;
}

/// The headings of a table of totals.
struct Headings {
  const char* last;
  const char* inkomen;
  const char* belasting;
};

/// A row for each situation, and below a new one what it differs from the current one.
class TotalsTable {
 public:
  TotalsTable(const Source& source, const Headings& headings) : source_(source) {
    table_.columns = {{.heading = "Situatie", .width = Width::Rest},
                      {.heading = headings.last, .align = Align::Right},
                      {.heading = headings.inkomen, .align = Align::Right}};
    const auto& rates = source.uitgangspunt.tarieven;
    // Without any rate there is no tax to tell.
    tax_ = std::any_of(rates.begin(), rates.end(), [](const auto& rate) { return rate.has_value(); });
    if (tax_) table_.columns.push_back({.heading = headings.belasting, .align = Align::Right});
  }

  Table Fill(const Overzicht& overzicht, Totaal sums::Totalen::*part) {
    const Totaal now = overzicht.TotalenVan(0).*part;
    for (std::int16_t situatie = 0; situatie <= overzicht.NieuweLeningen(); ++situatie) {
      const Totaal totaal = overzicht.TotalenVan(situatie).*part;
      Add(RowKind::Plain, SituationName(source_, situatie), totaal);
      if (situatie > 0) Add(RowKind::Detail, "verschil met de huidige situatie", Verschil(now, totaal));
    }
    return std::move(table_);
  }

 private:
  void Add(RowKind kind, std::string name, const Totaal& totaal) {
    TableRow row{kind,
                 {{std::move(name), {}},
                  {EuroText(totaal.effect.last), {}},
                  {EuroText(totaal.effect.inkomen), ByPerson(source_, totaal)}}};
    if (tax_) row.cells.push_back({TaxText(totaal.effect), {}});
    table_.rows.push_back(std::move(row));
  }

  const Source& source_;
  Table table_;
  bool tax_;
};

bool HasOneOffs(const Overzicht& overzicht) {
  for (std::int16_t situatie = 0; situatie <= overzicht.NieuweLeningen(); ++situatie) {
    for (const auto& regel : overzicht.Regels(situatie)) {
      if (regel.post->Eenmalig() && regel.post->stand == sums::Stand::Telt) return true;
    }
  }
  return false;
}

}  // namespace

std::string SituationName(const Source& source, std::int16_t situatie) {
  const std::string& name = source.leningen.at(static_cast<std::size_t>(situatie));
  return (situatie == host::codes::kHuidigeSituatie ? "Huidige situatie: " : "Nieuwe situatie: ") + name;
}

void AddTotals(Report& report, const Source& source, const Overzicht& overzicht) {
  const host::Date day = source.uitgangspunt.peildatum;
  report.blocks.emplace_back(Heading{"Totalen"});
  report.blocks.emplace_back(Paragraph{"Op " + frame::ShowDate(day) +
                                       ", levensscenario: " + ScenarioText(source.uitgangspunt.scenario) +
                                       ". Een bedrag zonder minteken is een verhoging, een bedrag met minteken een "
                                       "verlaging."});
  report.blocks.emplace_back(
      TotalsTable(source, {"Maandlast", "Belastbaar inkomen per jaar", "Inkomstenbelasting per jaar"})
          .Fill(overzicht, &sums::Totalen::doorlopend));
  if (!HasOneOffs(overzicht)) return;
  report.blocks.emplace_back(Paragraph{"Eenmalig in " + std::to_string(frame::Split(day).year) + ":"});
  report.blocks.emplace_back(TotalsTable(source, {"Last", "Belastbaar inkomen", "Inkomstenbelasting"})
                                 .Fill(overzicht, &sums::Totalen::eenmalig));
}

}  // namespace brivane::app::report
