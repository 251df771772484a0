#include <QAccessible>
#include <QComboBox>
#include <QToolTip>
#include <QTreeWidget>

#include "controls/Choices.h"
#include "controls/ListBox.h"
#include "controls/ListView.h"
#include "tests/toolkits/qt/SurfaceTest.h"
#include "toolkits/qt/widgets/HelpIcon.h"
#include "toolkits/qt/widgets/JaNeeToggle.h"

/// Toggles, options, lists and help icons worked by keys and mouse.
namespace brivane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ToggleKeys : public SurfaceTest {
 protected:
  controls::JaNee& toggle_ = static_cast<controls::JaNee&>(Control("jnDiep"));
  QWidget& widget_ = *WidgetFor(toggle_);
};

TEST_F(ToggleKeys, EachKeyPicksItsAnswer) {
  struct Case {
    int key;
    int before;
    int after;
  };
  widget_.setFocus();
  for (const Case& c : {Case{Qt::Key_J, host::kNee, host::kJa}, Case{Qt::Key_J, host::kJa, host::kJa},
                        Case{Qt::Key_N, host::kJa, host::kNee}, Case{Qt::Key_Left, host::kNee, host::kJa},
                        Case{Qt::Key_Right, host::kJa, host::kNee}, Case{Qt::Key_Up, host::kNee, host::kJa},
                        Case{Qt::Key_Down, host::kJa, host::kNee}, Case{Qt::Key_Space, host::kNee, host::kJa},
                        Case{Qt::Key_Space, host::kJa, host::kNee}, Case{Qt::Key_A, host::kNee, host::kNee}}) {
    toggle_.SetValue(c.before);
    Press(c.key);
    EXPECT_EQ(toggle_.Value(), c.after) << c.key << " from " << c.before;
  }
}

TEST_F(ToggleKeys, TellsAScreenReaderItsNameAndAnswer) {
  QAccessibleInterface* const reader = QAccessible::queryAccessibleInterface(&widget_);
  ASSERT_NE(reader, nullptr);
  EXPECT_EQ(reader->text(QAccessible::Name), "Diep");
  EXPECT_EQ(reader->text(QAccessible::Value), "Nee");
  EXPECT_EQ(reader->role(), QAccessible::CheckBox);
  EXPECT_FALSE(reader->state().checked);
  reader->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(toggle_.Value(), host::kJa);
  EXPECT_EQ(reader->text(QAccessible::Value), "Ja");
  EXPECT_TRUE(reader->state().checked);
}

TEST_F(ToggleKeys, ShowsItsFocus) {
  const QImage without = widget_.grab().toImage();
  widget_.setFocus(Qt::TabFocusReason);
  EXPECT_NE(widget_.grab().toImage(), without);
}

class Options : public SurfaceTest {
 protected:
  Options() {
    for (int i = 1; i <= 3; ++i) {
      auto& option = static_cast<controls::OptionButton&>(Control("optSoort", i));
      option.Click.Connect([this, i] { log_.push_back("click " + std::to_string(i)); });
    }
  }
  [[nodiscard]] int Selected() {
    for (int i = 1; i <= 3; ++i)
      if (static_cast<controls::OptionButton&>(Control("optSoort", i)).Value()) return i;
    return 0;
  }
};

TEST_F(Options, ArrowKeysMoveWithinTheGroupAlone) {
  Do(Control("optSoort", 1), controls::Select{});
  Press(Qt::Key_Down);
  EXPECT_EQ(Selected(), 2);
  Press(Qt::Key_Down);
  EXPECT_EQ(Selected(), 3);
  Press(Qt::Key_Up);
  EXPECT_THAT(log_, ElementsAre("click 1", "click 2", "click 3", "click 2"));
  EXPECT_FALSE(static_cast<controls::OptionButton&>(Control("optAnder", 1)).Value());
}

TEST_F(Options, ARefusedBoxElsewhereDropsTheChoice) {
  Do(Control("optSoort", 1), controls::Select{});
  Focus("txtBedrag");
  TypeOver("12.50");
  Do(Control("optSoort", 3), controls::Select{});
  EXPECT_EQ(Selected(), 1);
  EXPECT_EQ(Focused(), "txtBedrag");
}

TEST_F(SurfaceTest, AListKeepsWhatStandsWhenABoxElsewhereRefuses) {
  auto& list = static_cast<controls::ListBox&>(Control("cboTermijn"));
  list.SetListIndex(0);
  Focus("txtBedrag");
  TypeOver("12.50");
  Do(list, controls::Choose{2});
  EXPECT_EQ(list.ListIndex(), 0);
  EXPECT_EQ(dynamic_cast<QComboBox&>(*WidgetFor(list)).currentIndex(), 0);
}

TEST_F(SurfaceTest, ACheckBoxIsTickedBySpace) {
  auto& check = static_cast<controls::CheckBox&>(Control("chkVinkje"));
  WidgetFor(check)->setFocus();
  Press(Qt::Key_Space);
  EXPECT_EQ(check.Value(), host::kTicked);
  Press(Qt::Key_Space);
  EXPECT_EQ(check.Value(), host::kUnticked);
}

TEST_F(SurfaceTest, AHelpIconShowsItsTextOnFocusClickAndHover) {
  auto& icon = dynamic_cast<qt::HelpIcon&>(*WidgetFor(Control("hntDiep")));
  EXPECT_EQ(icon.toolTip(), "<qt>Zo diep als het kan.</qt>");
  EXPECT_EQ(icon.accessibleDescription(), "Zo diep als het kan.");
  WidgetFor(Control("jnDiep"))->setFocus();
  EXPECT_FALSE(QToolTip::isVisible());
  Press(Qt::Key_Tab);
  EXPECT_EQ(Focused(), "hntDiep");
  QApplication::processEvents();
  EXPECT_EQ(QToolTip::text(), icon.toolTip());
  QToolTip::hideText();
  Press(Qt::Key_Space);
  EXPECT_EQ(QToolTip::text(), icon.toolTip());
}

TEST_F(SurfaceTest, TheReportListMarksARowThatAPersonCannotMove) {
  auto& list = static_cast<controls::ListView&>(Control("lvwLijst"));
  list.AddColumn("Last", {1500});
  for (const std::size_t row : {1U, 2U, 3U}) list.AddItem(row, "KEY" + std::to_string(row), "rij");
  list.Select(2);
  auto& tree = dynamic_cast<QTreeWidget&>(*WidgetFor(list));
  tree.setFocus();
  Press(Qt::Key_Down);
  Click(*tree.viewport(), tree.visualItemRect(tree.topLevelItem(0)).center());
  EXPECT_TRUE(tree.selectionModel()->isRowSelected(1, {}));
  EXPECT_EQ(tree.selectionModel()->selectedRows().size(), 1);
}

TEST_F(SurfaceTest, TabVisitsEveryStopInTheOrderOfTheDesign) {
  Focus("txtNaam");
  std::vector<std::string> visited;
  for (int i = 0; i < 17; ++i) {
    visited.push_back(Focused());
    Press(Qt::Key_Tab);
  }
  // A group of options is one stop.
  EXPECT_THAT(visited, ElementsAre("txtNaam", "txtBedrag", "txtPercentage", "txtJaren", "txtDatum", "txtTotaal",
                                   "jnDiep", "hntDiep", "optSoort(1)", "optAnder(1)", "chkVinkje", "cboTermijn",
                                   "cboLeeg", "cmdDoen", "lvwLijst", "Binnenste.jnBinnen", "txtNaam"));
}

TEST_F(SurfaceTest, EachBoxTellsAScreenReaderItsLabel) {
  for (const char* name : {"txtNaam", "txtDatum", "cboTermijn", "lvwLijst"}) {
    QAccessibleInterface* const reader = QAccessible::queryAccessibleInterface(WidgetFor(Control(name)));
    ASSERT_NE(reader, nullptr) << name;
    EXPECT_EQ(reader->text(QAccessible::Name).toStdString(), Control(name).Row().label) << name;
  }
}

}  // namespace
}  // namespace brivane::test
