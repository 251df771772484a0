// Every kind of bad input prints one line that names the place, and nothing runs.

#include <gtest/gtest.h>

#include <cctype>
#include <sstream>
#include <string>
#include <vector>

#include "replay/document/Document.h"
#include "tests/replay/Program.h"

namespace brivane::replay::test {
namespace {

struct BadDocument {
  std::string name;
  std::string document;
  std::string line;
};

void PrintTo(const BadDocument& bad, std::ostream* out) { *out << bad.name; }

std::string WithDossier(std::string document) {
  const std::string placeholder = "$DOSSIER";
  for (std::size_t at; (at = document.find(placeholder)) != std::string::npos;)
    document.replace(at, placeholder.size(), R"("dossier": {"personen": [{}]})");
  return document;
}

std::vector<BadDocument> BadDocuments() {
  std::vector<BadDocument> documents;
  std::istringstream table(ReadFile(REPLAY_TESTS "/bad-documents.txt"));
  BadDocument current;
  for (std::string line; std::getline(table, line);) {
    if (line.starts_with("== ")) {
      current = {line.substr(3), {}, {}};
    } else if (line.starts_with("-> ")) {
      current.line = line.substr(3);
      current.document = WithDossier(std::move(current.document));
      documents.push_back(current);
    } else {
      current.document += line + '\n';
    }
  }
  return documents;
}

class BadDocumentsTest : public testing::TestWithParam<BadDocument> {};

TEST_P(BadDocumentsTest, PrintsOneLineAndExitsWithTwo) {
  for (const std::vector<std::string>& arguments : {std::vector<std::string>{"-"}, {"--check", "-"}}) {
    const Outcome outcome = RunReplay(arguments, GetParam().document);
    EXPECT_EQ(outcome.err, GetParam().line + '\n');
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.exitCode, 2);
  }
}

std::string TestName(const testing::TestParamInfo<BadDocument>& info) {
  std::string name;
  for (const char c : info.param.name)
    if (std::isalnum(static_cast<unsigned char>(c)) != 0) {
      name += c;
    } else if (c == ' ') {
      name += '_';
    }
  return name;
}

INSTANTIATE_TEST_SUITE_P(Table, BadDocumentsTest, testing::ValuesIn(BadDocuments()), TestName);

std::string LineOf(const std::string& text) {
  try {
    (void)ReadDocument(text);
  } catch (const BadInput& problem) {
    return problem.what();
  }
  return "accepted";
}

TEST(BadDocuments, NestingIsRefusedAtADepthNotByACrash) {
  std::string deep = R"({"steps": )";
  for (int i = 0; i < 200'000; ++i) deep += '[';
  std::string place = "steps";
  for (int i = 0; i < 99; ++i) place += "[0]";
  EXPECT_EQ(LineOf(deep), place + ": nested too deeply");
}

TEST(BadDocuments, BytesThatAreNotUtf8AreRefused) {
  EXPECT_EQ(LineOf("{\"title\": \"\xff\"}"), "line 1, column 12: this is not JSON");
  EXPECT_EQ(LineOf("{\"title\": \"\xe2\x82\"}"), "line 1, column 14: this is not JSON");
}

TEST(BadDocuments, EveryPrefixOfADocumentIsRefused) {
  const std::string whole =
      R"({"dossier": {"personen": [{"naam": ["é", "", "\u20ac"]}]}, "steps": [{"do": "enter", "control": "TxtBd", "value": -1.5e2}]})";
  ASSERT_EQ(LineOf(whole), "accepted");
  for (std::size_t size = 0; size < whole.size(); ++size) EXPECT_NE(LineOf(whole.substr(0, size)), "accepted") << size;
}

}  // namespace
}  // namespace brivane::replay::test
