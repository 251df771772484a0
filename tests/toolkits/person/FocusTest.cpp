#include "tests/toolkits/person/Hands.h"
#include <brivane/controls/Choices.h>
#include <brivane/controls/TextBox.h>

/// Where the focus comes in.
namespace brivane::test {
namespace {

class FocusByHand : public ByHand {
 protected:
  [[nodiscard]] controls::OptionButton& Option(int index) { return Get<controls::OptionButton>("optSoort", index); }
  /// Goes to the group from the stop before it, and from the one after it.
  void ExpectEntrance(int index) {
    hands->GiveFocus(Control("hntDiep"));
    hands->Press(Key::Tab);
    EXPECT_EQ(hands->Focused(), "optSoort(" + std::to_string(index) + ")");
    hands->Press(Key::Tab);
    EXPECT_EQ(hands->Focused(), "optAnder(1)");
    hands->Press(Key::Tab, With::Shift);
    EXPECT_EQ(hands->Focused(), "optSoort(" + std::to_string(index) + ")");
    hands->Press(Key::Tab, With::Shift);
    EXPECT_EQ(hands->Focused(), "hntDiep");
  }
};

TEST_F(FocusByHand, EntersAGroupAtTheChosenOption) {
  Option(3).SetValue(true);
  ExpectEntrance(3);
  hands->Click(Option(2));
  ExpectEntrance(2);
}

TEST_F(FocusByHand, EntersAGroupAtWhatCodeChoseSinceThen) {
  Option(3).SetValue(true);
  ExpectEntrance(3);
  Option(1).SetValue(true);
  ExpectEntrance(1);
  // Also while somebody stood in it.
  hands->Click(Option(1));
  Option(2).SetValue(true);
  hands->Click(Control("txtNaam"));
  ExpectEntrance(2);
}

TEST_F(FocusByHand, EntersAGroupAtTheFirstWhereTheChosenOneCannotBeReached) {
  ExpectEntrance(1);
  Option(2).SetValue(true);
  Option(2).SetEnabled(false);
  ExpectEntrance(1);
  Option(1).SetVisible(false);
  ExpectEntrance(3);
  Option(2).SetEnabled(true);
  ExpectEntrance(2);
}

TEST_F(FocusByHand, MovesInAGroupByTheArrows) {
  Option(2).SetValue(true);
  hands->GiveFocus(Control("hntDiep"));
  hands->Press(Key::Tab);
  hands->Press(Key::Down);
  EXPECT_EQ(hands->Focused(), "optSoort(3)");
  EXPECT_TRUE(Option(3).Value());
  hands->Press(Key::Up);
  hands->Press(Key::Up);
  EXPECT_EQ(hands->Focused(), "optSoort(1)");
  EXPECT_TRUE(Option(1).Value());
}

TEST_F(FocusByHand, ThatCodeMovesSelectsTheContentOfTheBox) {
  auto& box = Get<controls::TextBox>("txtNaam");
  box.SetText("Kinderopvang");
  hands->Click(box);
  hands->Press(Key::End);
  EXPECT_EQ(hands->FocusedText(), "Kinderopvang[]");
  hands->GiveFocus(Control("jnDiep"));
  box.SetFocus();
  EXPECT_EQ(hands->FocusedText(), "[Kinderopvang]");
}

}  // namespace
}  // namespace brivane::test
