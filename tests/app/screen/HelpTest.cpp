#include <QMenu>
#include <QTextBrowser>
#include <QToolButton>

#include "app/screen/HelpTexts.h"
#include "tests/app/screen/WindowTest.h"
#include <brivane/scenario/Ontwerp.h>
#include <brivane/vrijekolom/Ontwerp.h>

// The help of where one stands, and why something is grey.
namespace brivane::app {
namespace {

class HelpTest : public WindowTest {
 protected:
  [[nodiscard]] static QString Page() {
    for (const QWidget* window : QApplication::topLevelWidgets()) {
      if (window->isVisible() && window->objectName() == "uitleg")
        return window->findChild<QTextBrowser*>()->toPlainText();
    }
    return {};
  }
  /// The help stays open beside it.
  void BackToTheWindow() {
    window_->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([this] { return QGuiApplication::focusWindow() == window_->windowHandle(); }, 2000));
  }
};

TEST(HelpTextsTest, ExplainEveryFieldThatAPersonFillsIn) {
  const auto explained = [](const frame::Design& design) {
    for (const frame::Row& row : design.rows) {
      if (row.tab == 0 || row.kind == host::Kind::Hint || row.kind == host::Kind::Surface) continue;
      const QString name = QString::fromUtf8(row.name.data(), static_cast<qsizetype>(row.name.size()));
      // What closes the form, and the sum that it shows, speak for themselves.
      if (name == "cmdOK" || name == "txtTotaal") continue;
      EXPECT_TRUE(HelpOfField(name)) << qPrintable(name);
    }
  };
  explained(vrijekolom::kOntwerp);
  explained(toelichting::kOntwerp);
  explained(scenario::kOntwerp);
  EXPECT_EQ(QString::fromUtf8(HelpOfField("optLast(2)")->title), "Correctie last");
  EXPECT_FALSE(HelpOfField("ietsAnders"));
}

TEST_F(HelpTest, FollowsTheFocusAndEscapePutsItAway) {
  PressKey(Qt::Key_F1);
  EXPECT_TRUE(Page().contains("Op de startpagina"));
  PressKey(Qt::Key_Escape);
  EXPECT_EQ(Page(), "");

  Open();
  PressKey(Qt::Key_B, Qt::AltModifier);
  Type("12");
  PressKey(Qt::Key_F1);
  EXPECT_TRUE(Page().startsWith("Bedrag\nWat de post per termijn is"));
  EXPECT_TRUE(Page().contains("In de kolom"));
  PressKey(Qt::Key_F1);
  EXPECT_EQ(Page(), "");
  // What was being typed waits.
  BackToTheWindow();
  EXPECT_EQ(Kolom(0, 1).Bedrag.Bedrag, 485.5);
  PressKey(Qt::Key_Tab);
  EXPECT_EQ(Kolom(0, 1).Bedrag.Bedrag, 12);

  PressKey(Qt::Key_F1);
  BackToTheWindow();
  PressKey(Qt::Key_F6);
  EXPECT_TRUE(Page().contains("In de lijst"));
  PressKey(Qt::Key_F, Qt::ControlModifier);
  EXPECT_TRUE(Page().contains("In het filter"));
}

TEST_F(HelpTest, IsThereInTheYearFormToo) {
  Open();
  bool seen = false;
  dialogs_.Expect([&](QWidget& form) {
    PressKey(Qt::Key_F1);
    EXPECT_TRUE(Page().startsWith("Bedrag van het jaar"));
    EXPECT_TRUE(Page().contains("In het jaarformulier"));
    EXPECT_FALSE(Page().contains("Overal"));
    PressKey(Qt::Key_Escape);
    EXPECT_EQ(Page(), "");
    seen = form.isVisible();
    form.close();
  });
  PressKey(Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return seen && !QApplication::activeModalWidget(); }, 5000));
}

TEST_F(HelpTest, AGreyFieldTellsWhyAndOneThatIsNotTellsNothing) {
  Open();
  const auto tip = [this](const char* field) {
    const auto* widget = Screen().Kolom().Editor().findChild<QWidget*>(QString::fromLatin1(field));
    return widget ? widget->toolTip() : QStringLiteral("?");
  };
  // Childcare is a burden with a start date, without a transition to the partner.
  ASSERT_TRUE(Screen().GoTo({0, 1}));
  EXPECT_EQ(tip("optFiscaal(2)"), "Een last kan geen bijtelling zijn.");
  EXPECT_EQ(tip("optFiscaal(1)"), "");
  EXPECT_EQ(tip("Toelichting.TxtPcOvergang"), "Kies eerst Ja bij Overlijden.");
  EXPECT_EQ(tip("TxtDtEind"), "");
  // A gift that is paid once.
  ASSERT_TRUE(Screen().GoTo({0, 4}));
  EXPECT_EQ(tip("cmdScenario"), "Een eenmalig bedrag heeft geen bedragen per jaar.");
  ASSERT_TRUE(Screen().GoTo({0, 5}));
  EXPECT_EQ(tip("Toelichting.TxtPcOvergang"), "");
  EXPECT_EQ(tip("optFiscaal(1)"), "Een bijdrage kan geen aftrekpost zijn.");
}

TEST_F(HelpTest, WhatIsGreyTellsWhy) {
  const Actions& actions = window_->Actions();
  const auto all = actions.ForDossier() + actions.ForEditing() + actions.ForKolom();
  for (const QAction* action : all) {
    EXPECT_FALSE(action->isEnabled());
    EXPECT_EQ(action->toolTip(), "Open eerst een dossier.") << qPrintable(action->text());
  }
  Open();
  for (const QAction* action : all) {
    EXPECT_TRUE(action->isEnabled()) << qPrintable(action->text());
    EXPECT_FALSE(action->toolTip().contains("dossier.")) << qPrintable(action->toolTip());
  }
  ASSERT_TRUE(Screen().GoTo({1, 7}));
  EXPECT_EQ(actions.afwijking->menuAction()->toolTip(),
            "Een afwijking wordt gemaakt van een kolom van de huidige lening.");
  ASSERT_TRUE(Screen().GoTo({2, std::nullopt}));
  for (const QAction* action : actions.ForKolom()) {
    EXPECT_FALSE(action->isEnabled());
    EXPECT_EQ(action->toolTip(), "Kies eerst een vrije kolom.");
  }
  ASSERT_TRUE(window_->CloseDossier());
  ASSERT_TRUE(QFile::setPermissions(file_, QFile::ReadOwner));
  Open();
  for (const QAction* action : actions.ForEditing() + actions.ForKolom())
    EXPECT_EQ(action->toolTip(), "Dit dossier is alleen te lezen.");
}

}  // namespace
}  // namespace brivane::app
