// The project's own hosts, put through the door that any host goes through: each document of tests/golden gives there
// what the tool gives for it.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "replay/play/Session.h"
#include "tests/replay/Program.h"
#include <brivane/session/Play.h>

namespace brivane::session {
namespace {

std::vector<std::string> GoldenNames() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(SESSION_GOLDEN))
    if (entry.path().extension() == ".json") names.push_back(entry.path().stem().string());
  std::sort(names.begin(), names.end());
  return names;
}

class Golden : public testing::TestWithParam<std::string> {};

TEST_P(Golden, IsPlayedOnTheReferenceHostAsTheToolPlaysIt) {
  const std::filesystem::path folder(SESSION_GOLDEN);
  const std::string text = replay::test::ReadFile(folder / (GetParam() + ".json"));
  const auto factory = [&] {
    replay::LiveHost live = replay::HostOf(replay::ReadDocument(text));
    hostkit::Host host;
    host.application = std::move(live.application);
    host.factories = std::move(live.factories);
    return host;
  };
  std::string transcript;
  for (const std::string& line : Play(factory, text, DescribedCase::PassedOver)) transcript += line + '\n';
  EXPECT_EQ(transcript, replay::test::ReadFile(folder / (GetParam() + ".jsonl")));
}

std::string TestName(const testing::TestParamInfo<std::string>& info) {
  std::string name = info.param;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Sessions, Golden, testing::ValuesIn(GoldenNames()), TestName);

TEST(GoldenDocuments, AreThere) { EXPECT_GT(GoldenNames().size(), 20u); }

}  // namespace
}  // namespace brivane::session
