// A document played on a host that is not the tool's: what applies of it, what does not, and what is wrong.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "examples/host/SampleCase.h"
#include <brivane/host/Error.h>
#include <brivane/session/Play.h>
#include <brivane/session/document/Json.h>

namespace brivane::session {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

/// The smallest host, and how often it was made.
class Play : public testing::Test {
 protected:
  hostkit::HostFactory factory_ = [this] {
    ++made_;
    application_ = memory_host::SampleCase();
    hostkit::Host host;
    host.application = application_;
    host.factories = memory_host::Factories();
    return host;
  };
  [[nodiscard]] memory_host::VrijeKolomItem& Column() const { return *application_->dossier->huidig->kolommen.front(); }
  /// What is wrong with a document.
  [[nodiscard]] std::string Refusal(const std::string& document, DescribedCase described = DescribedCase::Refused) {
    try {
      static_cast<void>(session::Play(factory_, document, described));
    } catch (const BadInput& problem) {
      return problem.what();
    }
    return "";
  }

  int made_ = 0;
  std::shared_ptr<memory_host::Application> application_;
};

/// Worked out by hand from the rules of the editor and the form. The host words its headers as the description; the
/// second description meets the planned fault, so that the record keeps the first one. An entry of a scenario without a
/// kind stands at the end of its year: of year 2 that is month 24.
TEST_F(Play, TellsWhatAHostOfOnesOwnWasAsked) {
  const std::vector<std::string> transcript = session::Play(factory_, R"({
    "today": "2026-11-21",
    "title": "Kantoor",
    "log": ["writes", "calls", "events", "messages", "results"],
    "faults": [{"member": "VrijeKolomItem.Omschrijving", "op": "set", "nth": 2, "number": 1004,
                "description": "schijf vol", "source": "Opslag"}],
    "steps": [
      {"do": "SetApplication", "Len_Id": 0, "Vrij_Id": 1},
      {"do": "enter", "control": "TxtOm", "value": "Sportclub"},
      {"do": "enter", "control": "TxtBd", "value": 25},
      {"do": "enter", "control": "TxtOm", "value": "Zwemclub"},
      {"do": "frmScenario", "Len_Id": 0, "Vrij_Id": 1, "AantalJaar": 2, "modal": [
        {"do": "enter", "control": "txtBedrag", "index": 2, "value": 80},
        {"do": "click", "control": "cmdOK"}]},
      {"do": "frmScenario", "Len_Id": 0, "Vrij_Id": 9, "AantalJaar": 2},
      {"do": "frmScenario", "Len_Id": 4, "Vrij_Id": 1, "AantalJaar": 2}
    ]})");
  EXPECT_THAT(
      transcript,
      ElementsAre(
          R"({"step": 1, "do": "SetApplication"})", R"({"event": "HeightChanged"})", R"({"step": 2, "do": "enter"})",
          R"({"set": "VrijeKolomItem.Omschrijving", "value": "Sportclub"})",
          R"({"event": "RefreshTopDisplay", "text": "Sportclub"})", R"({"result": "enter", "Cancel": false})",
          R"({"step": 3, "do": "enter"})", R"({"set": "Bedrag.Basisbedrag", "value": 25})",
          R"({"event": "RefreshTopDisplay", "text": "Sportclub"})", R"({"result": "enter", "Cancel": false})",
          R"({"step": 4, "do": "enter"})",
          R"({"report": {"ApplicationTitle": "Kantoor", "ObjectName": "VrijeKolom", "Caption": "Kwandero", )"
          R"("ObjectDescription": "Vrije kolom", "Message": "Er is een fout opgetreden.", "ErrorNumber": "1004", )"
          R"("ErrorDescription": "schijf vol", "ErrorSource": "Opslag"}})",
          R"({"result": "enter", "Cancel": false})", R"({"step": 5, "do": "frmScenario"})",
          R"({"opened": "frmScenario", "BackColor": -2147483633, "AantalJaar": 2})",
          R"({"step": "5.1", "do": "enter"})", R"({"result": "enter", "Cancel": false})",
          R"({"step": "5.2", "do": "click"})", R"({"call": "Scenario.NieuwePeriode", "args": []})",
          R"({"set": "Periode.Maand", "value": 24, "index": 1})",
          R"({"set": "Periode.Bedrag", "value": 80, "index": 1})",
          R"({"set": "Periode.Eenmalig", "value": false, "index": 1})", R"({"closed": "frmScenario"})",
          R"({"step": 6, "do": "frmScenario"})", R"({"failed": {"number": 91, "description": "Object missing"}})",
          R"({"step": 7, "do": "frmScenario"})", R"({"failed": {"number": 91, "description": "Object missing"}})"));
  EXPECT_EQ(made_, 1);
  EXPECT_EQ(Column().omschrijving, "Sportclub");
  EXPECT_EQ(Column().bedrag->basisbedrag, 25);
  ASSERT_EQ(Column().bedrag->periodes.size(), 1u);
  EXPECT_EQ(Column().bedrag->periodes.front()->maand, 24);
  EXPECT_EQ(Column().bedrag->periodes.front()->bedrag, 80);
}

TEST_F(Play, TellsReadsWhereTheyAreLogged) {
  const std::vector<std::string> transcript =
      session::Play(factory_, R"({"log": ["reads"], "steps": [{"do": "SetApplication", "Len_Id": 0, "Vrij_Id": 2}]})");
  for (const char* const read :
       {R"({"get": "VrijeKolomItem.Omschrijving", "value": "Krant"})", R"({"get": "Bedrag.Basisbedrag", "value": 31})",
        R"({"get": "VrijeKolomItem.DatumAanvang", "value": "2031-04-01"})",
        R"({"get": "Persoon.Naam", "value": ["J.", "van", "Dam"]})"})
    EXPECT_THAT(transcript, testing::Contains(read));
}

TEST_F(Play, DumpsTheRecordOfTheHostInTheKeysOfADocument) {
  const std::vector<std::string> transcript = session::Play(factory_, R"({"log": [], "steps": [
    {"do": "SetApplication", "Len_Id": 0, "Vrij_Id": 1}, {"do": "dump"}]})");
  ASSERT_EQ(transcript.size(), 3u);
  const Json record = ParseJson(transcript.back())["dump"]["record"];
  EXPECT_EQ(record["Id"], 1);
  EXPECT_EQ(record["Omschrijving"], "Vereniging");
  EXPECT_EQ(record["DatumAanvang"], "2031-04-01");
  EXPECT_EQ(record["Kopregel"], "Vereniging");
  EXPECT_EQ(record["Bedrag"],
            Json::parse(R"({"Naam": "Vrije kolom", "Invoersoort": 1, "Bedrag": 12.5, "Perioden": []})"));
}

TEST_F(Play, PassesEachLineOnAsItHappens) {
  std::vector<std::string> descriptions;
  session::Play(factory_, R"({"log": ["events"], "steps": [{"do": "SetApplication", "Len_Id": 0, "Vrij_Id": 1},
                                                 {"do": "enter", "control": "TxtOm", "value": "Sportclub"}]})",
                [&](std::string_view) { descriptions.push_back(Column().omschrijving); });
  // The step, the change of height, the next step; then the header, when the record has the new description.
  EXPECT_THAT(descriptions, ElementsAre("Vereniging", "Vereniging", "Vereniging", "Sportclub"));
}

TEST_F(Play, NeedsNobodyWhoListens) {
  session::Play(factory_, R"({"steps": [{"do": "SetApplication", "Len_Id": 0, "Vrij_Id": 1},
                                        {"do": "enter", "control": "TxtOm", "value": "Sportclub"}]})",
                nullptr);
  EXPECT_EQ(Column().omschrijving, "Sportclub");
}

TEST_F(Play, ADocumentThatDescribesACaseOrHeaderTextsIsRefusedUnlessTheyArePassedOver) {
  const std::string steps = R"("steps": [{"do": "SetApplication", "Len_Id": 0, "Vrij_Id": 1}], "log": []})";
  for (const std::string key : {"dossier", "headers"})
    for (const std::string value : {R"({"personen": [{}]})", "\"record\"", "17"}) {
      const std::string document = "{\"" + key + "\": " + value + ", " + steps;
      EXPECT_EQ(Refusal(document),
                key + ": the host brings a case and header texts of its own: leave this out, or have it passed over");
      EXPECT_EQ(made_, 0);
      EXPECT_EQ(Refusal(document, DescribedCase::PassedOver), "");
      EXPECT_EQ(std::exchange(made_, 0), 1);
    }
}

TEST_F(Play, WhatIsWrongWithADocumentIsToldBeforeAHostIsMade) {
  EXPECT_EQ(Refusal("{"), "line 1, column 2: this is not JSON");
  EXPECT_EQ(Refusal("{}"), "steps: is required");
  EXPECT_EQ(Refusal(R"({"steps": [], "case": 1})"), "case: no such key here");
  EXPECT_EQ(Refusal(R"({"steps": [{"do": "click", "control": "TxtBedrag"}]})"),
            "steps[0].control: no control named \"TxtBedrag\"");
  EXPECT_EQ(made_, 0);
  EXPECT_THROW(Check(R"({"steps": [{"do": "jump"}]})"), BadInput);
  EXPECT_NO_THROW(Check(R"({"steps": []})"));
  EXPECT_THROW(Check(R"({"steps": [], "dossier": {}})"), BadInput);
  EXPECT_NO_THROW(Check(R"({"steps": [], "dossier": {}})", DescribedCase::PassedOver));
  EXPECT_EQ(made_, 0);
}

TEST_F(Play, WhatOnlyARunningSessionCanTellIsToldAfterTheLinesBefore) {
  std::vector<std::string> lines;
  const auto play = [&] {
    session::Play(factory_, R"({"log": [], "steps": [{"do": "SetApplication", "Len_Id": 0, "Vrij_Id": 1},
                                           {"do": "select", "control": "cboTermijn", "entry": "per eeuw"}]})",
                  [&](std::string_view line) { lines.emplace_back(line); });
  };
  EXPECT_THROW(play(), BadInput);
  EXPECT_THAT(lines, ElementsAre(R"({"step": 1, "do": "SetApplication"})"));
}

TEST_F(Play, AHostThatCannotBeUsedIsNamed) {
  const std::string document = R"({"steps": []})";
  const auto told = [&](const hostkit::HostFactory& factory) -> std::string {
    try {
      static_cast<void>(session::Play(factory, document));
    } catch (const std::exception& problem) {
      return problem.what();
    }
    return "";
  };
  EXPECT_EQ(told([&] {
              hostkit::Host host = factory_();
              host.application = nullptr;
              return host;
            }),
            "the host has no application");
  EXPECT_EQ(told([&] {
              hostkit::Host host = factory_();
              host.factories.MaakProcedureTrace = nullptr;
              return host;
            }),
            "the host has no tracers (MaakProcedureTrace)");
  EXPECT_EQ(told([&] {
              hostkit::Host host = factory_();
              host.factories.MaakDossierControle = nullptr;
              return host;
            }),
            "the host has no check of the case (MaakDossierControle)");
  EXPECT_EQ(told([]() -> hostkit::Host { throw std::runtime_error("no connection"); }), "no connection");
}

TEST_F(Play, WhatKeepsTheHostLivesUntilTheEnd) {
  std::weak_ptr<int> kept;
  bool alive = false;
  session::Play(
      [&] {
        hostkit::Host host = factory_();
        const auto keeps = std::make_shared<int>();
        kept = keeps;
        host.keeps = keeps;
        return host;
      },
      R"({"steps": [{"do": "SetApplication", "Len_Id": 0, "Vrij_Id": 1}]})",
      [&](std::string_view) { alive = !kept.expired(); });
  EXPECT_TRUE(alive);
  EXPECT_TRUE(kept.expired());
}

}  // namespace
}  // namespace brivane::session
