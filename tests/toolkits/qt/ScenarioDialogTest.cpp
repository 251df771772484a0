#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include "controls/TextBox.h"
#include "scenario/frmScenario.h"
#include "tests/support/RecordingScenario.h"
#include "tests/toolkits/qt/Person.h"
#include "toolkits/qt/Dump.h"
#include "toolkits/qt/rows/CellPeer.h"
#include "toolkits/qt/rows/RowCanvas.h"
#include "toolkits/qt/widgets/Bubble.h"
#include "toolkits/qt/widgets/FormWindow.h"

/// The year-by-year form as a person meets it: a dialog worked by keys.
namespace brivane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tests::PeriodeWaarden;
using tests::RecordingScenario;

class ScenarioDialog : public testing::Test {
 protected:
  ScenarioDialog() {
    scenario_->basis = 100;
    toolkit_.Desktop().answer = [this](const std::string& title, const std::string& text, host::MessageStyle) {
      messages_.push_back(title + ": " + text);
      return answer_;
    };
  }

  /// Opens the form, runs a script in it, and closes what it left open without asking.
  void Open(int rows, const std::function<void()>& script, bool korting = false) {
    frmScenario formulier(toolkit_);
    form_ = &formulier;
    for (const int row : disabled_) formulier.SetDisableJaar(static_cast<std::int16_t>(row), true);
    formulier.Invoeren(scenario_, static_cast<std::int16_t>(rows), 0, 0, false, korting, maximum_);
    bool ran = false;
    QTimer::singleShot(0, [&] {
      dialog_ = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog_, nullptr);
      ShowActive(*dialog_);
      script();
      ran = true;
      closed_ = !dialog_->isVisible();
      if (!closed_) dialog_->done(0);
    });
    formulier.ShowModal(nullptr);
    EXPECT_TRUE(ran);
    form_ = nullptr;
  }

  [[nodiscard]] controls::Form& Form() { return dynamic_cast<controls::Form&>(form_->Form()); }
  [[nodiscard]] controls::AnyControl& Cell(std::string_view name, int row) { return *Form().Find(name, row); }
  [[nodiscard]] double Amount(int row) { return static_cast<controls::TextBox&>(Cell("txtBedrag", row)).Number(); }
  [[nodiscard]] double Percentage(int row) {
    return static_cast<controls::TextBox&>(Cell("txtPercentage", row)).Number();
  }
  [[nodiscard]] qt::RowCanvas& Canvas() { return *static_cast<qt::RowCanvas*>(WidgetFor(Cell("txtBedrag", 1))); }
  /// The cell or control with the focus: "txtBedrag(2)", "cmdOK".
  [[nodiscard]] std::string Focused() {
    const QWidget* const widget = QApplication::focusWidget();
    if (widget == nullptr) return "";
    const qt::RowCanvas& canvas = Canvas();
    if (widget == &canvas || canvas.isAncestorOf(widget)) return canvas.Current()->Control().ElementName();
    return widget->objectName().toStdString();
  }
  [[nodiscard]] QString Typed() { return Canvas().Editor()->text(); }
  [[nodiscard]] QString Reason() { return qt::Bubble::ReasonOf(*Canvas().Editor()); }

  qt::Toolkit toolkit_;
  std::shared_ptr<RecordingScenario> scenario_ = std::make_shared<RecordingScenario>();
  std::vector<int> disabled_;
  std::vector<std::string> messages_;
  host::MessageAnswer answer_ = host::MessageAnswer::No;
  double maximum_ = 0;
  frmScenario* form_ = nullptr;
  QDialog* dialog_ = nullptr;
  bool closed_ = false;
};

constexpr char kVraag[] =
    "Scenario: De gewijzigde rijen worden niet bewaard als u het venster sluit zonder op OK te drukken. Wilt u het "
    "sluiten?";

TEST_F(ScenarioDialog, OpensInTheFirstBoxAndEnterGoesDown) {
  Open(3, [&] {
    EXPECT_EQ(Focused(), "txtBedrag(1)");
    TypeOver("100");
    Press(Qt::Key_Return);
    EXPECT_EQ(Focused(), "txtBedrag(2)");
    TypeOver("200,50");
    Press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(Focused(), "txtBedrag(3)");
    Press(Qt::Key_Return);
    EXPECT_EQ(Focused(), "cmdOK");
    EXPECT_EQ(Amount(1), 100);
    EXPECT_EQ(Amount(2), 200.5);
    Press(Qt::Key_Return);
  });
  EXPECT_TRUE(closed_);
  EXPECT_THAT(messages_, IsEmpty());
  EXPECT_EQ(scenario_->Inhoud().size(), 2U);
}

TEST_F(ScenarioDialog, TabFollowsTheRowsAndTheArrowsTheColumn) {
  scenario_->invoersoort = 3;
  Open(
      4,
      [&] {
        EXPECT_EQ(Focused(), "txtBedrag(1)");
        Press(Qt::Key_Tab);
        EXPECT_EQ(Focused(), "txtPercentage(1)");
        Press(Qt::Key_Tab);
        EXPECT_EQ(Focused(), "txtKorting(1)");
        Press(Qt::Key_Tab);
        EXPECT_EQ(Focused(), "txtBedrag(2)");
        Press(Qt::Key_Backtab);
        EXPECT_EQ(Focused(), "txtKorting(1)");
        Press(Qt::Key_Down);
        EXPECT_EQ(Focused(), "txtKorting(2)");
        Press(Qt::Key_Up);
        Press(Qt::Key_Up);
        EXPECT_EQ(Focused(), "txtKorting(1)");
        Press(Qt::Key_Backtab);
        Press(Qt::Key_Backtab);
        Press(Qt::Key_Backtab);
        EXPECT_EQ(Focused(), "chkAanvullen");
        Press(Qt::Key_Tab);
        EXPECT_EQ(Focused(), "txtBedrag(1)");
        Click(*WidgetFor(Cell("txtKorting", 4)), PlaceOn(Cell("txtKorting", 4)).center());
        Press(Qt::Key_Tab);
        EXPECT_EQ(Focused(), "cmdOK");
        Press(Qt::Key_Backtab);
        EXPECT_EQ(Focused(), "txtKorting(4)");
      },
      true);
}

TEST_F(ScenarioDialog, TicksAndHelpIconsAreStopsOfTheirRow) {
  Open(2, [&] {
    Press(Qt::Key_Tab);
    EXPECT_EQ(Focused(), "chkEenmalig(1)");
    Press(Qt::Key_Space);
    auto& tick = static_cast<host::CheckBox&>(Cell("chkEenmalig", 1).Host());
    EXPECT_EQ(tick.Value(), host::kTicked);
    Press(Qt::Key_Tab);
    EXPECT_EQ(Focused(), "Hint(1)");
    Press(Qt::Key_Tab);
    EXPECT_EQ(Focused(), "txtBedrag(2)");
    Press(Qt::Key_Tab);
    EXPECT_EQ(Focused(), "chkEenmalig(2)");
    Press(Qt::Key_Up);
    EXPECT_EQ(Focused(), "chkEenmalig(1)");
    Click(Canvas(), PlaceOn(Cell("chkEenmalig", 1)).center());
    EXPECT_EQ(tick.Value(), host::kUnticked);
  });
}

TEST_F(ScenarioDialog, GrowthReachesTheBoxesBelow) {
  scenario_->invoersoort = 3;
  scenario_->basis = 0;
  Open(4, [&] {
    TypeOver("1000");
    Press(Qt::Key_Tab);
    TypeOver("10");
    Press(Qt::Key_Return);
    EXPECT_EQ(Focused(), "txtPercentage(2)");
    EXPECT_EQ(static_cast<const qt::CellPeer&>(*Cell("txtBedrag", 2).GetPeer()).Text(), "1.100,00");
    EXPECT_EQ(static_cast<const qt::CellPeer&>(*Cell("txtBedrag", 4).GetPeer()).Text(), "1.331,00");
  });
}

TEST_F(ScenarioDialog, EscapeFirstRestoresTheBoxAndThenClosesWithoutAskingWhereNothingChanged) {
  Open(3, [&] {
    TypeOver("5");
    Press(Qt::Key_Escape);
    EXPECT_EQ(Typed(), "100,00");
    EXPECT_TRUE(dialog_->isVisible());
    Press(Qt::Key_Escape);
  });
  EXPECT_TRUE(closed_);
  EXPECT_THAT(messages_, IsEmpty());
  EXPECT_THAT(scenario_->log, IsEmpty());
}

TEST_F(ScenarioDialog, ClosingAsksFirstWhereRowsWereChanged) {
  Open(3, [&] {
    Press(Qt::Key_Down);
    TypeOver("5");
    Press(Qt::Key_Return);
    Press(Qt::Key_Escape);
    EXPECT_TRUE(dialog_->isVisible());
    EXPECT_THAT(messages_, ElementsAre(kVraag));
    dialog_->close();
    EXPECT_TRUE(dialog_->isVisible());
    answer_ = host::MessageAnswer::Yes;
    Press(Qt::Key_Escape);
  });
  EXPECT_TRUE(closed_);
  EXPECT_EQ(messages_.size(), 3U);
  EXPECT_THAT(scenario_->perioden, IsEmpty());
}

TEST_F(ScenarioDialog, MalformedTypingIsRefusedBesideTheBox) {
  Open(3, [&] {
    TypeOver("12.50");
    Press(Qt::Key_Return);
    EXPECT_EQ(Focused(), "txtBedrag(1)");
    EXPECT_EQ(Typed(), "12.50");
    EXPECT_EQ(Reason(), "Bedoelt u 12,50 of 1.250? Typ een komma voor de decimalen.");
    for (const int key : {Qt::Key_Down, Qt::Key_Tab}) {
      Press(key);
      EXPECT_EQ(Focused(), "txtBedrag(1)");
    }
    Click(Canvas(), PlaceOn(Cell("txtBedrag", 3)).center());
    EXPECT_EQ(Focused(), "txtBedrag(1)");
    Press(Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(dialog_->isVisible());
    EXPECT_THAT(scenario_->log, IsEmpty());
  });
}

TEST_F(ScenarioDialog, APastedColumnFillsTheRowsFromTheFocusedOne) {
  Open(5, [&] {
    Press(Qt::Key_Down);
    QGuiApplication::clipboard()->setText("1.500,25\r\n€ 20\r\n30,5\r\n");
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Amount(1), 100);
    EXPECT_EQ(Amount(2), 1500.25);
    EXPECT_EQ(Amount(3), 20);
    EXPECT_EQ(Amount(4), 30.5);
    EXPECT_EQ(Amount(5), 100);
    EXPECT_EQ(Typed(), "1.500,25");
    EXPECT_TRUE(form_->Gewijzigd());
    EXPECT_EQ(Reason(), "");
  });
}

TEST_F(ScenarioDialog, APastedColumnIsEnteredAsIfTyped) {
  Open(4, [&] {
    Do(Cell("chkAanvullen", frame::kNoIndex), controls::Tick{host::kTicked});
    Click(Canvas(), PlaceOn(Cell("txtBedrag", 1)).center());
    QGuiApplication::clipboard()->setText("10\n20");
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Amount(1), 10);
    EXPECT_EQ(Amount(2), 20);
    EXPECT_EQ(Amount(4), 20);
    EXPECT_EQ(scenario_->basis, 10);
  });
}

TEST_F(ScenarioDialog, APastedColumnWithAMistakeFillsNothing) {
  Open(4, [&] {
    QGuiApplication::clipboard()->setText("10\n12.50\n30");
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Reason(), "Regel 2: Bedoelt u 12,50 of 1.250? Typ een komma voor de decimalen.");
    QGuiApplication::clipboard()->setText("10\t20\n30\t40");
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Reason(), "Plak één kolom tegelijk.");
    for (int row = 1; row <= 4; ++row) EXPECT_EQ(Amount(row), 100);
    EXPECT_THAT(scenario_->log, IsEmpty());
  });
}

TEST_F(ScenarioDialog, APastedColumnThatIsTooLongSaysWhatIsLeft) {
  disabled_ = {2};
  Open(3, [&] {
    QGuiApplication::clipboard()->setText("1\n2\n3\n4\n5");
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Amount(1), 1);
    EXPECT_EQ(Amount(2), 100);
    EXPECT_EQ(Amount(3), 3);
    EXPECT_EQ(Reason(), "De laatste 2 regels passen niet meer in de rijen en zijn niet geplakt.");
  });
}

TEST_F(ScenarioDialog, OneValuePastedIsTypedIntoItsBox) {
  Open(2, [&] {
    QGuiApplication::clipboard()->setText("77,5\r\n");
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Typed(), "77,5");
    EXPECT_EQ(Amount(1), 100);
    Press(Qt::Key_Return);
    EXPECT_EQ(Amount(1), 77.5);
    EXPECT_EQ(Amount(2), 100);
  });
}

TEST_F(ScenarioDialog, ADisabledRowIsReachedByNoKeyAndNoClickButIsFilledForward) {
  disabled_ = {2};
  Open(4, [&] {
    Press(Qt::Key_Down);
    EXPECT_EQ(Focused(), "txtBedrag(3)");
    Press(Qt::Key_Up);
    EXPECT_EQ(Focused(), "txtBedrag(1)");
    for (int i = 0; i < 3; ++i) Press(Qt::Key_Tab);
    EXPECT_EQ(Focused(), "txtBedrag(3)");
    Click(Canvas(), PlaceOn(Cell("txtBedrag", 2)).center());
    EXPECT_EQ(Focused(), "txtBedrag(3)");
    Do(Cell("chkAanvullen", frame::kNoIndex), controls::Tick{host::kTicked});
    Click(Canvas(), PlaceOn(Cell("txtBedrag", 1)).center());
    TypeOver("300");
    Press(Qt::Key_Return);
    EXPECT_EQ(Amount(2), 300);
    EXPECT_EQ(Amount(4), 300);
  });
}

TEST_F(ScenarioDialog, OkIsTheDefaultButton) {
  Open(2, [&] {
    auto* const ok = dynamic_cast<QPushButton*>(WidgetFor(Cell("cmdOK", frame::kNoIndex)));
    ASSERT_NE(ok, nullptr);
    EXPECT_TRUE(ok->isDefault());
    EXPECT_EQ(dialog_->windowTitle(), "Scenario");
    EXPECT_TRUE(dialog_->isModal());
    Press(Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !dialog_->isVisible(); }));
  });
  EXPECT_TRUE(closed_);
}

TEST_F(ScenarioDialog, ARefusedTotalKeepsTheFormOpen) {
  scenario_->naam = "Overbruggingskrediet";
  maximum_ = 100;
  Open(3, [&] {
    TypeOver("60");
    Press(Qt::Key_Return);
    TypeOver("50");
    Press(Qt::Key_Return);
    EXPECT_EQ(dynamic_cast<qt::EntryBox&>(*WidgetFor(Cell("txtTotaal", frame::kNoIndex))).text(), "110,00");
    Click(*WidgetFor(Cell("cmdOK", frame::kNoIndex)));
    EXPECT_TRUE(dialog_->isVisible());
    ASSERT_EQ(messages_.size(), 1U);
  });
}

TEST_F(ScenarioDialog, FitsTheScreenAndScrollsToTheFocusedBox) {
  scenario_->invoersoort = 3;
  Open(
      80,
      [&] {
        const QSize screen = dialog_->screen()->availableGeometry().size();
        EXPECT_LE(dialog_->width(), screen.width());
        EXPECT_LE(dialog_->height(), screen.height());
        const auto& scroll = *dialog_->findChild<QScrollArea*>();
        dialog_->resize(500, 400);
        QApplication::processEvents();
        EXPECT_EQ(scroll.horizontalScrollBar()->value(), 0);
        Canvas().GoTo(dynamic_cast<qt::CellPeer&>(*Cell("txtKorting", 80).GetPeer()));
        EXPECT_GT(scroll.horizontalScrollBar()->value(), 0);
        const QRect inView = scroll.viewport()->rect();
        const QWidget& editor = *Canvas().Editor();
        EXPECT_TRUE(inView.contains(QRect(editor.mapTo(scroll.viewport(), QPoint()), editor.size())));
      },
      true);
}

TEST_F(ScenarioDialog, EachCellTellsAScreenReaderItsRowAndWhatItIs) {
  scenario_->invoersoort = 3;
  Open(7, [&] {
    QAccessibleInterface* const rows = QAccessible::queryAccessibleInterface(&Canvas());
    ASSERT_NE(rows, nullptr);
    QStringList boxes;
    for (int i = 0; i < rows->childCount(); ++i) {
      QAccessibleInterface* const cell = rows->child(i);
      EXPECT_EQ(rows->indexOfChild(cell), i);
      if (cell->role() == QAccessible::EditableText) boxes.append(cell->text(QAccessible::Name));
    }
    EXPECT_EQ(boxes.size(), 14);
    EXPECT_EQ(boxes.first(), "Bedrag jaar 1");
    EXPECT_EQ(boxes.at(12), "Bedrag jaar 7");
    EXPECT_EQ(boxes.last(), "Percentage jaar 7");
    EXPECT_EQ(rows->focusChild()->text(QAccessible::Name), "Bedrag jaar 1");
    Press(Qt::Key_Down);
    EXPECT_EQ(rows->focusChild()->text(QAccessible::Name), "Bedrag jaar 2");
    EXPECT_EQ(rows->focusChild()->text(QAccessible::Value), "100,00");
    const QRect seventh = PlaceOn(Cell("txtBedrag", 7));
    const QPoint middle = Canvas().mapToGlobal(seventh.center());
    QAccessibleInterface* const found = rows->childAt(middle.x(), middle.y());
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->text(QAccessible::Name), "Bedrag jaar 7");
    EXPECT_EQ(found->rect().size(), seventh.size());
    EXPECT_TRUE(found->state().focusable);
    found->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(Focused(), "txtBedrag(7)");
  });
}

TEST_F(ScenarioDialog, WhatItShowsIsWhatTheControlsHoldToThePixel) {
  scenario_->naam = "Rente";
  scenario_->invoersoort = 2;
  scenario_->basis = 4.5;
  disabled_ = {2};
  Open(
      31,
      [&] {
        const auto held = controls::DumpAll(Form());
        const auto shown = qt::DumpShown(Form(), toolkit_);
        ASSERT_EQ(shown.size(), held.size());
        for (std::size_t i = 0; i < held.size(); ++i) EXPECT_TRUE(shown[i] == held[i]) << held[i].name;
      },
      true);
}

}  // namespace
}  // namespace brivane::test
