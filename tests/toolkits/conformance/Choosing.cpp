#include "tests/toolkits/conformance/Screen.h"

/// Toggles, options, lists and help icons worked by keys and mouse, and the way from stop to stop.
namespace brivane::test {

using testing::ElementsAre;

class Choosing : public OnScreen {
 protected:
  Choosing() {
    for (int i = 1; i <= 3; ++i)
      subscriptions += Get<controls::OptionButton>("optSoort", i).Click.Connect([this, i] {
        log.push_back("click " + std::to_string(i));
      });
  }
  [[nodiscard]] int Selected() {
    for (int i = 1; i <= 3; ++i)
      if (Get<controls::OptionButton>("optSoort", i).Value()) return i;
    return 0;
  }
  void Do(controls::AnyControl& control, const controls::Action& action) {
    subject->Gesture(control, action);
    subject->Settle();
  }
};

INSTANTIATE_TEST_SUITE_P(Typing, Choosing, testing::ValuesIn(Screens()), ScreenName);

TEST_P(Choosing, EachKeyOfAToggleComesToItsAnswer) {
  struct Case {
    std::function<void(ScreenUnderTest&)> press;
    int before;
    int after;
  };
  const auto letter = [](char key) { return [key](ScreenUnderTest& screen) { screen.Press(key); }; };
  const auto press = [](Key key) { return [key](ScreenUnderTest& screen) { screen.Press(key); }; };
  auto& toggle = Get<controls::JaNee>("jnDiep");
  subject->GiveFocus(toggle);
  int number = 0;
  for (const Case& c : {Case{letter('J'), host::kNee, host::kJa}, Case{letter('J'), host::kJa, host::kJa},
                        Case{letter('N'), host::kJa, host::kNee}, Case{press(Key::Left), host::kNee, host::kJa},
                        Case{press(Key::Right), host::kJa, host::kNee}, Case{press(Key::Up), host::kNee, host::kJa},
                        Case{press(Key::Down), host::kJa, host::kNee}, Case{press(Key::Space), host::kNee, host::kJa},
                        Case{press(Key::Space), host::kJa, host::kNee}, Case{letter('A'), host::kNee, host::kNee}}) {
    toggle.SetValue(c.before);
    c.press(*subject);
    EXPECT_EQ(toggle.Value(), c.after) << "case " << ++number;
  }
}

TEST_P(Choosing, ArrowKeysMoveWithinTheGroupAlone) {
  Do(Control("optSoort", 1), controls::Select{});
  Press(Key::Down);
  EXPECT_EQ(Selected(), 2);
  Press(Key::Down);
  EXPECT_EQ(Selected(), 3);
  Press(Key::Up);
  EXPECT_EQ(Focused(), "optSoort(2)");
  EXPECT_THAT(log, ElementsAre("click 1", "click 2", "click 3", "click 2"));
  EXPECT_FALSE(Get<controls::OptionButton>("optAnder", 1).Value());
}

TEST_P(Choosing, ARefusedBoxElsewhereDropsTheChoiceOfAnOption) {
  Do(Control("optSoort", 1), controls::Select{});
  Click("txtBedrag");
  TypeOver("12.50");
  Do(Control("optSoort", 3), controls::Select{});
  EXPECT_EQ(Selected(), 1);
  EXPECT_EQ(Focused(), "txtBedrag");
}

TEST_P(Choosing, AListKeepsWhatStandsWhenABoxElsewhereRefuses) {
  auto& list = Get<controls::ListBox>("cboTermijn");
  list.SetListIndex(0);
  Click("txtBedrag");
  TypeOver("12.50");
  Do(list, controls::Choose{2});
  EXPECT_EQ(list.ListIndex(), 0);
  for (const controls::ControlDump& dump : subject->Shown(controls::Surface::Of(*surface))) {
    if (dump.name == "cboTermijn") {
      EXPECT_EQ(dump.list->index, 0);
    }
  }
}

TEST_P(Choosing, ACheckBoxIsTickedBySpace) {
  auto& check = Get<controls::CheckBox>("chkVinkje");
  subject->GiveFocus(check);
  Press(Key::Space);
  EXPECT_EQ(check.Value(), host::kTicked);
  Press(Key::Space);
  EXPECT_EQ(check.Value(), host::kUnticked);
}

TEST_P(Choosing, AHelpIconShowsItsTextOnFocus) {
  subject->GiveFocus(Control("jnDiep"));
  EXPECT_EQ(subject->Help(), "");
  Press(Key::Tab);
  EXPECT_EQ(Focused(), "hntDiep");
  subject->Settle();
  EXPECT_EQ(subject->Help(), "Zo diep als het kan.");
}

TEST_P(Choosing, TheReportListMarksARowThatAPersonCannotMove) {
  auto& list = Get<controls::ListView>("lvwLijst");
  list.AddColumn("Last", {1500});
  for (const std::size_t row : {1U, 2U, 3U}) list.AddItem(row, "KEY" + std::to_string(row), "rij");
  list.Select(2);
  subject->ClickRow(list, 1);
  EXPECT_EQ(Focused(), "lvwLijst");
  EXPECT_THAT(subject->MarkedRows(list), ElementsAre(2));
  Press(Key::Down);
  EXPECT_THAT(subject->MarkedRows(list), ElementsAre(2));
}

TEST_P(Choosing, TabVisitsEveryStopInTheOrderOfTheDesign) {
  Click("txtNaam");
  std::vector<std::string> visited;
  for (int i = 0; i < 18; ++i) {
    visited.push_back(Focused());
    Press(Key::Tab);
  }
  // A group of options is one stop.
  EXPECT_THAT(visited, ElementsAre("txtNaam", "txtBedrag", "txtPercentage", "txtJaren", "txtDatum", "txtTotaal",
                                   "jnDiep", "hntDiep", "optSoort(1)", "optAnder(1)", "chkVinkje", "cboTermijn",
                                   "cboLeeg", "cmdDoen", "txtTot", "lvwLijst", "Binnenste.jnBinnen", "txtNaam"));
}

}  // namespace brivane::test
