// Random sessions run twice in one program, on the toolkit in memory and against the registered component, and give the
// same transcript, every read of the host included.

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <vector>

#include "fuzz/SessionFromBytes.h"
#include "tests/component/replay/Apartment.h"
#include "tests/component/replay/RegisteredSubject.h"
#include "tests/component/replay/Transcripts.h"
#include <brivane/session/play/MemorySubject.h>

namespace brivane::latebound {
namespace {

[[maybe_unused]] const testing::Environment* const apartment = testing::AddGlobalTestEnvironment(new Apartment);

constexpr int kSessions = 120;
constexpr std::size_t kMostBytes = 600;

TEST(RandomSessions, GiveTheSameTranscriptThroughAutomation) {
  std::mt19937 random(20261121);
  std::uniform_int_distribution<std::size_t> sizes(40, kMostBytes);
  std::uniform_int_distribution<int> values(0, 255);
  std::size_t lines = 0;
  for (int i = 0; i < kSessions; ++i) {
    std::vector<std::uint8_t> bytes(sizes(random));
    for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(values(random));
    const std::string text = fuzz::SessionFromBytes(fuzz::Bytes(bytes)).dump();
    replay::Document document = replay::ReadDocument(text);
    document.log.insert(replay::Log::Reads);

    const Played expected = Play(document, replay::MakeMemorySubject);
    const Played actual = Play(document, MakeRegisteredSubject);
    ASSERT_EQ(expected.refusal, actual.refusal) << text;
    ASSERT_EQ(FirstDifference(expected.lines, actual.lines), std::nullopt) << "session " << i << ": " << text;
    ExpectNothingLeft();
    ASSERT_FALSE(HasFailure()) << text;
    lines += expected.lines.size();
  }
  RecordProperty("lines", static_cast<int>(lines));
  std::printf("%d sessions, %zu lines alike\n", kSessions, lines);
  EXPECT_GT(lines, static_cast<std::size_t>(kSessions));
}

}  // namespace
}  // namespace brivane::latebound
