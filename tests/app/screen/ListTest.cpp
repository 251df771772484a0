#include <QAbstractItemView>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>

#include "tests/app/screen/WindowTest.h"

// The list beside the editor, by keyboard and mouse, in the real window.
namespace brivane::app {
namespace {

class ListTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    Open();
    PressKey(Qt::Key_F6);
  }
  [[nodiscard]] QTreeView& Tree() { return *window_->findChild<QTreeView*>("kolommen"); }
  [[nodiscard]] QLineEdit& Filter() { return *window_->findChild<QLineEdit*>("filter"); }
  [[nodiscard]] QString Count() {
    const auto* count = window_->findChild<QLabel*>("gevonden");
    return count->isVisible() ? count->text() : QString();
  }
  [[nodiscard]] QModelIndex Cell(int loan, int row, int cell) {
    return Tree().model()->index(row, cell, Tree().model()->index(loan, 0));
  }
  [[nodiscard]] QString Text(int loan, int row, int cell) { return Cell(loan, row, cell).data().toString(); }
  [[nodiscard]] QStringList Names(int loan) {
    QStringList names;
    for (int row = 0; row < Tree().model()->rowCount(Tree().model()->index(loan, 0)); ++row) {
      names << Text(loan, row, KolommenModel::kNaam);
    }
    return names;
  }
};

TEST_F(ListTest, TellsNameAmountTermStartAndHowAColumnStands) {
  const auto row = [this](int loan, int number) {
    QStringList texts;
    for (int cell = 0; cell < KolommenModel::kCells; ++cell) texts << Text(loan, number, cell);
    return texts.join(u'|');
  };
  window_->resize(1600, 700);
  QApplication::processEvents();
  EXPECT_EQ(row(0, 0), "Kinderopvang|≠ wijkt af|€ 485,50|maand|01-09-2024");
  EXPECT_EQ(row(0, 1), "Krant · Weekendabonnement|= volgt|€ 32,50|maand|01-01-2026");
  EXPECT_EQ(row(0, 3), "Goed doel · Gift nieuwbouw kinderhoek|= volgt|€ 1.500,00|eenmalig|15-12-2026");
  EXPECT_EQ(row(1, 0), "Kinderopvang|≠ wijkt af|€ 310,00|maand|01-09-2024");
  EXPECT_EQ(row(1, 1), "Onderhoud zonnepanelen|+ nieuw|€ 95,00|jaar|01-03-2027");
  EXPECT_EQ(Cell(1, 0, 0).data(Qt::ToolTipRole).toString(),
            "Kinderopvang · € 310,00 per maand\n"
            "Wijkt af van de huidige situatie: Kinderopvang · € 485,50 per maand");
}

TEST_F(ListTest, ShowsEveryAmountWhole) {
  Screen().Dossier().FindKolom(0, 2)->Bedrag()->SetBasisbedrag(-98765432.1);
  ASSERT_TRUE(Screen().GoTo({0, 2}));
  for (const int width : {1600, 1240, 1060, 900}) {
    window_->resize(width, 640);
    QApplication::processEvents();
    Screen().GoOn(1);
    Screen().GoOn(-1);
    Screen().Tree().RedrawText({0, 2});
    const QRect place = Tree().visualRect(Cell(0, 1, KolommenModel::kBedrag));
    EXPECT_GE(place.width(), Tree().fontMetrics().horizontalAdvance("€ -98.765.432,10")) << width;
    EXPECT_TRUE(Qt::Alignment(Cell(0, 1, KolommenModel::kBedrag).data(Qt::TextAlignmentRole).value<Qt::Alignment>())
                    .testFlag(Qt::AlignRight));
  }
}

TEST_F(ListTest, FiltersWhileItIsTypedAndEscapeGoesBack) {
  PressKey(Qt::Key_F6);
  ASSERT_EQ(Focus(), "Aanvangsdatum");
  PressKey(Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(Focus(), "Filter van de lijst");
  EXPECT_EQ(Count(), "");
  Type("per jaar");
  EXPECT_EQ(Names(0), (QStringList{"Lijfrente-uitkering", "Vereniging · Tennislidmaatschap"}));
  EXPECT_EQ(Names(1), (QStringList{"Onderhoud zonnepanelen"}));
  EXPECT_EQ(Tree().model()->rowCount(), 2);
  EXPECT_EQ(Count(), "3 van 8");
  // What is on the screen was not left.
  EXPECT_EQ(Screen().Shown(), (Place{0, 1}));
  Type("!");
  EXPECT_EQ(Tree().model()->rowCount(), 0);
  EXPECT_EQ(Count(), "0 van 8");
  PressKey(Qt::Key_Down);
  EXPECT_EQ(Focus(), "Filter van de lijst");
  PressKey(Qt::Key_Escape);
  EXPECT_EQ(Focus(), "Aanvangsdatum");
  EXPECT_EQ(Names(0).size(), 6);
  EXPECT_EQ(Count(), "");
}

TEST_F(ListTest, DownGoesIntoTheListAndEnterToTheFirstThatWasFound) {
  PressKey(Qt::Key_F, Qt::ControlModifier);
  Type("kinder");
  EXPECT_EQ(Count(), "3 van 8");
  PressKey(Qt::Key_Down);
  EXPECT_TRUE(Tree().hasFocus());
  PressKey(Qt::Key_Down);
  EXPECT_TRUE(Comes(Place{0, 4}));
  PressKey(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Screen().Shown(), (Place{1, 1}));
  // Escape in the list puts the filter away and goes nowhere.
  PressKey(Qt::Key_Escape);
  EXPECT_EQ(Names(0).size(), 6);
  EXPECT_EQ(Screen().Shown(), (Place{1, 1}));

  PressKey(Qt::Key_F, Qt::ControlModifier);
  Type("tennis");
  PressKey(Qt::Key_Return);
  EXPECT_EQ(Screen().Shown(), (Place{0, 6}));
  EXPECT_EQ(Focus(), "Aanvangsdatum");
}

TEST_F(ListTest, WhatIsOnTheScreenIsInTheList) {
  PressKey(Qt::Key_F, Qt::ControlModifier);
  Type("krant");
  PressKey(Qt::Key_Return);
  PressKey(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Screen().Shown(), (Place{0, 8}));
  EXPECT_EQ(Filter().text(), "");
  EXPECT_EQ(Names(0).size(), 7);
}

TEST_F(ListTest, AFilteredOutBoxThatRefusesKeepsTheColumn) {
  PressKey(Qt::Key_A, Qt::AltModifier);
  Type("31-2-2027");
  PressKey(Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(Screen().Shown(), (Place{0, 1}));
  PressKey(Qt::Key_Escape);
}

TEST_F(ListTest, SortsByAHeadingUpwardsDownwardsAndAsAdded) {
  const auto click = [this] {
    QHeaderView& header = *Tree().header();
    const int x = header.sectionViewportPosition(KolommenModel::kBedrag) + 5;
    QTest::mouseClick(header.viewport(), Qt::LeftButton, Qt::NoModifier, {x, header.height() / 2});
    QApplication::processEvents();
  };
  const QStringList added{"Kinderopvang",          "Krant · Weekendabonnement",
                          "Muzieklessen aan huis", "Goed doel · Gift nieuwbouw kinderhoek",
                          "Lijfrente-uitkering",   "Vereniging · Tennislidmaatschap"};
  EXPECT_EQ(Names(0), added);
  click();
  // 32,50; 240; 350; 485,50; 1500; 6250.
  const QStringList upwards{added[1], added[5], added[2], added[0], added[3], added[4]};
  EXPECT_EQ(Names(0), upwards);
  EXPECT_EQ(Tree().currentIndex().data(), "Kinderopvang");
  // The way on is the list's.
  PressKey(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Screen().Shown(), (Place{0, 4}));
  click();
  EXPECT_EQ(Names(0), QStringList(upwards.rbegin(), upwards.rend()));
  click();
  EXPECT_EQ(Names(0), added);
  Screen().Tree().SortBy(KolommenModel::kNaam);
  EXPECT_EQ(Names(0).front(), "Goed doel · Gift nieuwbouw kinderhoek");
}

TEST_F(ListTest, TheFocusIsSeenInIt) {
  QApplication::processEvents();
  const QRect row = Tree().visualRect(Tree().currentIndex());
  const QPoint edge(1, row.top() + 1);
  const QColor with = Tree().viewport()->grab().toImage().pixelColor(edge);
  PressKey(Qt::Key_F6);
  const QColor without = Tree().viewport()->grab().toImage().pixelColor(edge);
  EXPECT_EQ(with, Tree().palette().color(QPalette::Text));
  EXPECT_NE(without, with);
}

TEST_F(ListTest, GivesWayBeforeTheEditorAndComesBackForTheFocus) {
  const auto* panel = Tree().parentWidget();
  window_->resize(1240, 640);
  QApplication::processEvents();
  const auto& editor = Screen().Kolom().Editor();
  const auto right = [&] { return editor.mapTo(window_.get(), QPoint(editor.width(), 0)).x(); };
  EXPECT_LE(right(), 1240);
  EXPECT_GT(panel->width(), 200);
  PressKey(Qt::Key_F6);
  window_->resize(860, 640);
  QApplication::processEvents();
  EXPECT_LE(right(), 860);
  EXPECT_EQ(Screen().sizes().front(), 0);
  PressKey(Qt::Key_F6);
  EXPECT_GE(Screen().sizes().front(), Screen().Tree().LeastWidth());
  PressKey(Qt::Key_F6);
  EXPECT_EQ(Screen().sizes().front(), 0);
  window_->resize(1500, 640);
  QApplication::processEvents();
  EXPECT_EQ(Screen().sizes().front(), Screen().WantedListWidth());
}

TEST_F(ListTest, TheWindowComesBackAsItWasAndHasAPicture) {
  EXPECT_FALSE(window_->windowIcon().isNull());
  EXPECT_TRUE(window_->windowIcon().availableSizes().contains(QSize(16, 16)));
  window_->resize(1300, 700);
  Screen().SetWantedListWidth(321);
  window_->close();
  NewWindow();
  Open();
  EXPECT_EQ(Screen().WantedListWidth(), 321);
}

TEST_F(ListTest, TheFirstWindowStandsOnASmallScreen) {
  EXPECT_LE(MainWindow::kFirstSize.width(), 1280 - 8);
  EXPECT_LE(MainWindow::kFirstSize.height(), 720 - 40);
  window_->resize(MainWindow::kFirstSize);
  QApplication::processEvents();
  const auto& editor = Screen().Kolom().Editor();
  const QPoint end = editor.mapTo(window_.get(), QPoint(editor.width(), editor.sizeHint().height()));
  EXPECT_LE(end.x(), window_->width());
  EXPECT_LE(end.y(), window_->height() - 20);  // the status bar stands below it
}

}  // namespace
}  // namespace brivane::app
