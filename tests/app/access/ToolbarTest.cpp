#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

#include "tests/app/access/Scenes.h"

/// The toolbar by keys alone.
namespace brivane::app {
namespace {

class Toolbar : public testing::Test {
 protected:
  Toolbar() {
    stage_.Window().show();
    stage_.GoTo(1);
    stage_.Window().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&stage_.Window()));
    const auto* const toolbar = stage_.Window().findChild<QToolBar*>("werkbalk");
    for (QAction* action : toolbar->actions()) Take(qobject_cast<QToolButton*>(toolbar->widgetForAction(action)));
    Take(toolbar->findChild<QToolButton*>("qt_toolbar_ext_button"));
  }

  /// On a small screen some stand in the menu of the last.
  void Take(QToolButton* button) {
    if (button != nullptr && button->isVisible()) buttons_.append(button);
  }
  [[nodiscard]] QList<QToolButton*> Stops() const {
    QList<QToolButton*> stops;
    for (QToolButton* button : buttons_)
      if (button->focusPolicy() != Qt::NoFocus && button->isEnabled()) stops.append(button);
    return stops;
  }

  QTemporaryDir folder_;
  Stage stage_{QDir(folder_.path())};
  QList<QToolButton*> buttons_;
};

TEST_F(Toolbar, IsOneStopOfTab) {
  ASSERT_GT(buttons_.size(), 3);
  EXPECT_EQ(Stops().size(), 1);
}

TEST_F(Toolbar, ArrowsLeadAlongEveryButtonThatCanBePressed) {
  Stops().front()->setFocus(Qt::TabFocusReason);
  Stage::Press(Qt::Key_Home);
  QList<QToolButton*> met;
  for (qsizetype i = 0; i < buttons_.size(); ++i) {
    auto* const here = qobject_cast<QToolButton*>(QApplication::focusWidget());
    ASSERT_NE(here, nullptr);
    if (!met.contains(here)) met.append(here);
    Stage::Press(Qt::Key_Right);
  }
  QList<QToolButton*> enabled;
  for (QToolButton* button : buttons_)
    if (button->isEnabled()) enabled.append(button);
  EXPECT_EQ(met, enabled);
  // It is entered where it was left.
  EXPECT_EQ(Stops(), QList<QToolButton*>{enabled.last()});
  Stage::Press(Qt::Key_Home);
  EXPECT_EQ(QApplication::focusWidget(), enabled.first());
  Stage::Press(Qt::Key_End);
  Stage::Press(Qt::Key_Left);
  EXPECT_EQ(QApplication::focusWidget(), enabled[enabled.size() - 2]);
}

TEST_F(Toolbar, IsStillAStopWhenTheButtonThatWasLeftCannotBePressed) {
  buttons_.last()->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(Stops(), QList<QToolButton*>{buttons_.last()});
  buttons_.last()->setEnabled(false);
  ASSERT_EQ(Stops().size(), 1);
  EXPECT_TRUE(Stops().front()->isEnabled());
}

}  // namespace
}  // namespace brivane::app
