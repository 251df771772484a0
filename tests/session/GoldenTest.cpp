// The reference host in memory, put through the door that any host goes through: each document of tests/golden gives
// there what the tool gives for it.

#include "replay/play/Session.h"
#include "tests/session/Golden.h"

namespace brivane::session::test {
namespace {

class Golden : public testing::TestWithParam<std::string> {};

TEST_P(Golden, IsPlayedOnTheReferenceHostAsTheToolPlaysIt) {
  const std::string document = Document(GetParam());
  const auto factory = [&] {
    replay::LiveHost live = replay::HostOf(replay::ReadDocument(document));
    hostkit::Host host;
    host.application = std::move(live.application);
    host.factories = std::move(live.factories);
    return host;
  };
  EXPECT_EQ(Played(factory, document), Transcript(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Sessions, Golden, testing::ValuesIn(GoldenNames()), TestName);

TEST(GoldenDocuments, AreThere) { EXPECT_GT(GoldenNames().size(), 20u); }

}  // namespace
}  // namespace brivane::session::test
