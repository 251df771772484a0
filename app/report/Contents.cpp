#include "app/report/Contents.h"

#include <algorithm>
#include <utility>

#include "app/report/KolomWords.h"
#include "app/report/Totals.h"
#include "app/report/Years.h"
#include "dossier/model/Kopteksten.h"
#include <brivane/frame/Dates.h>
#include <brivane/frame/Numbers.h>

namespace brivane::app::report {
namespace {

using dossier::KolomGegevens;
using dossier::LeningGegevens;

/// Those of the parts that say something.
std::string Joined(const std::vector<std::string>& parts, const char* between) {
  std::string text;
  for (const std::string& part : parts) {
    if (part.empty()) continue;
    if (!text.empty()) text += between;
    text += part;
  }
  return text;
}

const KolomGegevens& KolomOf(const dossier::DossierGegevens& gegevens, const sums::Post& post) {
  const LeningGegevens& lening = post.Len_Id == host::codes::kHuidigeSituatie
                                     ? gegevens.HuidigeLening
                                     : gegevens.Leningen.at(static_cast<std::size_t>(post.Len_Id - 1));
  return *std::find_if(lening.VrijeKolommen.begin(), lening.VrijeKolommen.end(),
                       [&](const KolomGegevens& kolom) { return kolom.Id == post.Vrij_Id; });
}

Facts ClientFacts(const Source& source) {
  Facts facts;
  for (const auto& [number, who] :
       {std::pair{host::codes::kAanvrager, "Aanvrager"}, {host::codes::kPartner, "Partner"}}) {
    const auto& personen = source.gegevens.Personen;
    if (static_cast<std::size_t>(number) > personen.size()) continue;
    const std::string born = frame::ShowDate(personen[static_cast<std::size_t>(number - 1)].Geboortedatum);
    facts.lines.emplace_back(who, Joined({NameOf(personen, number), born.empty() ? "" : "geboren " + born}, ", "));
  }
  facts.lines.emplace_back("Leeftijdsgrens", frame::ShowWhole(source.gegevens.Leeftijd) + " jaar");
  facts.lines.emplace_back("Datum", frame::ShowDate(source.today));
  if (!source.adviser.empty()) facts.lines.emplace_back("Adviseur", source.adviser);
  return facts;
}

std::string Product(const KolomGegevens& kolom) {
  if (!kolom.IsProduct) return {};
  return Joined(
      {ProductsoortText(kolom), kolom.MaatschappijNaam, NameOf(kolom) == kolom.Productnaam ? "" : kolom.Productnaam,
       kolom.UwBemiddeling ? "uw bemiddeling" : ""},
      ", ");
}

std::string Inkomen(const KolomGegevens& kolom) {
  if (!kolom.InkomenUitArbeid) return {};
  return kolom.InDagloon ? "Inkomen uit arbeid, onderdeel dagloon" : "Inkomen uit arbeid";
}

std::string LeftOut(const KolomGegevens& kolom) {
  const std::string scenarios =
      Joined({kolom.UitsluitenAO ? "arbeidsongeschiktheid" : "", kolom.UitsluitenWW ? "werkloosheid" : "",
              kolom.UitsluitenLangleven ? "langleven" : ""},
             ", ");
  return scenarios.empty() ? "" : "Telt niet mee bij " + scenarios;
}

std::string Overlijden(const KolomGegevens& kolom) {
  if (!kolom.ScenarioOverlijden) return {};
  const std::string age = kolom.EindleeftijdOvergang == 0 ? "" : frame::ShowWhole(kolom.EindleeftijdOvergang) + " jaar";
  const std::string end = Joined({frame::ShowDate(kolom.EinddatumOvergang), age}, " / ");
  return "Bij overlijden " + frame::ShowNumber(static_cast<double>(kolom.PercentageOvergang)) + " % naar partner" +
         (end.empty() ? "" : ", tot " + end);
}

std::string Proposals(const dossier::DossierGegevens& gegevens, std::int16_t Vrij_Id) {
  std::vector<std::string> numbers;
  for (std::size_t i = 0; i < gegevens.Voorstellen.size(); ++i) {
    if (gegevens.Voorstellen[i].contains(Vrij_Id)) numbers.push_back(std::to_string(i + 1));
  }
  return numbers.empty() ? "" : "Wordt beëindigd in voorstel " + Joined(numbers, ", ");
}

Cell Looptijd(const KolomGegevens& kolom, const sums::Post& post) {
  const std::string start = frame::ShowDate(kolom.DatumAanvang);
  if (post.Eenmalig() || start.empty()) return {start, {}};
  const std::string end = frame::ShowDate(post.looptijd.einde);
  return {"van " + start, {end.empty() ? "zonder einde" : "tot " + end}};
}

/// What a column does in euros, or why it does nothing.
Cell Effect(const sums::Post& post, double effect, const char* period) {
  if (post.stand != sums::Stand::Telt) return {"–", {StandText(post.stand)}};
  return {EuroText(effect), {post.Eenmalig() ? "eenmalig" : period}};
}

class SituationTable {
 public:
  explicit SituationTable(const Source& source) : source_(source) {}

  void Add(const sums::Overzicht::Regel& regel) {
    const KolomGegevens& kolom = KolomOf(source_.gegevens, *regel.post);
    TableRow& row = table_.rows.emplace_back();
    row.cells = {{NameOf(kolom), Notes(regel.herkomst, kolom)},
                 {CorrectieLastText(kolom), {CorrectieFiscaalText(kolom)}},
                 {dossier::Basisbedrag(kolom), {TermijnText(kolom)}},
                 Looptijd(kolom, *regel.post),
                 {NameOf(source_.gegevens.Personen, kolom.HeffingBij), {}},
                 Effect(*regel.post, regel.post->effect.last, "per maand"),
                 Effect(*regel.post, regel.post->effect.inkomen, "per jaar")};
    // What follows is told where it stands.
    if (regel.herkomst != sums::Herkomst::Volgt) AddYears(kolom);
  }

  [[nodiscard]] Table Take() { return std::move(table_); }

 private:
  [[nodiscard]] std::vector<std::string> Notes(sums::Herkomst herkomst, const KolomGegevens& kolom) const {
    std::vector<std::string> notes{HerkomstText(herkomst)};
    if (herkomst != sums::Herkomst::Volgt) {
      for (std::string& note : std::vector<std::string>{Product(kolom), Inkomen(kolom), LeftOut(kolom),
                                                        Overlijden(kolom), Proposals(source_.gegevens, kolom.Id)})
        notes.push_back(std::move(note));
    }
    std::erase(notes, std::string());
    return notes;
  }

  void AddYears(const KolomGegevens& kolom) {
    const int at_most = RowsUntilAgeLimit(source_.gegevens, kolom, source_.today);
    const std::string unit = sums::HeeftMaandrijen(kolom.Bedrag) ? "maand " : "jaar ";
    for (const Span& span : SpansOf(YearsOf(kolom, at_most))) {
      std::string when = unit + std::to_string(span.first.number);
      if (span.last.number > span.first.number) when += " t/m " + std::to_string(span.last.number);
      if (!span.first.from.IsNone() && !span.last.to.IsNone())
        when += ": " + frame::ShowDate(span.first.from) + " t/m " + frame::ShowDate(span.last.to);
      TableRow& row = table_.rows.emplace_back(TableRow{RowKind::Detail, std::vector<Cell>(table_.columns.size())});
      row.cells[0].text = std::move(when);
      row.cells[2].text = ValueText(kolom, span.first.value);
      if (span.first.whole_year) row.cells[3].text = "op jaarbasis";
    }
  }

  const Source& source_;
  Table table_{.columns = {{.heading = "Omschrijving", .width = Width::Rest},
                           {.heading = "Correctie"},
                           {.heading = "Bedrag", .align = Align::Right},
                           {.heading = "Looptijd"},
                           {.heading = "Heffing bij"},
                           {.heading = "Maandlast", .align = Align::Right},
                           {.heading = "Belastbaar inkomen", .align = Align::Right}},
               .rows = {}};
};

}  // namespace

Report ReportOf(const Source& source) {
  const auto& personen = source.gegevens.Personen;
  Report report{
      .title = "Overzicht van de vrije kolommen",
      .client = Joined({NameOf(personen, host::codes::kAanvrager), NameOf(personen, host::codes::kPartner)}, " en "),
      .adviser = source.adviser,
      .date = frame::ShowDate(source.today),
      .blocks = {ClientFacts(source)}};
  const sums::Overzicht overzicht(source.gegevens, source.uitgangspunt);
  AddTotals(report, source, overzicht);
  for (std::int16_t situatie = 0; situatie <= overzicht.NieuweLeningen(); ++situatie) {
    report.blocks.emplace_back(Heading{SituationName(source, situatie)});
    const auto regels = overzicht.Regels(situatie);
    if (regels.empty()) {
      report.blocks.emplace_back(Paragraph{"Er zijn geen vrije kolommen."});
      continue;
    }
    SituationTable table(source);
    for (const auto& regel : regels) table.Add(regel);
    report.blocks.emplace_back(table.Take());
  }
  return report;
}

}  // namespace brivane::app::report
