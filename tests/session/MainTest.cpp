// A program that plays documents on a host of its own: that of the examples.

#include <gtest/gtest.h>

#include <string>

#include "tests/replay/Program.h"

namespace brivane::session {
namespace {

using replay::test::Outcome;

Outcome RunExample(const std::vector<std::string>& arguments, const std::string& input = {}) {
  return replay::test::RunReplay(arguments, input);
}

constexpr char kDocument[] =
    R"({"log": ["writes"], "steps": [{"do": "SetApplication", "Len_Id": 0, "Vrij_Id": 2},
                                     {"do": "enter", "control": "TxtBd", "value": 32.5}]})";
constexpr char kWithCase[] =
    R"({"dossier": {"personen": [{}]}, "log": [], "steps": [{"do": "SetApplication", "Len_Id": 0, "Vrij_Id": 2}]})";

TEST(Main, PlaysADocumentOnTheHost) {
  const Outcome outcome = RunExample({"-"}, kDocument);
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.out,
            "{\"step\": 1, \"do\": \"SetApplication\"}\n{\"step\": 2, \"do\": \"enter\"}\n"
            "{\"set\": \"Bedrag.Basisbedrag\", \"value\": 32.5}\n");
}

TEST(Main, ChecksWithoutPlaying) {
  const Outcome outcome = RunExample({"--check", "-"}, kDocument);
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out + outcome.err, "");
}

TEST(Main, RefusesTheCaseOfADocumentUnlessItIsPassedOver) {
  const std::string refusal =
      "dossier: the host brings a case and header texts of its own: leave this out, or have it passed over\n";
  for (const std::vector<std::string>& arguments : {std::vector<std::string>{"-"}, {"--check", "-"}}) {
    const Outcome refused = RunExample(arguments, kWithCase);
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_EQ(refused.out, "");
    EXPECT_EQ(refused.err, refusal);
  }
  const Outcome passedOver = RunExample({"--own-case", "-"}, kWithCase);
  EXPECT_EQ(passedOver.exitCode, 0);
  EXPECT_EQ(passedOver.err, "");
  EXPECT_EQ(passedOver.out, "{\"step\": 1, \"do\": \"SetApplication\"}\n");
}

TEST(Main, TellsWhatIsWrongWithTheCommandLine) {
  struct Case {
    std::vector<std::string> arguments;
    const char* told;
  };
  for (const Case& c : {Case{{"--own", "-"}, "--own: no such option (--help tells which there are)\n"},
                        Case{{"--version"}, "--version: no such option (--help tells which there are)\n"},
                        Case{{"-", "-"}, "command line: expected one file, not 2\n"},
                        Case{{"/nowhere/session.json"}, "/nowhere/session.json: cannot be opened\n"}}) {
    const Outcome outcome = RunExample(c.arguments);
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, c.told);
  }
}

TEST(Main, HelpNamesTheProgramAndItsOptions) {
  const Outcome outcome = RunExample({"--help"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_TRUE(outcome.out.starts_with("Usage: session_example_program [--check] [--own-case] FILE\n")) << outcome.out;
  for (std::size_t start = 0, end; (end = outcome.out.find('\n', start)) != std::string::npos; start = end + 1)
    EXPECT_LE(end - start, 100u) << outcome.out.substr(start, end - start);
}

TEST(Main, TheExampleHasADocumentOfItsOwn) {
  const Outcome outcome = RunExample({"--quit"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_NE(outcome.out.find("{\"set\": \"VrijeKolomItem.Omschrijving\", \"value\": \"Sportclub\"}\n"),
            std::string::npos);
  EXPECT_NE(outcome.out.find("{\"set\": \"Periode.Maand\", \"value\": 24, \"index\": 1}\n"), std::string::npos);
}

}  // namespace
}  // namespace brivane::session
