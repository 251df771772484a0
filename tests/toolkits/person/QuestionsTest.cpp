#include "tests/toolkits/person/Hands.h"

/// A message box is answered on purpose.
namespace brivane::test {
namespace {

using host::MessageAnswer;
using host::MessageStyle;
using std::chrono::milliseconds;

constexpr milliseconds kAtOnce{0};

class Questions : public ByHand {
 protected:
  [[nodiscard]] std::optional<MessageAnswer> Answer(const std::vector<BoxKey>& keys, milliseconds pause = kAtOnce) {
    return hands->Ask(MessageStyle::YesNoQuestion, pause, keys);
  }
};

TEST_F(Questions, ABareLetterAnswersNothing) {
  EXPECT_EQ(Answer({{.letter = 'j'}}), std::nullopt);
  EXPECT_EQ(Answer({{.letter = 'n'}}), std::nullopt);
  EXPECT_EQ(Answer({{.letter = 'j'}, {.letter = 'd'}, {.letter = 'r'}, {.letter = 'n'}}), std::nullopt);
}

TEST_F(Questions, ALetterWithAltAnswers) {
  EXPECT_EQ(Answer({{.letter = 'n', .alt = true}}), MessageAnswer::No);
  EXPECT_EQ(Answer({{.letter = 'j', .alt = true}}), MessageAnswer::Yes);
  EXPECT_EQ(Answer({{.letter = 'x', .alt = true}}), std::nullopt);
}

TEST_F(Questions, NoIsTheDefault) {
  EXPECT_EQ(Answer({{.key = Key::Enter}}), MessageAnswer::No);
  EXPECT_EQ(Answer({{.key = Key::Space}}), MessageAnswer::No);
  EXPECT_EQ(Answer({{.key = Key::Escape}}), MessageAnswer::No);
}

TEST_F(Questions, TabOrAnArrowGoesToYes) {
  EXPECT_EQ(Answer({{.key = Key::Tab}, {.key = Key::Space}}), MessageAnswer::Yes);
  EXPECT_EQ(Answer({{.key = Key::Tab}, {.key = Key::Enter}}), MessageAnswer::Yes);
  EXPECT_EQ(Answer({{.key = Key::Left}, {.key = Key::Space}}), MessageAnswer::Yes);
}

TEST_F(Questions, KeysThatWereUnderWayDoNotCount) {
  constexpr milliseconds pause{2000};
  EXPECT_EQ(Answer({{.letter = 'j', .alt = true}}, pause), std::nullopt);
  EXPECT_EQ(Answer({{.key = Key::Tab}, {.key = Key::Space}}, pause), std::nullopt);
  EXPECT_EQ(Answer({{.key = Key::Enter}}, pause), std::nullopt);
  EXPECT_EQ(Answer({{.key = Key::Escape}}, pause), std::nullopt);
}

TEST_F(Questions, KeysCountAfterAPause) {
  EXPECT_EQ(
      Answer({{.key = Key::Space}, {.letter = 'j', .alt = true, .after = milliseconds(1200)}}, milliseconds(1000)),
      MessageAnswer::Yes);
}

TEST_F(Questions, AKeyThatIsHeldDownDoesNotCount) {
  EXPECT_EQ(Answer({{.key = Key::Enter, .held = true}}), std::nullopt);
  EXPECT_EQ(Answer({{.key = Key::Escape, .held = true}}), std::nullopt);
  EXPECT_EQ(Answer({{.key = Key::Tab, .held = true}, {.key = Key::Enter}}), MessageAnswer::No);
}

TEST_F(Questions, AMessageIsClosedOnPurposeToo) {
  EXPECT_EQ(hands->Ask(MessageStyle::OkExclamation, kAtOnce, {{.key = Key::Enter}}), MessageAnswer::Ok);
  EXPECT_EQ(hands->Ask(MessageStyle::OkExclamation, kAtOnce, {{.key = Key::Escape}}), MessageAnswer::Ok);
  EXPECT_EQ(hands->Ask(MessageStyle::OkExclamation, milliseconds(2000), {{.key = Key::Enter}}), std::nullopt);
}

TEST_F(Questions, ShowWhatTheHostAddsBelowThem) {
  (void)Answer({});
  EXPECT_EQ(hands->Read(), "Wilt u dit?");
  hands->AddToQuestions("1 afwijkende kolom: Kinderopvang");
  (void)Answer({});
  EXPECT_EQ(hands->Read(), "Wilt u dit?\n\n1 afwijkende kolom: Kinderopvang");
  (void)hands->Ask(MessageStyle::OkExclamation, kAtOnce, {});
  EXPECT_EQ(hands->Read(), "Wilt u dit?");
}

}  // namespace
}  // namespace brivane::test
