#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include "tests/support/RecordingScenario.h"
#include "tests/toolkits/qt/Person.h"
#include <brivane/scenario/frmScenario.h>
#include <brivane/toolkits/qt/Dump.h>
#include <brivane/toolkits/qt/rows/CellPeer.h>
#include <brivane/toolkits/qt/rows/RowCanvas.h>
#include <brivane/toolkits/qt/widgets/FormWindow.h>

/// The year-by-year form as a person meets it: a dialog worked by keys.
namespace brivane::test {
namespace {

using tests::RecordingScenario;

class ScenarioDialog : public testing::Test {
 protected:
  ScenarioDialog() { scenario_->basis = 100; }

  /// Opens the form, runs a script in it, and closes what it left open without asking.
  void Open(int rows, const std::function<void()>& script, bool korting = false) {
    frmScenario formulier(toolkit_);
    form_ = &formulier;
    for (const int row : disabled_) formulier.SetDisableJaar(static_cast<std::int16_t>(row), true);
    formulier.Invoeren(scenario_, static_cast<std::int16_t>(rows), 0, 0, false, korting, 0);
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
  [[nodiscard]] qt::RowCanvas& Canvas() { return *static_cast<qt::RowCanvas*>(WidgetFor(Cell("txtBedrag", 1))); }
  /// The cell or control with the focus: "txtBedrag(2)", "cmdOK".
  [[nodiscard]] std::string Focused() {
    const QWidget* const widget = QApplication::focusWidget();
    if (widget == nullptr) return "";
    const qt::RowCanvas& canvas = Canvas();
    if (widget == &canvas || canvas.isAncestorOf(widget)) return canvas.Current()->Control().ElementName();
    return widget->objectName().toStdString();
  }

  qt::Toolkit toolkit_;
  std::shared_ptr<RecordingScenario> scenario_ = std::make_shared<RecordingScenario>();
  std::vector<int> disabled_;
  frmScenario* form_ = nullptr;
  QDialog* dialog_ = nullptr;
  bool closed_ = false;
};

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
