// Sessions worked out by hand: what prints, in which order, and what does not.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dossier/model/Application.h"
#include "dossier/model/DossierControle.h"
#include "replay/play/Session.h"
#include <brivane/session/play/MemorySubject.h>

namespace brivane::replay::test {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

/// What a session printed, and the problem that ended it.
struct Transcribed {
  std::vector<std::string> lines;
  std::string problem;
};

Transcribed Run(const std::string& text) {
  const Document document = ReadDocument(text);
  Transcribed transcribed;
  Session session(document, [&](std::string_view line) { transcribed.lines.emplace_back(line); });
  try {
    session.Run();
  } catch (const BadInput& problem) {
    transcribed.problem = problem.what();
  }
  return transcribed;
}

/// A session on one column of the current situation, with its log and steps.
Transcribed RunSteps(const std::string& log, const std::string& steps, const std::string& column = "{}",
                     const std::string& more = "") {
  return Run(R"({"today": "2026-11-21", "dossier": {"personen": [{}], "HuidigeLening": {"VrijeKolommen": [)" + column +
             R"(]}}, "log": [)" + log + "]" + more + R"(, "steps": [)" + steps + "]}");
}

constexpr char kBind[] = R"({"do": "SetApplication", "Len_Id": 0, "Vrij_Id": 1})";

std::vector<std::string> After(std::vector<std::string> lines, const std::string& first) {
  const auto found = std::find(lines.begin(), lines.end(), first);
  EXPECT_NE(found, lines.end()) << first;
  return {found, lines.end()};
}

// The log

TEST(Log, StepsAlwaysPrint) {
  EXPECT_THAT(RunSteps("", kBind).lines, ElementsAre(R"({"step": 1, "do": "SetApplication"})"));
}

TEST(Log, EachNameChoosesItsLines) {
  const std::string steps = std::string(kBind) +
                            R"(, {"do": "enter", "control": "TxtBd", "value": 5},
                                 {"do": "enter", "control": "TxtBd", "value": "x"},
                                 {"do": "enter", "control": "txtMaatschappij", "value": "x"},
                                 {"do": "Validation", "ControleNr": 1},
                                 {"do": "Validation", "Cancel": true})";
  const auto without = [&](const std::string& log) {
    std::vector<std::string> lines;
    for (std::string& line : RunSteps(log, steps, R"({"Kopregel": "k", "Voorstel": ["J", "J", ""]})").lines)
      if (!line.starts_with(R"({"step")")) lines.push_back(line.substr(0, line.find(':')));
    return lines;
  };
  EXPECT_THAT(without(R"("writes")"), ElementsAre(R"({"set")"));
  EXPECT_THAT(without(R"("calls")"), ElementsAre(R"({"call")", R"({"call")"));
  EXPECT_THAT(without(R"("events")"), ElementsAre(R"({"event")", R"({"event")"));
  EXPECT_THAT(without(R"("messages")"), ElementsAre(R"({"report")", R"({"message")"));
  EXPECT_THAT(without(R"("results")"),
              ElementsAre(R"({"result")", R"({"result")", R"({"ignored")", R"({"result")", R"({"result")"));
  EXPECT_THAT(without(""), IsEmpty());
  EXPECT_THAT(without(R"("trace")"), testing::Each(testing::AnyOf(R"({"enter")", R"({"leave")", R"({"error")")));
  EXPECT_THAT(without(R"("reads")"), testing::Each(R"({"get")"));
}

TEST(Log, ReadsPrintWithTheirIndex) {
  const auto lines = RunSteps(R"("reads")", std::string(kBind) + R"(, {"do": "BeeindigenZichtbaar", "value": true},
      {"do": "check", "control": "ChkVoorstel", "index": 3, "value": 0})",
                              R"({"Voorstel": ["", "", "J"]})")
                         .lines;
  EXPECT_THAT(
      After(lines, R"({"step": 3, "do": "check"})"),
      ElementsAre(R"({"step": 3, "do": "check"})", R"({"get": "VrijeKolomItem.Voorstel", "value": "", "index": 1})",
                  R"({"get": "VrijeKolomItem.Voorstel", "value": "", "index": 2})",
                  R"({"get": "VrijeKolomItem.Voorstel", "value": "J", "index": 3})",
                  R"({"get": "VrijeKolomItem.Voorstel", "value": "", "index": 1})",
                  R"({"get": "VrijeKolomItem.Voorstel", "value": "", "index": 2})",
                  R"({"get": "VrijeKolomItem.Voorstel", "value": "N", "index": 3})",
                  R"({"get": "VrijeKolomItem.Voorstel", "value": "", "index": 1})",
                  R"({"get": "VrijeKolomItem.Voorstel", "value": "", "index": 2})",
                  R"({"get": "VrijeKolomItem.Voorstel", "value": "N", "index": 3})",
                  R"({"get": "VrijeKolomItem.Voorstel", "value": "N", "index": 3})"));
}

// Waiting user actions

TEST(Pending, TheRestRunsAfterTheStep) {
  const auto lines = RunSteps(R"("results", "events")", R"({"do": "enter", "control": "TxtOm", "value": "a",
      "pending": [{"do": "dump", "pending": [{"do": "toggle", "control": "Toelichting.jnAO", "value": 1}]},
                  {"do": "enter", "control": "TxtOm", "value": "b"}]})")
                         .lines;
  ASSERT_EQ(lines.size(), 7u);
  EXPECT_EQ(lines[0], R"({"step": 1, "do": "enter"})");
  EXPECT_EQ(lines[1], R"({"result": "enter", "Cancel": false})");
  EXPECT_EQ(lines[2], R"({"step": "1.1", "do": "dump"})");
  EXPECT_TRUE(lines[3].starts_with(R"({"dump": {"controls": {)"));
  EXPECT_EQ(lines[4], R"({"step": "1.1.1", "do": "toggle"})");
  EXPECT_EQ(lines[5], R"({"step": "1.2", "do": "enter"})");
  EXPECT_EQ(lines[6], R"({"result": "enter", "Cancel": false})");
}

TEST(Pending, RunsAfterAnIgnoredStepToo) {
  EXPECT_THAT(RunSteps(R"("results")", std::string(kBind) +
                                           R"(, {"do": "enter", "control": "TxtDtEind", "value": 0,
                                               "pending": [{"do": "toggle", "control": "Toelichting.jnAO", "value": 1}]})")
                  .lines,
              ElementsAre(R"({"step": 1, "do": "SetApplication"})", R"({"step": 2, "do": "enter"})",
                          R"({"ignored": "TxtDtEind"})", R"({"step": "2.1", "do": "toggle"})"));
}

TEST(Pending, EveryWaitingActionRunsWhenEventsMayRun) {
  EXPECT_THAT(
      After(RunSteps(R"("events", "writes", "results")", std::string(kBind) +
                                                             R"(, {"do": "Toelichting.Validation", "pending": [
                                        {"do": "toggle", "control": "Toelichting.jnAO", "value": 1},
                                        {"do": "toggle", "control": "Toelichting.jnAO", "value": 2}]})")
                .lines,
            R"({"step": 2, "do": "Toelichting.Validation"})"),
      ElementsAre(R"({"step": 2, "do": "Toelichting.Validation"})", R"({"pending": true})",
                  R"({"step": "2.1", "do": "toggle"})", R"({"set": "VrijeKolomItem.UitsluitenAO", "value": true})",
                  R"({"event": "Toelichting.Changed"})", R"({"step": "2.2", "do": "toggle"})",
                  R"({"set": "VrijeKolomItem.UitsluitenAO", "value": false})", R"({"event": "Toelichting.Changed"})",
                  R"({"result": "Toelichting.Validation", "Cancel": false})"));
}

TEST(Pending, OnAFormThatIsClosedDoesNotRun) {
  EXPECT_THAT(
      RunSteps(R"("events", "results")", R"({"do": "frmScenario", "Len_Id": 0, "Vrij_Id": 1, "AantalJaar": 2, "modal": [
      {"do": "enter", "control": "txtBedrag", "index": 1, "value": 3,
       "pending": [{"do": "check", "control": "chkAanvullen", "value": 1}]},
      {"do": "close", "pending": [{"do": "dump"}]}, {"do": "dump"}]})")
          .lines,
      ElementsAre(R"({"step": 1, "do": "frmScenario"})",
                  R"({"opened": "frmScenario", "BackColor": -2147483633, "AantalJaar": 2})",
                  R"({"step": "1.1", "do": "enter"})", R"({"result": "enter", "Cancel": false})",
                  R"({"step": "1.1.1", "do": "check"})", R"({"step": "1.2", "do": "close"})",
                  R"({"closed": "frmScenario"})"));
}

// The form

TEST(Modal, AFormThatNoInnerStepClosesIsClosedByItsBox) {
  EXPECT_THAT(RunSteps(R"("events", "calls")", R"({"do": "frmScenario", "Len_Id": 0, "Vrij_Id": 1, "AantalJaar": -3})",
                       R"({"Bedrag": {"Perioden": [{"Maand": 25}]}})")
                  .lines,
              ElementsAre(R"({"step": 1, "do": "frmScenario"})",
                          R"({"opened": "frmScenario", "BackColor": -2147483633, "AantalJaar": -3})",
                          R"({"closed": "frmScenario"})"));
}

TEST(Modal, InnerStepsHaveTheirOwnAnswers) {
  const auto lines = RunSteps(R"("messages")", std::string(kBind) + R"(,
      {"do": "click", "control": "cmdScenario", "answers": ["Ja"], "modal": [
         {"do": "enter", "control": "txtBedrag", "index": 1, "value": "x", "answers": ["Nee", "OK"]}]})")
                         .lines;
  EXPECT_THAT(
      lines,
      ElementsAre(
          R"({"step": 1, "do": "SetApplication"})", R"({"step": 2, "do": "click"})",
          R"({"step": "2.1", "do": "enter"})",
          R"({"message": {"title": "Kwandero", "text": "Er is een fout opgetreden.\r\n13: Type mismatch", "style": 48}, "answer": "OK"})"));
}

TEST(Modal, TheLookUpOfTheColumnDoesNotCount) {
  const Document document = ReadDocument(
      R"({"dossier": {"personen": [{}], "HuidigeLening": {"VrijeKolommen": [{}]}},
          "steps": [{"do": "frmScenario", "Len_Id": 0, "Vrij_Id": 1, "AantalJaar": 1}]})");
  Session session(document, [](std::string_view) {});
  session.Run();
  for (const Member member : {Member::Application_Dossier, Member::Dossier_Lening, Member::Dossier_HuidigeLening,
                              Member::Lening_VrijeKolom, Member::Lening_VrijeKolommen, Member::VrijeKolomItem_Bedrag})
    EXPECT_EQ(session.Ledger().Count(member, Op::Get), 0u) << NameOf(member);
  EXPECT_GT(session.Ledger().Count(Member::Scenario_Invoersoort, Op::Get), 0u);
}

// Bad input that only a running session can tell

TEST(BadStep, AnEntryThatTheListHasNotEndsTheSessionBeforeTheStep) {
  const Transcribed transcribed =
      RunSteps("", std::string(kBind) + R"(, {"do": "select", "control": "cboTermijn", "entry": "per week"},
                                            {"do": "dump"})");
  EXPECT_THAT(transcribed.lines, ElementsAre(R"({"step": 1, "do": "SetApplication"})"));
  EXPECT_EQ(transcribed.problem, R"(steps[1].entry: "cboTermijn" has no entry "per week" now)");
}

TEST(BadStep, APositionPastTheListEndsTheSession) {
  const Transcribed transcribed = RunSteps("", R"({"do": "select", "control": "cboTermijn", "index": 5})");
  EXPECT_THAT(transcribed.lines, IsEmpty());
  EXPECT_EQ(transcribed.problem, R"(steps[0].index: "cboTermijn" has no entry 5 now)");
}

TEST(BadStep, AnEntryOfAListOutOfReachIsNotLookedUp) {
  EXPECT_THAT(RunSteps(R"("results")",
                       std::string(kBind) + R"(, {"do": "select", "control": "cboMaatschappij", "entry": "Nergens"})")
                  .lines,
              ElementsAre(R"({"step": 1, "do": "SetApplication"})", R"({"step": 2, "do": "select"})",
                          R"({"ignored": "cboMaatschappij"})"));
}

TEST(BadStep, ARowThatTheFormHasNotEndsTheSessionWithoutAWordFromTheLogic) {
  const Transcribed transcribed =
      RunSteps(R"("events", "messages", "trace")", R"({"do": "frmScenario", "Len_Id": 0, "Vrij_Id": 1, "AantalJaar": 2,
      "modal": [{"do": "enter", "control": "txtBedrag", "index": 2, "value": 1},
                {"do": "enter", "control": "txtPercentage", "index": 2, "value": 1},
                {"do": "close"}]}, {"do": "dump"})");
  EXPECT_THAT(After(transcribed.lines, R"({"step": 1, "do": "frmScenario"})"),
              ElementsAre(R"({"step": 1, "do": "frmScenario"})",
                          R"({"opened": "frmScenario", "BackColor": -2147483633, "AantalJaar": 2})",
                          R"({"step": "1.1", "do": "enter"})"));
  EXPECT_EQ(transcribed.problem, R"x(steps[0].modal[1].index: the form has no "txtPercentage(2)")x");
}

TEST(BadStep, OneAmongTheWaitingActionsEndsTheSessionToo) {
  const Transcribed transcribed = RunSteps(R"("events", "messages", "trace", "results")", std::string(kBind) + R"(,
      {"do": "Toelichting.Validation", "pending": [{"do": "select", "control": "cboTermijn", "index": 9}]}, {"do": "dump"})");
  EXPECT_THAT(After(transcribed.lines, R"({"step": 2, "do": "Toelichting.Validation"})"),
              ElementsAre(R"({"step": 2, "do": "Toelichting.Validation"})",
                          R"({"enter": "Validation", "in": "Toelichting"})", R"({"pending": true})"));
  EXPECT_EQ(transcribed.problem, R"(steps[1].pending[0].index: "cboTermijn" has no entry 9 now)");
}

// Faults

TEST(Faults, AFailureWhileTheControlsAreMadeEndsTheSession) {
  EXPECT_THAT(
      RunSteps(
          R"("results", "trace")", kBind, "{}",
          R"(, "faults": [{"member": "ProcedureTrace.LeaveProcedure", "op": "call", "nth": 1, "number": 5, "description": "vol"}])")
          .lines,
      ElementsAre(R"({"enter": "Fill_Listview", "in": "Toelichting"})",
                  R"({"failed": {"number": 5, "description": "vol"}})"));
}

TEST(Faults, AnObjectIsAGetAndACallAlikeAndPrintsNoLine) {
  for (const std::string op : {"get", "call"}) {
    const auto lines = RunSteps(R"("reads", "messages")", kBind, "{}",
                                R"(, "faults": [{"member": "Dossier.Persoon", "op": ")" + op +
                                    R"(", "nth": 2, "number": 7, "description": "weg", "source": "Host"}])")
                           .lines;
    EXPECT_EQ(lines[lines.size() - 2], R"({"get": "Persoon.Naam", "value": ["J.", "van", "Dam"]})");
    EXPECT_EQ(lines.back(),
              R"({"report": {"ApplicationTitle": "Dossier", "ObjectName": "VrijeKolom", "Caption": "Kwandero", )"
              R"("ObjectDescription": "Vrije kolom", "Message": "Er is een fout opgetreden.", )"
              R"("ErrorNumber": "7", "ErrorDescription": "weg", "ErrorSource": "Host"}})");
  }
}

TEST(Faults, OfTwoThatAreDueAtOnceTheFirstInTheDocumentStrikes) {
  const auto lines = RunSteps(R"("results")", R"({"do": "frmScenario", "Len_Id": 0, "Vrij_Id": 1, "AantalJaar": 2})",
                              R"({"Bedrag": {"Perioden": [{"Maand": 25}]}})",
                              R"(, "faults": [{"member": "Scenario.Periode", "op": "call", "nth": 2, "number": 8},
                               {"member": "Scenario.Periode", "op": "get", "nth": 2, "number": 7}])")
                         .lines;
  EXPECT_EQ(lines.back(), R"({"failed": {"number": 8, "description": ""}})");
}

TEST(Faults, AFailedWriteLeavesTheRecord) {
  const Document document = ReadDocument(
      R"({"dossier": {"personen": [{}], "HuidigeLening": {"VrijeKolommen": [{"Omschrijving": "was"}]}},
          "faults": [{"member": "VrijeKolomItem.Omschrijving", "op": "set", "nth": 1, "number": 5}],
          "steps": [{"do": "SetApplication", "Len_Id": 0, "Vrij_Id": 1},
                    {"do": "enter", "control": "TxtOm", "value": "wordt"}]})");
  Session session(document, [](std::string_view) {});
  session.Run();
  EXPECT_EQ(session.Case().FindKolom(0, 1)->Omschrijving(), "was");
  EXPECT_EQ(session.Ledger().Struck(), 1u);
}

TEST(Faults, AnyAccessCanBeFailedByItsPosition) {
  const Document document = ReadDocument(
      R"({"dossier": {"personen": [{}], "HuidigeLening": {"VrijeKolommen": [{}]}},
          "steps": [{"do": "SetApplication", "Len_Id": 0, "Vrij_Id": 1}]})");
  Session whole(document, [](std::string_view) {});
  std::vector<std::pair<Member, Op>> accesses;
  whole.Ledger().OnAccess = [&](Member member, Op op) { accesses.emplace_back(member, op); };
  whole.Run();
  ASSERT_EQ(accesses.size(), whole.Ledger().Accesses());
  ASSERT_EQ(accesses[2], std::pair(Member::ProcedureTrace_EnterProcedure, Op::Call));
  ASSERT_EQ(accesses[3], std::pair(Member::Application_Dossier, Op::Get));

  std::vector<std::string> lines;
  Session faulty(document, [&](std::string_view line) { lines.emplace_back(line); });
  faulty.Ledger().FailAtPosition(4, host::Error(5, "weg", "Host"));
  faulty.Run();
  EXPECT_EQ(faulty.Ledger().Struck(), 1u);
  EXPECT_EQ(lines[4], R"({"error": "SetApplication", "in": "VrijeKolom"})");
}

// Played by a program

constexpr char kFormSteps[] = R"({"today": "2026-11-21", "dossier": {"personen": [{}],
  "HuidigeLening": {"VrijeKolommen": [{"Termijn": 12, "Looptijd": 60, "DatumAanvang": "2026-01-01"}]}},
  "log": ["events"], "steps": [
    {"do": "SetApplication", "Len_Id": 0, "Vrij_Id": 1},
    {"do": "click", "control": "cmdScenario", "modal": [
      {"do": "enter", "control": "txtBedrag", "index": 2, "value": 5},
      {"do": "enter", "control": "txtBedrag", "index": 3, "value": 6}]},
    {"do": "enter", "control": "TxtBd", "value": 7}]})";

TEST(Stepped, IsToldOfEachStepOnceItHasRunAndOfAFormsStepsBeforeTheOneThatOpenedIt) {
  const Document document = ReadDocument(kFormSteps);
  Session session(document, [](std::string_view) {});
  std::vector<std::string> told;
  session.stepped = [&](const std::string& number, const Step& step) {
    told.push_back(number + ' ' + step.name);
    return Onward::GoOn;
  };
  session.Run();
  EXPECT_THAT(told, ElementsAre("1 SetApplication", "2.1 enter", "2.2 enter", "2 click", "3 enter"));
}

TEST(Stepped, StopsTheSessionAndClosesAFormThatIsOpen) {
  const Document document = ReadDocument(kFormSteps);
  std::vector<std::string> lines;
  Session session(document, [&](std::string_view line) { lines.emplace_back(line); });
  session.stepped = [](const std::string& number, const Step&) {
    return number == "2.1" ? Onward::Stop : Onward::GoOn;
  };
  session.Run();
  // The click that opened the form ends as it does; nothing follows it.
  EXPECT_THAT(After(lines, R"({"step": "2.1", "do": "enter"})"),
              ElementsAre(R"({"step": "2.1", "do": "enter"})", R"({"closed": "frmScenario"})",
                          R"({"event": "RefreshTopDisplay", "text": ""})"));
}

TEST(LiveHost, IsWhatTheSessionWorksOnWhateverItsDocumentStartsFrom) {
  Document document = ReadDocument(kFormSteps);
  document.steps.erase(document.steps.begin() + 1);
  const auto live = std::make_shared<dossier::Dossier>(document.dossier, std::make_shared<dossier::Environment>());
  document.dossier = {};
  int tracers = 0;
  const host::HostFactories factories{
      [&](std::string_view) {
        ++tracers;
        return std::make_shared<dossier::Tracer>();
      },
      [](std::string_view) { return std::make_shared<dossier::DossierControle>([] { return host::Date(46000); }); }};
  Session session(
      document, [](std::string_view) {}, {live, std::make_shared<dossier::Application>(live), factories},
      MakeMemorySubject);
  session.Run();
  EXPECT_EQ(live->FindKolom(0, 1)->Bedrag()->Bedrag(), 7);
  EXPECT_EQ(&session.Case(), live.get());
  // One for the editor, one for its explanation.
  EXPECT_EQ(tracers, 2);
}

}  // namespace
}  // namespace brivane::replay::test
