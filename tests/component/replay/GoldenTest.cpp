// Each document of tests/golden runs against the registered component, and gives the transcript that it gives on the
// toolkit in memory, to the letter: writes, calls, events, traces, reports, messages, failures and dumps. No line is
// left out. What a session made is gone after it, on both sides.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "tests/component/replay/Apartment.h"
#include "tests/component/replay/RegisteredSubject.h"
#include "tests/component/replay/Transcripts.h"
#include <brivane/session/play/MemorySubject.h>

namespace brivane::latebound {
namespace {

[[maybe_unused]] const testing::Environment* const apartment = testing::AddGlobalTestEnvironment(new Apartment);

std::vector<std::string> GoldenNames() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(REPLAY_GOLDEN))
    if (entry.path().extension() == ".json") names.push_back(entry.path().stem().string());
  std::sort(names.begin(), names.end());
  return names;
}

std::string Contents(const std::string& name) {
  std::ifstream file(std::filesystem::path(REPLAY_GOLDEN) / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = text.find('\n', start);
    lines.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return lines;
}

class RegisteredGoldenTest : public testing::TestWithParam<std::string> {};

TEST_P(RegisteredGoldenTest, GivesItsTranscript) {
  const replay::Document document = replay::ReadDocument(Contents(GetParam() + ".json"));
  const std::vector<std::string> expected = Lines(Contents(GetParam() + ".jsonl"));
  ASSERT_FALSE(expected.empty());
  const Played played = Play(document, MakeRegisteredSubject);
  EXPECT_EQ(played.refusal, "");
  EXPECT_EQ(FirstDifference(expected, played.lines), std::nullopt);
  ExpectNothingLeft();
  if (!HasFailure()) std::printf("%s: %zu lines alike\n", GetParam().c_str(), expected.size());
}

// The reviewed transcripts hold the reads of some documents; the toolkit in memory has those of the others.
TEST_P(RegisteredGoldenTest, ReadsTheHostAlike) {
  replay::Document document = replay::ReadDocument(Contents(GetParam() + ".json"));
  document.log.insert(replay::Log::Reads);
  const Played expected = Play(document, replay::MakeMemorySubject);
  const Played played = Play(document, MakeRegisteredSubject);
  EXPECT_EQ(FirstDifference(expected.lines, played.lines), std::nullopt);
  ExpectNothingLeft();
  if (!HasFailure()) std::printf("%s: %zu lines alike, reads included\n", GetParam().c_str(), expected.lines.size());
}

std::string TestName(const testing::TestParamInfo<std::string>& info) {
  std::string name = info.param;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Sessions, RegisteredGoldenTest, testing::ValuesIn(GoldenNames()), TestName);

TEST(RegisteredGolden, ThereAreSessions) { EXPECT_GE(GoldenNames().size(), 24U); }

}  // namespace
}  // namespace brivane::latebound
