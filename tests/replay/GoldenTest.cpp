// Each document of tests/golden gives exactly its reviewed transcript.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/replay/Program.h"

namespace brivane::replay::test {
namespace {

std::vector<std::string> GoldenNames() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(REPLAY_GOLDEN))
    if (entry.path().extension() == ".json") names.push_back(entry.path().stem().string());
  std::sort(names.begin(), names.end());
  return names;
}

class GoldenTest : public testing::TestWithParam<std::string> {};

TEST_P(GoldenTest, GivesItsTranscript) {
  const std::filesystem::path folder(REPLAY_GOLDEN);
  const Outcome outcome = RunReplay({(folder / (GetParam() + ".json")).string()});
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out, ReadFile(folder / (GetParam() + ".jsonl")));
}

std::string TestName(const testing::TestParamInfo<std::string>& info) {
  std::string name = info.param;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Sessions, GoldenTest, testing::ValuesIn(GoldenNames()), TestName);

TEST(Golden, EveryTranscriptHasItsDocument) {
  const std::vector<std::string> documents = GoldenNames();
  for (const auto& entry : std::filesystem::directory_iterator(REPLAY_GOLDEN))
    if (entry.path().extension() == ".jsonl") {
      EXPECT_TRUE(std::binary_search(documents.begin(), documents.end(), entry.path().stem().string())) << entry.path();
    }
}

}  // namespace
}  // namespace brivane::replay::test
