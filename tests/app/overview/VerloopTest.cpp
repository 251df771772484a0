#include <QComboBox>
#include <QDateEdit>
#include <QFontMetricsF>
#include <QLabel>
#include <QMouseEvent>
#include <QTableView>

#include "app/overview/Choices.h"
#include "app/overview/FigureTable.h"
#include "app/overview/VerloopWindow.h"
#include "app/overview/YearChart.h"
#include "tests/app/screen/WindowTest.h"
#include "tests/dossier/sums/WorkedOutCase.h"

// The window "Verloop" on the case of docs/overview-worked-out.md.
namespace brivane::app {
namespace {

class VerloopTest : public WindowTest {
 protected:
  void SetUp() override {
    dossier::DossierGegevens gegevens = sums::WorkedOutCase();
    gegevens.MaatschappijType = dossier::VoorbeeldDossier().MaatschappijType;
    dossier::DossierFile::Maak(file_, gegevens);
    NewWindow();
    Open();
    PressKey(Qt::Key_F9, Qt::ShiftModifier);
    ASSERT_TRUE(window_->Overviews().Verloop());
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Verloop()));
    Find<QDateEdit>("peildatum").setDate(QDate(2027, 6, 15));
    Verloop().Chart().GoTo(0);
  }

  [[nodiscard]] VerloopWindow& Verloop() { return *window_->Overviews().Verloop(); }
  template <class Widget> [[nodiscard]] Widget& Find(const char* name) {
    return *Verloop().findChild<Widget*>(QString::fromLatin1(name));
  }
  [[nodiscard]] QString YearText() { return Find<QLabel>("jaartekst").text(); }
};

TEST_F(VerloopTest, TellsTheYearsAsTheArrowKeysWalkThem) {
  EXPECT_TRUE(Verloop().Chart().hasFocus());
  EXPECT_EQ(YearText(),
            "2027 · aanvrager 49 jaar · partner 47 jaar · Huidige lening: € -6.112,50 · Nieuwe lening 1: € -8.973,33 · "
            "Huidige lening, eenmalig: € 1.500,00 · Nieuwe lening 1, eenmalig: € 1.500,00");
  PressKey(Qt::Key_Right);
  EXPECT_TRUE(YearText().startsWith("2028 · aanvrager 50 jaar · partner 48 jaar · Huidige lening: € -7.452,55 · "))
      << qPrintable(YearText());
  EXPECT_FALSE(YearText().contains("eenmalig"));
  // A screen reader is told the same.
  QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&Verloop().Chart());
  EXPECT_EQ(reader->text(QAccessible::Description), YearText());
  PressKey(Qt::Key_End);
  EXPECT_TRUE(YearText().startsWith("2047 · aanvrager 69 jaar · partner 67 jaar")) << qPrintable(YearText());
  PressKey(Qt::Key_Right);
  EXPECT_EQ(Verloop().Chart().Year(), 20);
  PressKey(Qt::Key_PageUp);
  EXPECT_EQ(Verloop().Chart().Year(), 15);
  PressKey(Qt::Key_Home);
  EXPECT_EQ(Verloop().Chart().Year(), 0);
}

TEST_F(VerloopTest, HasATableBehindThePictureThatGoesAlong) {
  FigureTable& table = Find<FigureTable>("jaren");
  PressKey(Qt::Key_Right);
  EXPECT_EQ(table.currentIndex().row(), 1);
  table.SetCurrentRow(4);
  EXPECT_EQ(Verloop().Chart().Year(), 4);
  const QAbstractItemModel& model = *table.model();
  EXPECT_EQ(model.rowCount(), 21);
  EXPECT_EQ(model.headerData(3, Qt::Horizontal).toString(), "Huidige lening (€)");
  EXPECT_EQ(model.index(1, 0).data().toString(), "2028");
  EXPECT_EQ(model.index(1, 1).data().toString(), "50");
  EXPECT_EQ(model.index(1, 3).data().toString(), "-7.452,55");
  EXPECT_EQ(model.index(1, 3).data(Qt::AccessibleTextRole).toString(), "Huidige lening (€): -7.452,55");
}

TEST_F(VerloopTest, PointsAtTheYearUnderThePointer) {
  YearChart& chart = Verloop().Chart();
  const QRectF plot = PlotArea(QFontMetricsF(chart.font(), &chart), chart.rect(), chart.Data());
  const QPointF place(YearPlace(plot, chart.Data().Years(), 7), plot.center().y());
  QMouseEvent move(QEvent::MouseMove, place, chart.mapToGlobal(place), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(&chart, &move);
  EXPECT_EQ(chart.Year(), 7);
  EXPECT_TRUE(YearText().startsWith("2034"));
}

TEST_F(VerloopTest, ShowsTheColumnOnTheScreenInItsOwnYears) {
  PressKey(Qt::Key_B, Qt::AltModifier);
  PressKey(Qt::Key_Down);
  EXPECT_TRUE(YearText().contains("€ 10.302,30")) << "taxable income: " << qPrintable(YearText());
  PressKey(Qt::Key_Down);
  // Childcare: 8 x 310 and 4 x 165 in 2028.
  Verloop().Chart().GoTo(4);
  EXPECT_EQ(YearText(), "2028 · aanvrager 50 jaar · partner 48 jaar · Kinderopvang: € 3.140,00");
  // Another column is shown as soon as it is on the screen.
  ASSERT_TRUE(Screen().GoTo(Place{0, 7}));
  Verloop().Chart().GoTo(2);
  EXPECT_EQ(YearText(), "2028 · aanvrager 50 jaar · partner 48 jaar · Rente familielening: 4,25 %");
}

TEST_F(VerloopTest, FollowsAnEdit) {
  Screen().Dossier().FindKolom(0, 1)->Bedrag()->Periode(1)->SetBedrag(410);
  // 2027 had 12 x 310, and has 12 x 410 now.
  EXPECT_TRUE(QTest::qWaitFor([&] { return YearText().contains("Huidige lening: € -4.912,50"); }, 2000))
      << qPrintable(YearText());
}

}  // namespace
}  // namespace brivane::app
