#include <brivane/toolkits/win32/window/WindowsApi.h>

#include <commctrl.h>

#include "tests/toolkits/win32/SurfaceTest.h"
#include <brivane/controls/Choices.h>
#include <brivane/controls/ListBox.h>
#include <brivane/controls/Plain.h>
#include <brivane/toolkits/win32/controls/HintWindow.h>

/// Toggles, options, lists and help icons worked by keys and mouse.
namespace brivane::test {
namespace {

using testing::ElementsAre;

class ToggleKeys : public SurfaceTest {
 protected:
  controls::JaNee& toggle_ = static_cast<controls::JaNee&>(Control("jnDiep"));
};

TEST_F(ToggleKeys, IsACheckBoxToAnyoneWhoAsks) {
  const HWND window = WindowOf("jnDiep");
  EXPECT_EQ(win32::TextOf(window), L"Diep");
  EXPECT_EQ(SendMessageW(window, BM_GETCHECK, 0, 0), BST_UNCHECKED);
  SendMessageW(window, BM_CLICK, 0, 0);
  EXPECT_EQ(toggle_.Value(), host::kJa);
  EXPECT_EQ(SendMessageW(window, BM_GETCHECK, 0, 0), BST_CHECKED);
}

class Options : public SurfaceTest {
 protected:
  Options() {
    for (int i = 1; i <= 3; ++i) {
      auto& option = static_cast<controls::OptionButton&>(Control("optSoort", i));
      subscriptions_ += option.Click.Connect([this, i] { log_.push_back("click " + std::to_string(i)); });
    }
  }
  [[nodiscard]] int Selected() {
    for (int i = 1; i <= 3; ++i)
      if (static_cast<controls::OptionButton&>(Control("optSoort", i)).Value()) return i;
    return 0;
  }
};

TEST_F(Options, TheArrowsToTheSideMoveWithinTheGroupToo) {
  Do(Control("optSoort", 2), controls::Select{});
  Press(VK_RIGHT);
  EXPECT_EQ(Selected(), 3);
  Press(VK_LEFT);
  EXPECT_THAT(log_, ElementsAre("click 2", "click 3", "click 2"));
}

TEST_F(Options, GettingTheFocusSelectsNothing) {
  SetFocus(WindowOf("optSoort", 2));
  stage_.Settle();
  EXPECT_EQ(Selected(), 0);
}

TEST_F(Options, TabGoesToTheSelectedOne) {
  static_cast<controls::OptionButton&>(Control("optSoort", 3)).SetValue(true);
  SetFocus(WindowOf("hntDiep"));
  Press(VK_TAB);
  EXPECT_EQ(Focused(), "optSoort(3)");
  Press(VK_TAB);
  EXPECT_EQ(Focused(), "optAnder(1)");
}

class Lists : public SurfaceTest {
 protected:
  Lists() {
    subscriptions_ += list_.Click.Connect([this] { log_.push_back(list_.ListIndex() < 0 ? "none" : list_.Text()); });
  }
  [[nodiscard]] LRESULT Shown() { return SendMessageW(WindowOf("cboTermijn"), CB_GETCURSEL, 0, 0); }
  controls::ListBox& list_ = static_cast<controls::ListBox&>(Control("cboTermijn"));
};

TEST_F(Lists, PickWhenTheDroppedListIsLeftByEnterAndNothingByEscape) {
  list_.SetListIndex(0);
  log_.clear();
  SetFocus(WindowOf("cboTermijn"));
  Press(VK_F4);
  Press(VK_DOWN);
  Press(VK_DOWN);
  EXPECT_TRUE(log_.empty());
  Press(VK_ESCAPE);
  EXPECT_EQ(Shown(), 0);
  EXPECT_TRUE(log_.empty());
  Press(VK_F4);
  Press(VK_DOWN);
  Press(VK_DOWN);
  Press(VK_RETURN);
  EXPECT_THAT(log_, ElementsAre("per jaar"));
  EXPECT_EQ(Focused(), "cboTermijn");
}

TEST_F(Lists, PickTheEntryThatIsClickedAndNothingByAClickElsewhere) {
  COMBOBOXINFO info{};
  info.cbSize = sizeof info;
  ASSERT_TRUE(GetComboBoxInfo(WindowOf("cboTermijn"), &info));
  const auto row = static_cast<int>(SendMessageW(WindowOf("cboTermijn"), CB_GETITEMHEIGHT, 0, 0));
  Click(WindowOf("cboTermijn"));
  Click(info.hwndList, {10, row + row / 2});
  EXPECT_THAT(log_, ElementsAre("per kwartaal"));
  Click(WindowOf("cboTermijn"));
  MoveTo(info.hwndList, {10, 2 * row + row / 2});
  Click(WindowOf("txtNaam"));
  EXPECT_THAT(log_, ElementsAre("per kwartaal"));
  EXPECT_EQ(Shown(), 1);
}

TEST_F(Lists, DropDownAsWideAsTheLongestEntry) {
  const HWND window = WindowOf("cboTermijn");
  const auto dropped = [&] {
    SetFocus(window);
    Press(VK_F4);
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    GetComboBoxInfo(window, &info);
    RECT place{};
    GetWindowRect(info.hwndList, &place);
    Press(VK_ESCAPE);
    return place.right - place.left;
  };
  // As wide as the box while that is enough: 2400 twips.
  EXPECT_EQ(dropped(), 160);
  list_.Add("Onderlinge Levensverzekering-Maatschappij tot Nut van het Algemeen", 6);
  // 66 letters of at least a third of the 12 pixels of the font.
  EXPECT_GT(dropped(), 66 * 12 / 3);
}

TEST_F(SurfaceTest, AButtonIsPressedBySpaceAndByEnter) {
  subscriptions_ +=
      static_cast<controls::Button&>(Control("cmdDoen")).Click.Connect([this] { log_.emplace_back("pressed"); });
  SetFocus(WindowOf("cmdDoen"));
  Press(VK_SPACE);
  Press(VK_RETURN);
  EXPECT_EQ(log_.size(), 2U);
}

TEST_F(SurfaceTest, AHelpIconShowsItsTextOnFocusClickAndHoverAndTakesItAway) {
  const win32::HelpTip& tip = Entry<win32::HintWindow>("hntDiep").Tip();
  SetFocus(WindowOf("jnDiep"));
  EXPECT_FALSE(tip.IsShown());
  Press(VK_TAB);
  EXPECT_EQ(Focused(), "hntDiep");
  EXPECT_EQ(win32::Narrow(tip.Text()), "Zo diep als het kan.");
  Press(VK_ESCAPE);
  EXPECT_FALSE(tip.IsShown());
  Press(VK_SPACE);
  EXPECT_TRUE(tip.IsShown());
  Focus("txtNaam");
  EXPECT_FALSE(tip.IsShown());
  Click(WindowOf("hntDiep"));
  EXPECT_TRUE(tip.IsShown());
  Focus("txtNaam");
  MoveTo(WindowOf("hntDiep"), {6, 6});
  for (int i = 0; i < 40 && !tip.IsShown(); ++i) {
    Sleep(25);
    stage_.Settle();
  }
  EXPECT_TRUE(tip.IsShown());
  EXPECT_EQ(Focused(), "txtNaam");
}

TEST_F(SurfaceTest, ShiftTabVisitsThemBackwards) {
  Focus("txtNaam");
  Press(VK_TAB, With::Shift);
  EXPECT_EQ(Focused(), "Binnenste.jnBinnen");
  Press(VK_TAB, With::Shift);
  EXPECT_EQ(Focused(), "lvwLijst");
}

TEST_F(SurfaceTest, WhatIsDisabledOrHiddenGivesTheFocusOn) {
  Focus("txtBedrag");
  Control("txtBedrag").Host().SetEnabled(false);
  EXPECT_EQ(Focused(), "txtPercentage");
  Control("fraBoxen").Host().SetVisible(false);
  EXPECT_EQ(Focused(), "optSoort(1)");
}

}  // namespace
}  // namespace brivane::test
