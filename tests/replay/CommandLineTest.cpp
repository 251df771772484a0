#include <gtest/gtest.h>

#include <string>

#include "tests/replay/Program.h"

namespace brivane::replay::test {
namespace {

constexpr char kDocument[] = R"({"dossier": {"personen": [{}]}, "log": [], "steps": [{"do": "dump"}]})";

TEST(CommandLine, ADashReadsStandardInput) {
  const Outcome outcome = RunReplay({"-"}, kDocument);
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_TRUE(outcome.out.starts_with("{\"step\": 1, \"do\": \"dump\"}\n{\"dump\": {\"controls\": {"));
}

TEST(CommandLine, CheckRunsNothing) {
  const Outcome outcome = RunReplay({"--check", "-"}, kDocument);
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out + outcome.err, "");
}

TEST(CommandLine, WhatFollowsANulByteIsNotLeftOut) {
  const std::string document = std::string(kDocument) + "\n" + std::string(1, '\0') + "the rest";
  for (const char* option : {"--check", "--"}) {
    const Outcome outcome = RunReplay({option, "-"}, document);
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "line 2, column 1: a NUL byte\n");
  }
}

TEST(CommandLine, ADocumentLargerThanAnyIsNotReadIn) {
  // A file without end.
  const Outcome outcome = RunReplay({"--check", "/dev/zero"});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_EQ(outcome.err, "/dev/zero: is larger than 64 MiB\n");
}

TEST(CommandLine, HelpTellsEveryStepAndLine) {
  const Outcome outcome = RunReplay({"--help"});
  EXPECT_EQ(outcome.exitCode, 0);
  for (const std::string word : {"SetApplication",
                                 "\"Validation\"",
                                 "Toelichting.Validation",
                                 "BackColor",
                                 "BeeindigenZichtbaar",
                                 "resize",
                                 "click",
                                 "check",
                                 "toggle",
                                 "select",
                                 "enter",
                                 "modal",
                                 "frmScenario",
                                 "close",
                                 "dump",
                                 "answers",
                                 "pending",
                                 "faults",
                                 "\"report\"",
                                 "\"set\"",
                                 "\"get\"",
                                 "\"call\"",
                                 "\"event\"",
                                 "\"message\"",
                                 "\"focus\"",
                                 "\"opened\"",
                                 "\"closed\"",
                                 "\"result\"",
                                 "\"failed\"",
                                 "\"ignored\"",
                                 "--check",
                                 "EXIT CODE",
                                 "schema"})
    EXPECT_NE(outcome.out.find(word), std::string::npos) << word;
  for (std::size_t start = 0, end; (end = outcome.out.find('\n', start)) != std::string::npos; start = end + 1)
    EXPECT_LE(end - start, 100u) << outcome.out.substr(start, end - start);
}

TEST(CommandLine, TheExampleOfTheHelpPageRunsAsItSays) {
  const std::string help = RunReplay({"--help"}).out;
  const auto between = [&](const std::string& from, const std::string& to) {
    const std::size_t start = help.find(from) + from.size();
    return help.substr(start, help.find(to, start) - start);
  };
  std::string transcript = between("$ vrijekolom-replay term.json\n", "\n\n") + '\n';
  for (std::size_t at; (at = transcript.find("  {")) != std::string::npos;) transcript.erase(at, 2);
  EXPECT_EQ(RunReplay({"-"}, between("$ cat term.json\n", "$ vrijekolom-replay")).out, transcript);
}

TEST(CommandLine, VersionIsOneLine) {
  const Outcome outcome = RunReplay({"--version"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_TRUE(outcome.out.starts_with("vrijekolom-replay "));
}

TEST(CommandLine, MisuseIsOneLineAndExitsWithTwo) {
  const struct {
    std::vector<std::string> arguments;
    std::string line;
  } cases[] = {
      {{}, "command line: expected a file to replay, or - for standard input\n"},
      {{"--check"}, "command line: expected a file to replay, or - for standard input\n"},
      {{"a", "b"}, "command line: expected one file, not 2\n"},
      {{"--chekc", "-"}, "--chekc: no such option (--help tells which there are)\n"},
      {{"/nonexistent/session.json"}, "/nonexistent/session.json: cannot be opened\n"},
      {{"/"}, "/: cannot be read\n"},
      {{"--", "--help"}, "--help: cannot be opened\n"},
  };
  for (const auto& misuse : cases) {
    const Outcome outcome = RunReplay(misuse.arguments);
    EXPECT_EQ(outcome.err, misuse.line);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.exitCode, 2);
  }
}

TEST(CommandLine, ABadStepAtRunTimeComesAfterTheLinesBeforeIt) {
  const Outcome outcome = RunReplay({"-"}, R"({"dossier": {"personen": [{}]}, "log": ["results"], "steps": [
      {"do": "Validation", "ControleNr": 9}, {"do": "select", "control": "cboTermijn", "entry": "nooit"}]})");
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_EQ(outcome.out, "{\"step\": 1, \"do\": \"Validation\"}\n{\"result\": \"Validation\", \"Cancel\": false}\n");
  EXPECT_EQ(outcome.err, "steps[1].entry: \"cboTermijn\" has no entry \"nooit\" now\n");
}

}  // namespace
}  // namespace brivane::replay::test
