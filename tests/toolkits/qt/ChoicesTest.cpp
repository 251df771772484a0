#include <QAccessible>
#include <QComboBox>
#include <QToolTip>

#include "tests/toolkits/qt/SurfaceTest.h"
#include <brivane/controls/Choices.h>
#include <brivane/controls/ListBox.h>
#include <brivane/toolkits/qt/widgets/HelpIcon.h>
#include <brivane/toolkits/qt/widgets/JaNeeToggle.h>

/// Toggles, options, lists and help icons worked by keys and mouse.
namespace brivane::test {
namespace {

using testing::ElementsAre;

class ToggleKeys : public SurfaceTest {
 protected:
  controls::JaNee& toggle_ = static_cast<controls::JaNee&>(Control("jnDiep"));
  QWidget& widget_ = *WidgetFor(toggle_);
};

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

TEST_F(SurfaceTest, AHelpIconIsAToolTipOnFocusClickAndHover) {
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

TEST_F(SurfaceTest, EachBoxTellsAScreenReaderItsLabel) {
  for (const char* name : {"txtNaam", "txtDatum", "cboTermijn", "lvwLijst"}) {
    QAccessibleInterface* const reader = QAccessible::queryAccessibleInterface(WidgetFor(Control(name)));
    ASSERT_NE(reader, nullptr) << name;
    EXPECT_EQ(reader->text(QAccessible::Name).toStdString(), Control(name).Row().label) << name;
  }
}

}  // namespace
}  // namespace brivane::test
