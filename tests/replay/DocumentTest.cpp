// What a document means where it leaves something out, and that it can be written again.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "replay/document/Document.h"
#include "replay/play/Session.h"
#include "tests/replay/Program.h"
#include <brivane/frame/Calendar.h>
#include <brivane/scenario/Ontwerp.h>
#include <brivane/session/document/ControlNames.h>
#include <brivane/vrijekolom/Ontwerp.h>

namespace brivane::replay::test {
namespace {

Document Smallest() { return ReadDocument(R"({"dossier": {"personen": [{}, {}]}, "steps": []})"); }

TEST(Document, WhatIsLeftOutHasItsDefault) {
  const Document document = Smallest();
  EXPECT_TRUE(document.today.IsNone());
  EXPECT_EQ(document.title, "Dossier");
  EXPECT_EQ(document.locale, "nl_NL");
  EXPECT_EQ(document.twipsPerPixelX, 15);
  EXPECT_EQ(document.twipsPerPixelY, 15);
  EXPECT_EQ(document.log,
            (std::set<Log>{Log::Trace, Log::Writes, Log::Calls, Log::Events, Log::Messages, Log::Results}));
  EXPECT_EQ(ToJson(document.dossier),
            Json::parse(R"({"personen": [{"naam": ["J.", "van", "Dam"], "Geboortedatum": "1975-12-31"},
                                         {"naam": ["A.", "de", "Wit"], "Geboortedatum": "1978-02-03"}],
                            "Uitgangspunten": {"Leeftijd": 67},
                            "MaatschappijType": [["AB", "Alfa Bank"], ["ZZ", "Anders"]],
                            "HuidigeLening": {"VrijeKolommen": []}, "Leningen": [{"VrijeKolommen": []}]})"));
}

TEST(Document, AColumnHasItsDefaults) {
  const Document document =
      ReadDocument(R"({"dossier": {"personen": [{}], "HuidigeLening": {"VrijeKolommen": [{}]}}, "steps": []})");
  EXPECT_EQ(ToJson(document.dossier.HuidigeLening.VrijeKolommen.at(0)),
            Json::parse(R"({"Id": 1, "CorrectieLast": 1, "CorrectieFiscaal": 1, "Omschrijving": "", "Termijn": 1,
      "InkomenUitArbeid": false, "InDagloon": false, "HeffingBij": 1, "Productsoort": 0,
      "ProductsoortOmschrijving": "", "Productnaam": "", "IsProduct": false, "Maatschappij": "",
      "MaatschappijNaam": "", "UwBemiddeling": false, "DatumAanvang": 0, "Looptijd": 0,
      "Contractvervaldatum": 0, "Voorstel": ["", "", ""], "Weergave": "", "Kopregel": "",
      "UitsluitenAO": false, "UitsluitenWW": false, "UitsluitenLangleven": false,
      "ScenarioOverlijden": false, "PercentageOvergang": 0.0, "EinddatumOvergang": 0,
      "EindleeftijdOvergang": 0, "Bedrag": {"Naam": "", "Invoersoort": 1, "Bedrag": 0.0, "Perioden": []}})"));
}

TEST(Document, AWholeNumberMayBeWrittenWithADecimalSign) {
  const Document document = ReadDocument(
      R"({"dossier": {"personen": [{}], "Uitgangspunten": {"Leeftijd": 6.7e1}}, "steps": [{"do": "BackColor", "value": 255.0}]})");
  EXPECT_EQ(document.dossier.Leeftijd, 67);
  EXPECT_EQ(std::get<BackColorStep>(document.steps.at(0).what).color.value, 255);
}

TEST(Document, TheZeroDateIsNoDate) {
  const Document document =
      ReadDocument(R"({"dossier": {"personen": [{"Geboortedatum": "1899-12-30"}]}, "steps": []})");
  EXPECT_TRUE(document.dossier.Personen.at(0).Geboortedatum.IsNone());
}

TEST(Document, DatesReachFromTheYear100To9999) {
  const Document document = ReadDocument(
      R"({"dossier": {"personen": [{"Geboortedatum": "0100-01-01"}, {"Geboortedatum": "9999-12-31"}]}, "steps": []})");
  EXPECT_EQ(document.dossier.Personen.at(0).Geboortedatum, frame::MakeDate({100, 1, 1}));
  EXPECT_EQ(document.dossier.Personen.at(1).Geboortedatum, frame::MakeDate({9999, 12, 31}));
}

std::vector<std::string> Transcript(const Document& document) {
  std::vector<std::string> lines;
  Session session(document, [&](std::string_view line) { lines.emplace_back(line); });
  session.Run();
  return lines;
}

TEST(Document, WrittenAgainItGivesTheSameTranscript) {
  int documents = 0;
  for (const auto& entry : std::filesystem::directory_iterator(REPLAY_GOLDEN)) {
    if (entry.path().extension() != ".json") continue;
    ++documents;
    const Document read = ReadDocument(ReadFile(entry.path()));
    const std::string written = WriteDocument(read);
    const Document again = ReadDocument(written);
    EXPECT_EQ(WriteDocument(again), written) << entry.path();
    EXPECT_EQ(Transcript(again), Transcript(read)) << entry.path();
  }
  EXPECT_GT(documents, 20);
}

TEST(Document, EveryKindOfStepIsWrittenAsItIsRead) {
  const std::string steps =
      R"([{"do": "SetApplication", "Len_Id": 0, "Vrij_Id": 1},
          {"do": "Validation", "ControleNr": 2, "Cancel": true, "answers": ["Ja", "Nee", "OK"]},
          {"do": "Toelichting.Validation", "ControleNr": 0, "Cancel": false,
           "pending": [{"do": "enter", "control": "TxtOm", "value": ""}]},
          {"do": "BackColor", "value": -2147483633}, {"do": "BeeindigenZichtbaar", "value": true},
          {"do": "resize", "width": 9000, "height": 4000.5},
          {"do": "resize", "width": 1, "height": 2, "control": "Toelichting"},
          {"do": "click", "control": "optLast", "index": 2},
          {"do": "click", "control": "cmdScenario", "modal": [
            {"do": "check", "control": "chkEenmalig", "index": 3, "value": 1},
            {"do": "click", "control": "cmdOK"}, {"do": "close"}, {"do": "dump"}]},
          {"do": "check", "control": "chkProduct", "value": 0},
          {"do": "toggle", "control": "Toelichting.jnWW", "value": 1},
          {"do": "select", "control": "cboTermijn", "entry": "per jaar"},
          {"do": "select", "control": "cboTermijn", "index": 0},
          {"do": "enter", "control": "TxtBd", "value": 1200.5},
          {"do": "enter", "control": "TxtOm", "value": "x"},
          {"do": "enter", "control": "TxtDtEind", "value": {"date": "2024-01-31"}},
          {"do": "enter", "control": "TxtDtEind", "value": {"date": 0}},
          {"do": "frmScenario", "Len_Id": 1, "Vrij_Id": 2, "AantalJaar": 3, "Labeltype": 4, "Anv_Leeftijd": 5,
           "LooptijdExtra": true, "In_RenteKorting": true, "Bd_MaxOpname": 6.5, "SoortScenario": 7,
           "DisableJaar": [8, 9], "modal": [{"do": "dump"}]},
          {"do": "dump"}])";
  const Document document = ReadDocument(R"({"dossier": {"personen": [{}]}, "steps": )" + steps + "}");
  EXPECT_EQ(Json::parse(WriteDocument(document))["steps"].dump(2), Json::parse(steps).dump(2));
}

TEST(ControlNames, EveryControlOfTheDesignsIsKnownByItsKind) {
  for (const frame::Row& row : vrijekolom::kOntwerp.rows) {
    ASSERT_TRUE(EditorControl(row.name)) << row.name;
    EXPECT_EQ(EditorControl(row.name)->kind, row.kind) << row.name;
    EXPECT_EQ(EditorControl(row.name)->elements.has_value(), row.index != frame::kNoIndex) << row.name;
  }
  for (const frame::Row& row : toelichting::kOntwerp.rows)
    EXPECT_EQ(EditorControl("Toelichting." + std::string(row.name))->kind, row.kind) << row.name;
  for (const frame::Row& row : scenario::kOntwerp.rows) EXPECT_EQ(FormControl(row.name)->kind, row.kind) << row.name;
  EXPECT_FALSE(EditorControl(""));
  EXPECT_FALSE(EditorControl("."));
  EXPECT_FALSE(EditorControl("Toelichting."));
  EXPECT_FALSE(EditorControl("Toelichting.Toelichting"));
  EXPECT_FALSE(EditorControl("fraLast.optLast"));
}

TEST(Schema, NamesTheControlsOfTheDesignsAndTheMembersOfTheHost) {
  const Json schema = Json::parse(ReadFile(REPLAY_SCHEMA));
  const Json& definitions = schema["$defs"];
  std::set<std::string> members;
  for (const Json& name : definitions["fault"]["properties"]["member"]["enum"]) members.insert(name);
  std::set<std::string> known;
  for (std::size_t i = 0; i < kMemberCount; ++i) known.insert(std::string(NameOf(static_cast<Member>(i))));
  EXPECT_EQ(members, known);

  const auto named = [&](const char* list) {
    std::set<std::string> names;
    for (const Json& action : definitions[list]["anyOf"]) {
      if (!action["properties"].contains("control")) continue;
      const Json& control = action["properties"]["control"];
      if (control.contains("const"))
        names.insert(control["const"]);
      else
        for (const Json& name : control["enum"]) names.insert(name);
    }
    return names;
  };
  const auto acted = [](const frame::Design& design, const std::string& prefix, std::set<std::string>& names) {
    for (const frame::Row& row : design.rows) switch (row.kind) {
        case host::Kind::TextBox:
        case host::Kind::JaNee:
        case host::Kind::OptionButton:
        case host::Kind::CheckBox:
        case host::Kind::ListBox:
        case host::Kind::Button: names.insert(prefix + std::string(row.name)); break;
        default: break;
      }
  };
  std::set<std::string> editor;
  acted(vrijekolom::kOntwerp, "", editor);
  acted(toelichting::kOntwerp, "Toelichting.", editor);
  EXPECT_EQ(named("editorAction"), editor);
  std::set<std::string> form;
  acted(scenario::kOntwerp, "", form);
  EXPECT_EQ(named("formAction"), form);
}

}  // namespace
}  // namespace brivane::replay::test
