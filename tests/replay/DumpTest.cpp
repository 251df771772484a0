// What a dump holds of each kind of control and of the records.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "replay/play/Session.h"

namespace brivane::replay::test {
namespace {

/// The dumps that a session prints.
std::vector<Json> Dumps(const std::string& column, const std::string& steps) {
  const Document document = ReadDocument(R"({"dossier": {"personen": [{}], "HuidigeLening": {"VrijeKolommen": [)" +
                                         column + R"(]}}, "log": [], "steps": [)" + steps + "]}");
  std::vector<Json> dumps;
  Session session(document, [&](std::string_view line) {
    const Json json = Json::parse(line);
    if (json.contains("dump")) dumps.push_back(json["dump"]);
  });
  session.Run();
  return dumps;
}

constexpr char kBindAndDump[] = R"({"do": "SetApplication", "Len_Id": 0, "Vrij_Id": 1}, {"do": "dump"})";

TEST(Dump, BeforeTheFirstBindingEverythingIsAsDesigned) {
  const Json dump = Dumps("{}", R"({"do": "dump"})").at(0);
  EXPECT_EQ(dump["record"], nullptr);
  EXPECT_EQ(dump["Filling"], false);
  EXPECT_EQ(dump["Gewijzigd"], false);
  const Json& controls = dump["controls"];
  EXPECT_EQ(controls["TxtOm"]["value"], "");
  EXPECT_EQ(controls["TxtBd"]["value"], 0);
  EXPECT_EQ(controls["TxtDtAanvang"]["value"], 0);
  EXPECT_EQ(controls["jnInDagloon"]["value"], 1);
  EXPECT_EQ(controls["chkProduct"]["value"], 0);
  EXPECT_EQ(controls["optLast(1)"]["value"], false);
  EXPECT_EQ(controls["cboTermijn"]["index"], -1);
  EXPECT_EQ(controls["cboTermijn"]["entries"],
            (Json{"per maand", "per kwartaal", "per half jaar", "per jaar", "eenmalig"}));
  EXPECT_EQ(controls["cboMaatschappij"]["entries"], Json::array());
  for (const auto& [name, control] : controls.items()) {
    EXPECT_EQ(control["visible"], true) << name;
    EXPECT_EQ(control["enabled"], true) << name;
  }
}

TEST(Dump, AControlHasWhatItsKindHas) {
  const Json controls = Dumps("{}", kBindAndDump).at(0)["controls"];
  const auto keys = [&](const char* name) {
    std::vector<std::string> found;
    for (const auto& [key, value] : controls.at(name).items()) found.push_back(key);
    return found;
  };
  using Keys = std::vector<std::string>;
  const Keys captioned{"visible", "enabled", "caption", "left", "top", "width", "height", "backcolor"};
  const Keys valued{"visible", "enabled", "value", "left", "top", "width", "height", "backcolor"};
  const Keys both{"visible", "enabled", "value", "caption", "left", "top", "width", "height", "backcolor"};
  const Keys list{"visible", "enabled", "left", "top", "width", "height", "backcolor", "entries", "index"};
  const Keys report{"visible", "enabled", "left", "top", "width", "height", "backcolor", "columns", "rows", "selected"};
  EXPECT_EQ(keys("fraLast"), captioned);
  EXPECT_EQ(keys("Toelichting.lblSlash"), captioned);
  EXPECT_EQ(keys("cmdScenario"), captioned);
  EXPECT_EQ(keys("TxtBd"), valued);
  EXPECT_EQ(keys("Toelichting.jnAO"), valued);
  EXPECT_EQ(keys("optFiscaal(2)"), both);
  EXPECT_EQ(keys("ChkVoorstel(3)"), both);
  EXPECT_EQ(keys("cboTermijn"), list);
  EXPECT_EQ(keys("Toelichting.lstToelichting"), report);
}

TEST(Dump, TheReportListTellsItsMarkedRow) {
  const Json list = Dumps(R"({"CorrectieLast": 2, "CorrectieFiscaal": 3})", kBindAndDump)
                        .at(0)["controls"]["Toelichting.lstToelichting"];
  EXPECT_EQ(list["columns"], (Json{"Correctie last", "Correctie fiscaal", "Effect maandlast", "Effect IB"}));
  EXPECT_EQ(list["selected"], "KEY4");
  ASSERT_EQ(list["rows"].size(), 6u);
  EXPECT_EQ(list["rows"][3], Json::parse(R"({"key": "KEY4", "texts": ["Bijdrage", "Neutraal", "Verlaging", "Geen"],
                                             "bold": [true, true, true, true]})"));
  EXPECT_EQ(list["rows"][0]["bold"], (Json{false, false, false, false}));
}

TEST(Dump, NoRowIsMarkedForACombinationThatTheTableLacks) {
  const Json list = Dumps(R"({"CorrectieLast": 3, "CorrectieFiscaal": 3})", kBindAndDump)
                        .at(0)["controls"]["Toelichting.lstToelichting"];
  EXPECT_EQ(list["selected"], nullptr);
}

TEST(Dump, TheRecordHasTheFieldsOfTheDocument) {
  const std::string column =
      R"({"Id": 1, "CorrectieLast": 2, "CorrectieFiscaal": 3, "Omschrijving": "€ 5", "Termijn": 12,
          "InkomenUitArbeid": true, "InDagloon": false, "HeffingBij": 1, "Productsoort": 44,
          "ProductsoortOmschrijving": "Krant", "Productnaam": "De Ochtend", "IsProduct": false, "Maatschappij": "AB",
          "MaatschappijNaam": "Alfa", "UwBemiddeling": true, "DatumAanvang": "2024-02-29", "Looptijd": 40000,
          "Contractvervaldatum": "0100-01-01", "Voorstel": ["J", "N", ""], "Weergave": "w", "Kopregel": "k",
          "UitsluitenAO": true, "UitsluitenWW": false, "UitsluitenLangleven": true, "ScenarioOverlijden": true,
          "PercentageOvergang": 12.5, "EinddatumOvergang": "9999-12-31", "EindleeftijdOvergang": -1,
          "Bedrag": {"Naam": "Rente", "Invoersoort": 3, "Bedrag": 0.1, "Perioden": [
            {"Maand": 25, "Bedrag": 200, "Percentage": 1.25, "Korting": 0.5, "Eenmalig": true}]}})";
  const Json record = Dumps(column, kBindAndDump).at(0)["record"];
  EXPECT_EQ(record.dump(), Json::parse(column).dump());
}

TEST(Dump, ABoxShowsWhatItHolds) {
  const Json controls = Dumps("{}", std::string(R"({"do": "SetApplication", "Len_Id": 0, "Vrij_Id": 1},
      {"do": "enter", "control": "TxtBd", "value": "12"},
      {"do": "enter", "control": "TxtOm", "value": 1.5},
      {"do": "enter", "control": "TxtDtAanvang", "value": {"date": "2031-04-01"}},
      {"do": "enter", "control": "TxtAnJaar", "value": {"date": "2031-04-01"}},
      {"do": "enter", "control": "TxtDtEind", "value": 5}, {"do": "dump"},
      {"do": "enter", "control": "TxtBd", "value": ""},
      {"do": "enter", "control": "TxtOm", "value": ""},
      {"do": "enter", "control": "TxtAnJaar", "value": ""},
      {"do": "enter", "control": "TxtDtEind", "value": {"date": 0}}, {"do": "dump"})"))
                            .at(0)["controls"];
  EXPECT_EQ(controls["TxtBd"]["value"], "12");
  EXPECT_EQ(controls["TxtOm"]["value"], 1.5);
  EXPECT_EQ(controls["TxtDtAanvang"]["value"], "2031-04-01");
  EXPECT_EQ(controls["TxtAnJaar"]["value"], "2031-04-01");
  EXPECT_EQ(controls["TxtDtEind"]["value"], 5);
}

TEST(Dump, OfTheFormHoldsItsRowsAndItsScenario) {
  const Json dump = Dumps(R"({"Bedrag": {"Bedrag": 100, "Perioden": [{"Maand": 25, "Bedrag": 200}]}})",
                          R"({"do": "frmScenario", "Len_Id": 0, "Vrij_Id": 1, "AantalJaar": 3, "DisableJaar": [2],
                              "modal": [{"do": "dump"}]})")
                        .at(0);
  EXPECT_FALSE(dump.contains("Filling"));
  EXPECT_FALSE(dump.contains("Gewijzigd"));
  EXPECT_EQ(dump["record"].dump(), Json::parse(R"({"Naam": "", "Invoersoort": 1, "Bedrag": 100, "Perioden": [
      {"Maand": 25, "Bedrag": 200, "Percentage": 0, "Korting": 0, "Eenmalig": false}]})")
                                       .dump());
  const Json& controls = dump["controls"];
  EXPECT_EQ(controls["txtBedrag(0)"]["visible"], false);
  EXPECT_EQ(controls["txtBedrag(1)"]["value"], 100);
  EXPECT_EQ(controls["txtBedrag(2)"]["enabled"], false);
  EXPECT_EQ(controls["txtBedrag(3)"]["value"], 200);
  EXPECT_FALSE(controls.contains("txtBedrag(4)"));
  EXPECT_FALSE(controls.contains("txtPercentage(1)"));
  EXPECT_EQ(controls["lblJaar(3)"]["caption"], "3");
}

TEST(Dump, AColumnThatWasRemovedStaysTheBoundRecord) {
  const Document document = ReadDocument(
      R"({"dossier": {"personen": [{}], "HuidigeLening": {"VrijeKolommen": [{}]},
                      "Leningen": [{"VrijeKolommen": [{"Id": 1, "DatumAanvang": "2024-01-01"}]}]}, "log": [],
          "steps": [{"do": "SetApplication", "Len_Id": 0, "Vrij_Id": 1}, {"do": "enter", "control": "TxtOm", "value": "x"},
                    {"do": "Validation", "answers": ["Ja"]}, {"do": "dump"}]})");
  std::string last;
  Session session(document, [&](std::string_view line) { last = line; });
  session.Run();
  EXPECT_EQ(Json::parse(last)["dump"]["record"]["Omschrijving"], "x");
  EXPECT_TRUE(session.Case().FindLening(1)->Kolommen().empty());
}

}  // namespace
}  // namespace brivane::replay::test
