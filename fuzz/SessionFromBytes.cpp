#include "fuzz/SessionFromBytes.h"

#include <array>
#include <string>
#include <string_view>

#include <brivane/frame/Design.h>
#include <brivane/scenario/Ontwerp.h>
#include <brivane/session/document/ControlNames.h>
#include <brivane/vrijekolom/Ontwerp.h>

namespace brivane::fuzz {

namespace {

using host::Kind;
using session::Json;

constexpr int kMostSteps = 40;
constexpr int kMostInner = 12;

constexpr std::array<std::int32_t, 12> kCodes{1, 2, 3, 0, 4, -1, 42, 44, 99, 12, 6, 32767};
constexpr std::array<double, 14> kNumbers{0, 1, 2, 0.5, 1.5, 2.5, 100, 100.01, -1, 1200.5, 999, 32768, 1e10, 3.7};
constexpr std::array<std::string_view, 10> kDates{"2024-01-31", "2026-11-21", "2026-11-22", "1899-12-30", "1850-06-01",
                                                  "2024-02-29", "9999-12-31", "0100-01-01", "2031-04-01", "1976-02-29"};
constexpr std::array<std::string_view, 4> kScenarioNames{"", "Overbruggingskrediet", "Rente", "Premie"};
constexpr std::array<std::string_view, 3> kCompanies{"AB", "ZZ", "??"};
constexpr std::array<std::string_view, 3> kAnswers{"Ja", "Nee", "OK"};
constexpr std::array<std::string_view, 6> kEntries{"per maand", "eenmalig", "per jaar", "Krant", "Anders", "Alfa Bank"};

Json Date(Bytes& bytes) {
  if (bytes.Below(3) == 0) return 0;
  return std::string(bytes.OneOf(kDates));
}

Json Periods(Bytes& bytes) {
  Json periods = Json::array();
  for (std::size_t count = bytes.Below(5); count > 0; --count)
    periods.push_back({{"Maand", static_cast<int>(bytes.Next()) * 4 - 12},
                       {"Bedrag", bytes.OneOf(kNumbers)},
                       {"Percentage", bytes.OneOf(kNumbers)},
                       {"Korting", bytes.OneOf(kNumbers)},
                       {"Eenmalig", bytes.Flip()}});
  return periods;
}

Json Column(Bytes& bytes) {
  Json column = {{"Id", 1 + bytes.Below(3)}};
  const std::array<std::string_view, 5> codes{"CorrectieLast", "CorrectieFiscaal", "HeffingBij", "Termijn",
                                              "Productsoort"};
  for (const std::string_view code : codes)
    if (bytes.Flip()) column[std::string(code)] = bytes.OneOf(kCodes);
  const std::array<std::string_view, 8> flags{"InkomenUitArbeid",    "InDagloon",         "IsProduct",
                                              "UwBemiddeling",       "UitsluitenAO",      "UitsluitenWW",
                                              "UitsluitenLangleven", "ScenarioOverlijden"};
  for (const std::string_view flag : flags) column[std::string(flag)] = bytes.Flip();
  column["Omschrijving"] = bytes.Text();
  column["Maatschappij"] = std::string(bytes.OneOf(kCompanies));
  column["DatumAanvang"] = Date(bytes);
  column["Looptijd"] = bytes.Flip() ? bytes.Next() : bytes.Whole32();
  column["Contractvervaldatum"] = Date(bytes);
  column["Voorstel"] = Json::array({bytes.Flip() ? "J" : "", bytes.Flip() ? "N" : "", bytes.Flip() ? "J" : "N"});
  column["PercentageOvergang"] = bytes.OneOf(kNumbers);
  column["EinddatumOvergang"] = Date(bytes);
  column["EindleeftijdOvergang"] = static_cast<int>(bytes.Next());
  column["Bedrag"] = {{"Naam", std::string(bytes.OneOf(kScenarioNames))},
                      {"Invoersoort", bytes.Below(5)},
                      {"Bedrag", bytes.OneOf(kNumbers)},
                      {"Perioden", Periods(bytes)}};
  return column;
}

Json Loan(Bytes& bytes) {
  Json columns = Json::array();
  for (std::size_t count = bytes.Below(4); count > 0; --count) columns.push_back(Column(bytes));
  return {{"VrijeKolommen", columns}};
}

Json Person(Bytes& bytes) {
  return {{"naam", Json::array({bytes.Text(), "", "Dam"})}, {"Geboortedatum", std::string(bytes.OneOf(kDates))}};
}

Json Case(Bytes& bytes) {
  Json persons = Json::array({Person(bytes)});
  if (bytes.Flip()) persons.push_back(Person(bytes));
  Json loans = Json::array();
  for (std::size_t count = bytes.Below(3); count > 0; --count) loans.push_back(Loan(bytes));
  Json current = Loan(bytes);
  current["VrijeKolommen"].push_back(Column(bytes));
  return {{"personen", persons},
          {"Uitgangspunten", {{"Leeftijd", bytes.Next()}}},
          {"MaatschappijType", Json::array({Json::array({"AB", "Alfa Bank"}), Json::array({"ZZ", "Anders"})})},
          {"HuidigeLening", current},
          {"Leningen", loans}};
}

struct Members {
  std::string_view name;
  std::string_view op;
};
constexpr std::array<Members, 24> kFailing{{
    {"VrijeKolomItem.Termijn", "get"},
    {"VrijeKolomItem.Termijn", "set"},
    {"VrijeKolomItem.CorrectieLast", "get"},
    {"VrijeKolomItem.CorrectieFiscaal", "set"},
    {"VrijeKolomItem.Looptijd", "set"},
    {"VrijeKolomItem.Looptijd", "get"},
    {"VrijeKolomItem.Kopregel", "get"},
    {"VrijeKolomItem.Bedrag", "get"},
    {"Bedrag.Basisbedrag", "set"},
    {"Dossier.Lening", "get"},
    {"Dossier.HuidigeLening", "call"},
    {"Dossier.Persoon", "get"},
    {"Dossier.VerwijderUitVoorstel", "call"},
    {"Lening.VrijeKolommen", "get"},
    {"Lening.VrijeKolom", "get"},
    {"Lening.VrijeKolomOp", "get"},
    {"Lening.VerwijderVrijeKolom", "call"},
    {"Application.VulCombo", "call"},
    {"Application.ReportError", "call"},
    {"DossierControle.Controleer", "call"},
    {"Scenario.Periode", "get"},
    {"Scenario.NieuwePeriode", "call"},
    {"Scenario.Bedrag", "set"},
    {"Periode.Maand", "set"},
}};

Json Faults(Bytes& bytes) {
  Json faults = Json::array();
  for (std::size_t count = bytes.Below(4); count > 1; --count) {
    const Members& member = bytes.OneOf(kFailing);
    faults.push_back({{"member", std::string(member.name)},
                      {"op", std::string(member.op)},
                      {"nth", 1 + bytes.Below(12)},
                      {"number", 1000 + bytes.Next()},
                      {"description", "fault"},
                      {"source", "host"}});
  }
  return faults;
}

Json Typed(Bytes& bytes) {
  switch (bytes.Below(5)) {
    case 0: return bytes.OneOf(kNumbers);
    case 1: return {{"date", Date(bytes)}};
    case 2: return bytes.Text();
    case 3: return "";
    default: return static_cast<double>(bytes.Whole32()) / 16;
  }
}

/// What a person does to a control of the design, wherever that makes sense; nothing where it does not.
Json Act(Bytes& bytes, std::string_view prefix, const frame::Design& design, int rows) {
  const frame::Row& row = bytes.OneOf(design.rows);
  Json step = {{"control", std::string(prefix) + std::string(row.name)}};
  const bool runTime = row.index == frame::kTemplateIndex && rows > 0;
  if (row.index != frame::kNoIndex)
    step["index"] = runTime ? 1 + bytes.Below(static_cast<std::size_t>(rows)) : static_cast<std::size_t>(row.index);
  switch (row.kind) {
    case Kind::OptionButton:
    case Kind::Button: step["do"] = "click"; break;
    case Kind::CheckBox:
      step["do"] = "check";
      step["value"] = bytes.Flip() ? 1 : 0;
      break;
    case Kind::JaNee:
      step["do"] = "toggle";
      step["value"] = bytes.Flip() ? 2 : 1;
      break;
    case Kind::ListBox:
      step["do"] = "select";
      if (bytes.Often())
        step["index"] = bytes.Below(5);
      else
        step["entry"] = std::string(bytes.OneOf(kEntries));
      break;
    case Kind::TextBox:
      step["do"] = "enter";
      step["value"] = Typed(bytes);
      break;
    default: return {{"do", "dump"}};
  }
  return step;
}

Json FormSteps(Bytes& bytes) {
  Json steps = Json::array();
  for (std::size_t count = bytes.Below(kMostInner); count > 0; --count) {
    Json step = bytes.Below(12) == 0 ? Json{{"do", "close"}} : Act(bytes, "", scenario::kOntwerp, 4);
    if (bytes.Below(8) == 0) step = {{"do", "click"}, {"control", "cmdOK"}};
    steps.push_back(step);
  }
  return steps;
}

Json EditorAct(Bytes& bytes) {
  if (bytes.Below(4) == 0) return Act(bytes, "Toelichting.", toelichting::kOntwerp, 0);
  Json step = Act(bytes, "", vrijekolom::kOntwerp, 0);
  if (step.contains("control") && step["control"] == "cmdScenario") step["modal"] = FormSteps(bytes);
  return step;
}

Json Step(Bytes& bytes) {
  switch (bytes.Below(16)) {
    case 0: return {{"do", "SetApplication"}, {"Len_Id", bytes.Below(3)}, {"Vrij_Id", 1 + bytes.Below(3)}};
    case 1: return {{"do", "Validation"}, {"ControleNr", bytes.Below(4)}, {"Cancel", bytes.Below(4) == 0}};
    case 2: return {{"do", "Toelichting.Validation"}, {"ControleNr", bytes.Below(7)}};
    case 3: return {{"do", "BackColor"}, {"value", bytes.Whole32()}};
    case 4: return {{"do", "BeeindigenZichtbaar"}, {"value", bytes.Flip()}};
    case 5: return {{"do", "resize"}, {"width", bytes.Next() * 60}, {"height", bytes.Next() * 60}};
    case 6: {
      Json locked = Json::array();
      for (std::size_t count = bytes.Below(3); count > 0; --count) locked.push_back(bytes.Below(53));
      return {{"do", "frmScenario"},
              {"Len_Id", 0},
              {"Vrij_Id", 1 + bytes.Below(3)},
              {"AantalJaar", static_cast<int>(bytes.Below(90)) - 2},
              {"Labeltype", bytes.Below(2)},
              {"In_RenteKorting", bytes.Flip()},
              {"Bd_MaxOpname", bytes.OneOf(kNumbers)},
              {"SoortScenario", bytes.Below(3)},
              {"DisableJaar", locked},
              {"modal", FormSteps(bytes)}};
    }
    default: return EditorAct(bytes);
  }
}

}  // namespace

session::Json SessionFromBytes(Bytes bytes) {
  Json document = {{"today", "2026-11-21"}};
  if (bytes.Below(8) == 0) document["screen"] = {{"TwipsPerPixelX", 12}, {"TwipsPerPixelY", 12}};
  if (bytes.Flip())
    document["log"] = Json::array({"trace", "writes", "calls", "events", "messages", "results", "reads"});
  document["dossier"] = Case(bytes);
  document["faults"] = Faults(bytes);
  Json steps = Json::array();
  if (bytes.Often()) steps.push_back({{"do", "SetApplication"}, {"Len_Id", 0}, {"Vrij_Id", 1}});
  while (!bytes.Empty() && steps.size() < kMostSteps) {
    Json step = Step(bytes);
    if (bytes.Below(4) == 0) step["answers"] = Json::array({std::string(bytes.OneOf(kAnswers))});
    if (bytes.Below(10) == 0) step["pending"] = Json::array({EditorAct(bytes)});
    steps.push_back(step);
  }
  document["steps"] = steps;
  return document;
}

}  // namespace brivane::fuzz
