#include "tests/toolkits/person/Hands.h"
#include <brivane/controls/Choices.h>
#include <brivane/controls/Plain.h>
#include <brivane/controls/TextBox.h>

/// Passing by an entry of a list is not choosing it.
namespace brivane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ListsByHand : public ByHand {
 protected:
  ListsByHand() {
    subscriptions += list_.Click.Connect([this] { log.push_back(list_.ListIndex() < 0 ? "none" : list_.Text()); });
    list_.SetListIndex(0);
    log.clear();
    hands->GiveFocus(list_);
  }
  [[nodiscard]] int Shown() { return hands->ShownEntry(list_); }

  controls::ListBox& list_ = Get<controls::ListBox>("cboTermijn");
};

TEST_F(ListsByHand, NoKeyChoosesByPassing) {
  struct Case {
    Key key;
    int shown;
  };
  for (const Case& c : {Case{Key::End, 2}, Case{Key::Home, 0}, Case{Key::Down, 1}, Case{Key::Down, 2},
                        Case{Key::Down, 2}, Case{Key::Up, 1}}) {
    hands->Press(c.key);
    EXPECT_EQ(Shown(), c.shown) << static_cast<int>(c.key);
  }
  hands->Type("p");
  EXPECT_EQ(Shown(), 2);
  EXPECT_EQ(list_.ListIndex(), 0);
  EXPECT_THAT(log, IsEmpty());
}

TEST_F(ListsByHand, EnterChoosesOnce) {
  hands->Press(Key::Down);
  hands->Press(Key::Down);
  hands->Press(Key::Enter);
  hands->Press(Key::Enter);
  EXPECT_THAT(log, ElementsAre("per jaar"));
  EXPECT_EQ(hands->Focused(), "cboTermijn");
  hands->Press(Key::Escape);
  EXPECT_EQ(Shown(), 2);
}

TEST_F(ListsByHand, EscapePutsBackWhatStands) {
  hands->Press(Key::End);
  hands->Press(Key::Escape);
  EXPECT_EQ(Shown(), 0);
  hands->Press(Key::Tab);
  EXPECT_THAT(log, IsEmpty());
}

TEST_F(ListsByHand, LeavingChooses) {
  hands->Press(Key::Down);
  hands->Press(Key::Tab);
  EXPECT_THAT(log, ElementsAre("per kwartaal"));
  EXPECT_EQ(hands->Focused(), "cboLeeg");
  hands->GiveFocus(list_);
  hands->Press(Key::Down);
  hands->Click(Control("txtNaam"));
  EXPECT_EQ(hands->Focused(), "txtNaam");
  hands->GiveFocus(list_);
  hands->Press(Key::Home);
  hands->PressAlt('n');
  EXPECT_EQ(hands->Focused(), "txtNaam");
  hands->GiveFocus(list_);
  hands->Press(Key::Down);
  hands->GiveFocus(Control("txtNaam"));
  EXPECT_THAT(log, ElementsAre("per kwartaal", "per jaar", "per maand", "per kwartaal"));
}

TEST_F(ListsByHand, ComingBackToWhatStandsIsNoChoice) {
  hands->Press(Key::Down);
  hands->Press(Key::Up);
  hands->Press(Key::Tab);
  EXPECT_THAT(log, IsEmpty());
}

TEST_F(ListsByHand, AChoiceUnderWayGoesBeforeWhatActsElsewhere) {
  subscriptions += Get<controls::JaNee>("jnDiep").Change.Connect([this] { log.emplace_back("jnDiep"); });
  subscriptions += Get<controls::Button>("cmdDoen").Click.Connect([this] { log.emplace_back("cmdDoen"); });
  hands->Press(Key::Down);
  hands->Click(Control("jnDiep"));  // its left half is "Ja"
  hands->GiveFocus(list_);
  hands->Press(Key::Down);
  hands->Click(Control("cmdDoen"));
  EXPECT_THAT(log, ElementsAre("per kwartaal", "jnDiep", "per jaar", "cmdDoen"));
}

TEST_F(ListsByHand, AHostThatAsksGetsTheChoiceUnderWay) {
  hands->Press(Key::Down);
  EXPECT_TRUE(hands->CommitPending());
  EXPECT_THAT(log, ElementsAre("per kwartaal"));
  EXPECT_TRUE(hands->CommitPending());
  EXPECT_EQ(log.size(), 1U);
}

TEST_F(ListsByHand, WhatCodeSetsIsShownOverAChoiceUnderWay) {
  hands->Press(Key::End);
  list_.SetListIndex(1);
  EXPECT_EQ(Shown(), 1);
  hands->Press(Key::End);
  list_.SetListIndex(1);
  EXPECT_EQ(Shown(), 1);
  hands->Press(Key::End);
  list_.Add("per eeuw", 1200);
  EXPECT_EQ(Shown(), 1);
  hands->Press(Key::End);
  list_.Clear();
  EXPECT_EQ(Shown(), -1);
  hands->Press(Key::Tab);
  EXPECT_THAT(log, ElementsAre("per kwartaal"));
}

TEST_F(ListsByHand, WhatIsHiddenOrDisabledIsNotChosenAnyMore) {
  hands->Press(Key::End);
  list_.SetEnabled(false);
  EXPECT_NE(hands->Focused(), "cboTermijn");
  list_.SetEnabled(true);
  EXPECT_EQ(Shown(), 0);
  hands->GiveFocus(list_);
  hands->Press(Key::End);
  Control("fraKeuze").Host().SetVisible(false);
  Control("fraKeuze").Host().SetVisible(true);
  EXPECT_EQ(Shown(), 0);
  EXPECT_THAT(log, IsEmpty());
}

TEST_F(ListsByHand, TypingAheadTakesSeveralLetters) {
  hands->Type("per j");
  EXPECT_EQ(Shown(), 2);
  EXPECT_THAT(log, IsEmpty());
  hands->Press(Key::Enter);
  EXPECT_THAT(log, ElementsAre("per jaar"));
}

TEST_F(ListsByHand, LettersWithAltLeadNowhereInAList) {
  hands->PressAlt('p');
  EXPECT_EQ(Shown(), 0);
}

TEST_F(ListsByHand, TheWheelScrollsWhatTheListStandsIn) {
  hands->TurnWheel(list_, 2);
  EXPECT_EQ(Shown(), 0);
  EXPECT_EQ(hands->Scrolled(), 2);
  hands->GiveFocus(Control("txtNaam"));
  hands->TurnWheel(list_, 3);
  EXPECT_EQ(Shown(), 0);
  EXPECT_EQ(hands->Scrolled(), 5);
  EXPECT_THAT(log, IsEmpty());
}

TEST_F(ListsByHand, TheOpenListPicksByEnterAndByAClick) {
  hands->Press(Key::F4);
  hands->Press(Key::Down);
  EXPECT_THAT(log, IsEmpty());
  hands->Press(Key::Enter);
  EXPECT_THAT(log, ElementsAre("per kwartaal"));
  hands->PickInOpenList(list_, 2);
  EXPECT_THAT(log, ElementsAre("per kwartaal", "per jaar"));
  EXPECT_EQ(Shown(), 2);
}

TEST_F(ListsByHand, TypingAheadInTheOpenListChoosesNothingBeforeEnter) {
  hands->Press(Key::F4);
  hands->Type("per j");
  EXPECT_THAT(log, IsEmpty());
  hands->Press(Key::Enter);
  EXPECT_THAT(log, ElementsAre("per jaar"));
}

TEST_F(ListsByHand, TheOpenListThatIsGivenUpPutsBackWhatStands) {
  hands->Press(Key::Down);
  hands->Press(Key::F4);
  hands->Press(Key::Down);
  hands->Press(Key::Escape);
  EXPECT_EQ(Shown(), 0);
  hands->Press(Key::Tab);
  EXPECT_THAT(log, IsEmpty());
}

TEST_F(ListsByHand, EveryListOfASurfaceWaits) {
  auto& other = Get<controls::ListBox>("cboLeeg");
  for (const char* text : {"Aegir", "Borea", "Ceres"}) other.Add(text);
  subscriptions += other.Click.Connect([&] { log.push_back(other.Text()); });
  hands->GiveFocus(other);
  for (int i = 0; i < 3; ++i) hands->Press(Key::Down);
  EXPECT_EQ(hands->ShownEntry(other), 2);
  hands->Press(Key::Up);
  EXPECT_EQ(hands->ShownEntry(other), 1);
  EXPECT_THAT(log, IsEmpty());
  hands->Press(Key::Tab);
  EXPECT_THAT(log, ElementsAre("Borea"));
}

}  // namespace
}  // namespace brivane::test
