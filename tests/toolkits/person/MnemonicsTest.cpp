#include "tests/toolkits/person/Hands.h"
#include <brivane/controls/Choices.h>
#include <brivane/controls/Plain.h>
#include <brivane/controls/TextBox.h>

/// Alt and a letter of something that a person cannot go to does nothing, and so does a letter of nothing.
namespace brivane::test {
namespace {

using testing::IsEmpty;

class Mnemonics : public ByHand {
 protected:
  Mnemonics() {
    subscriptions += Get<controls::Button>("cmdDoen").Click.Connect([this] { log.emplace_back("cmdDoen"); });
    box_.SetText("Kinderopvang");
    subscriptions += box_.Validation.Connect([this](bool&) { log.emplace_back("txtOm"); });
  }
  /// Presses Alt and a letter in a box with all its text selected: nothing happens.
  void ExpectNothing(char letter) {
    Control("txtNaam").Host().SetEnabled(true);
    hands->GiveFocus(box_);
    box_.SetFocus();
    ASSERT_EQ(hands->FocusedText(), "[Kinderopvang]") << letter;
    hands->PressAlt(letter);
    EXPECT_EQ(hands->FocusedText(), "[Kinderopvang]") << letter;
    hands->Press(Key::Tab);
    EXPECT_THAT(log, IsEmpty()) << letter;
    EXPECT_EQ(box_.Text(), "Kinderopvang");
  }

  controls::TextBox& box_ = Get<controls::TextBox>("txtNaam");
};

TEST_F(Mnemonics, OfWhatIsDisabledOrHiddenDoNothing) {
  controls::AnyControl& button = Control("cmdDoen");
  button.Host().SetEnabled(false);
  ExpectNothing('d');
  button.Host().SetEnabled(true);
  button.Host().SetVisible(false);
  ExpectNothing('d');
  button.Host().SetVisible(true);
  Control("fraKeuze").Host().SetEnabled(false);
  ExpectNothing('d');
  Control("fraKeuze").Host().SetEnabled(true);
  Control("fraKeuze").Host().SetVisible(false);
  ExpectNothing('d');
}

TEST_F(Mnemonics, OfAGroupLeadToWhatIsChosenInIt) {
  Get<controls::OptionButton>("optSoort", 2).SetValue(true);
  hands->GiveFocus(box_);
  hands->PressAlt('k');
  EXPECT_EQ(hands->Focused(), "optSoort(2)");
  Get<controls::OptionButton>("optSoort", 2).SetEnabled(false);
  hands->GiveFocus(box_);
  hands->PressAlt('k');
  EXPECT_EQ(hands->Focused(), "optSoort(1)");
  for (int i = 1; i <= 3; ++i) Get<controls::OptionButton>("optSoort", i).SetVisible(false);
  hands->GiveFocus(box_);
  hands->PressAlt('k');
  EXPECT_EQ(hands->Focused(), "optAnder(1)");
  EXPECT_FALSE(Get<controls::OptionButton>("optAnder", 1).Value());
}

TEST_F(Mnemonics, OfAGroupHandOverWhatIsTypedBefore) {
  auto& amount = Get<controls::TextBox>("txtBedrag");
  subscriptions += amount.Validation.Connect([this](bool&) {
    log.emplace_back("txtBedrag");
    Get<controls::OptionButton>("optSoort", 1).SetEnabled(false);
  });
  hands->GiveFocus(amount);
  hands->Type("12.50");
  hands->PressAlt('k');
  EXPECT_EQ(hands->Focused(), "txtBedrag");
  EXPECT_THAT(log, IsEmpty());
  hands->Press(Key::Escape);
  hands->Type("12,50");
  hands->PressAlt('k');
  EXPECT_EQ(log, std::vector<std::string>{"txtBedrag"});
  EXPECT_EQ(hands->Focused(), "optSoort(2)");
}

TEST_F(Mnemonics, OfAGroupThatIsDisabledOrHiddenDoNothing) {
  host::Control& group = Control("fraKeuze").Host();
  group.SetEnabled(false);
  ExpectNothing('k');
  group.SetEnabled(true);
  group.SetVisible(false);
  ExpectNothing('k');
}

TEST_F(Mnemonics, OfNothingTypeNothing) {
  ExpectNothing('x');
  ExpectNothing('q');
}

TEST_F(Mnemonics, OfALabelDoNothingWhereItsBoxCannotBeReached) {
  auto& other = Get<controls::TextBox>("txtBedrag");
  const auto expect = [&] {
    hands->GiveFocus(other);
    hands->PressAlt('n');
    EXPECT_EQ(hands->Focused(), "txtBedrag");
    EXPECT_EQ(hands->FocusedText(), "[]");
  };
  box_.SetEnabled(false);
  expect();
  box_.SetEnabled(true);
  box_.SetVisible(false);
  expect();
  box_.SetVisible(true);
  EXPECT_EQ(hands->Focused(), "txtBedrag");
  Control("lblNaam").Host().SetVisible(false);
  expect();
}

}  // namespace
}  // namespace brivane::test
