// The kit on a host with mistakes planted in it, one at a time and ten at once.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "tests/hostkit/FaultyHost.h"
#include <brivane/hostkit/Check.h>

namespace brivane::hostkit::test {
namespace {

using testing::HasSubstr;

Report CheckWith(const std::set<Mistake>& planted) {
  return Check([&] { return MakeFaultyHost(planted); });
}

std::vector<std::string> Members(const Report& report) {
  std::vector<std::string> members;
  for (const Finding& finding : report.findings) members.push_back(finding.member);
  return members;
}

/// A mistake, the member that is to be named for it, and what the finding says was written and came back.
struct Named {
  Mistake mistake;
  const char* member;
  const char* written;
  const char* cameBack;
};

const Named kNamed[] = {
    {Mistake::AmountInSinglePrecision, "Bedrag.Basisbedrag", "0.1 (a tenth)", "0.10000000149011612"},
    {Mistake::DateADayLate, "VrijeKolomItem.Contractvervaldatum", "2026-11-21 (ordinary)", "2026-11-22"},
    {Mistake::EmptyTextLost, "VrijeKolomItem.Omschrijving", "\"\" (empty)", "één"},
    {Mistake::TextCutAtAByte, "VrijeKolomItem.Productnaam", "\"Café 't Zoë – € 12,50\"", "\"Café 't Zo\\xC3\""},
    {Mistake::RemovalCountsFromZero, "Lening.VerwijderVrijeKolom", "removed position 2 of loan 1, which held [2, 1, 3]",
     "[2, 1]"},
    {Mistake::ColumnsInReverse, "Lening.VrijeKolomOp", "walked the current loan", "[3, 2, 1]"},
    {Mistake::ALoanObjectForEachQuestion, "Dossier.HuidigeLening", "asked twice", "another object"},
    {Mistake::LookupOfNothingThrows, "Lening.VrijeKolommen", "asked for column 32000", "an exception: \"map::at\""},
    {Mistake::ErrorNumberLost, "VrijeKolomItem.Omschrijving", "the host failed with error 1004", "\"440\""},
    {Mistake::SelectionToldTwice, "Application.VulCombo", "listening to the list's Click", "3"},
    {Mistake::SelectionNotMade, "Application.VulCombo", "code \"AB\"", "\"no entry\""},
    {Mistake::DurationClamped, "VrijeKolomItem.Looptijd", "999 (of a product)", "360"},
    {Mistake::PercentageRounded, "VrijeKolomItem.PercentageOvergang", "33.333332 (a third)", "33.33"},
    {Mistake::FlagsShareOnePlace, "VrijeKolomItem.UitsluitenAO", "VrijeKolomItem.UitsluitenWW of column 1", "true"},
};

class PlantedMistake : public testing::TestWithParam<Named> {};

TEST_P(PlantedMistake, IsFoundAndNamed) {
  const Named& named = GetParam();
  const Report report = CheckWith({named.mistake});
  bool found = false;
  for (const Finding& finding : report.findings)
    found = found || (finding.member == named.member && finding.written.find(named.written) != std::string::npos &&
                      finding.cameBack.find(named.cameBack) != std::string::npos && !finding.contract.empty());
  EXPECT_TRUE(found) << report.Text();
}

INSTANTIATE_TEST_SUITE_P(EachAlone, PlantedMistake, testing::ValuesIn(kNamed));

TEST(PlantedMistakes, AHostWithoutThemPasses) {
  const Report report = CheckWith({});
  EXPECT_TRUE(report.Ok()) << report.Text();
  EXPECT_THAT(report.leftOut, testing::IsEmpty());
  EXPECT_EQ(report.passed.size(), Checks().size());
}

/// What a page shows between "```text" and "```".
std::string ShownOutput(const char* path) {
  std::ifstream file(path);
  std::stringstream text;
  text << file.rdbuf();
  const std::string page = text.str();
  const std::string begins = "```text\n";
  const std::size_t begin = page.find(begins);
  if (begin == std::string::npos) return {};
  const std::size_t end = page.find("```", begin + begins.size());
  return page.substr(begin + begins.size(), end - begin - begins.size());
}

TEST(PlantedMistakes, TenAtOnceGiveTheReportThatThePageShows) {
  const Report report = CheckWith({Mistake::AmountInSinglePrecision, Mistake::DateADayLate, Mistake::EmptyTextLost,
                                   Mistake::TextCutAtAByte, Mistake::RemovalCountsFromZero, Mistake::ColumnsInReverse,
                                   Mistake::ALoanObjectForEachQuestion, Mistake::LookupOfNothingThrows,
                                   Mistake::ErrorNumberLost, Mistake::SelectionToldTwice});
  EXPECT_EQ(report.Text(), ShownOutput(HOSTKIT_PAGE));
  for (const char* const member :
       {"Bedrag.Basisbedrag", "VrijeKolomItem.Contractvervaldatum", "VrijeKolomItem.Omschrijving",
        "VrijeKolomItem.Productnaam", "Lening.VerwijderVrijeKolom", "Lening.VrijeKolomOp", "Dossier.HuidigeLening",
        "Lening.VrijeKolommen", "Application.VulCombo"})
    EXPECT_THAT(Members(report), testing::Contains(member));
}

TEST(HostKit, WhatAHostCannotDoIsLeftOutAndSaid) {
  const HostFactory clamped = [] { return MakeFaultyHost({Mistake::DurationClamped}); };
  Options options;
  options.cannot = {{"VrijeKolomItem.Looptijd/of a product", "a duration is at most 30 years"},
                    {"VrijeKolomItem.Termijn", "not yet"}};
  const Report field = Check(clamped, options, "VrijeKolomItem.Looptijd");
  ASSERT_EQ(field.leftOut.size(), 1U);
  EXPECT_EQ(field.leftOut[0].why, "a duration is at most 30 years");
  ASSERT_FALSE(field.Ok());
  EXPECT_THAT(field.findings[0].written, HasSubstr("32767"));
  const Report whole = Check(clamped, options, "VrijeKolomItem.Termijn");
  EXPECT_TRUE(whole.Ok());
  EXPECT_THAT(whole.passed, testing::IsEmpty());
  EXPECT_THAT(whole.Text(), HasSubstr("VrijeKolomItem.Termijn: not yet"));
}

TEST(HostKit, ACaseWithoutPersonsIsNamed) {
  const HostFactory factory = [] {
    Host host;
    const auto application = MemoryCase();
    application->dossier->personen.clear();
    host.application = application;
    host.factories = memory_host::Factories();
    return host;
  };
  const Report report = Check(factory, {}, "Dossier.Persoon");
  ASSERT_EQ(report.findings.size(), 1U) << report.Text();
  EXPECT_EQ(report.findings[0].member, "Dossier.Persoon");
  EXPECT_EQ(report.findings[0].written, "asked for person 1");
  EXPECT_EQ(report.findings[0].cameBack, "nothing");
}

TEST(HostKit, AFactoryWithoutAHostIsAFinding) {
  const Report empty = Check([] { return Host{}; }, {}, "Dossier.Lening");
  ASSERT_EQ(empty.findings.size(), 1U);
  EXPECT_EQ(empty.findings[0].member, "the factory");
  const Report failing = Check([]() -> Host { throw std::runtime_error("no disk"); }, {}, "Dossier.Lening");
  EXPECT_THAT(failing.findings.at(0).cameBack, HasSubstr("no disk"));
}

TEST(HostKit, AnUnknownCheckFails) {
  EXPECT_THROW(static_cast<void>(Check([] { return MakeFaultyHost({}); }, {}, "Termijn")), host::Error);
}

}  // namespace
}  // namespace brivane::hostkit::test
