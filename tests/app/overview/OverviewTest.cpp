#include <QClipboard>
#include <QComboBox>
#include <QDateEdit>
#include <QTableView>

#include "app/overview/Choices.h"
#include "app/overview/FigureTable.h"
#include "app/overview/OverviewWindow.h"
#include "tests/app/screen/WindowTest.h"
#include "tests/dossier/sums/WorkedOutCase.h"

// The window "Overzicht" on the case of docs/overview-worked-out.md.
namespace brivane::app {
namespace {

class OverviewTest : public WindowTest {
 protected:
  void SetUp() override {
    dossier::DossierGegevens gegevens = sums::WorkedOutCase();
    gegevens.MaatschappijType = dossier::VoorbeeldDossier().MaatschappijType;
    gegevens.Personen[0].Belastingtarief = 37;
    gegevens.Personen[1].Belastingtarief = 49.5;
    dossier::DossierFile::Maak(file_, gegevens);
    NewWindow();
    Open();
    PressKey(Qt::Key_F9);
    ASSERT_TRUE(window_->Overviews().Overview());
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Overview()));
    Find<QDateEdit>("peildatum").setDate(QDate(2027, 6, 15));
  }

  [[nodiscard]] OverviewWindow& Overview() { return *window_->Overviews().Overview(); }
  template <class Widget> [[nodiscard]] Widget& Find(const char* name) {
    return *Overview().findChild<Widget*>(QString::fromLatin1(name));
  }
  /// A row of a table as a reader sees it, cells with bars between.
  [[nodiscard]] QString Row(const char* table, int row) {
    QAbstractItemModel& model = *Find<QTableView>(table).model();
    QStringList cells;
    for (int column = 0; column < model.columnCount(); ++column) cells << model.index(row, column).data().toString();
    return cells.join(u'|');
  }
};

TEST_F(OverviewTest, ShowsTheCurrentSituationAndWhatItAddsUpTo) {
  EXPECT_EQ(Find<QTableView>("doorlopend").model()->rowCount(), 7);
  EXPECT_EQ(Row("doorlopend", 0),
            "Kinderopvang|huidig|485,50|per maand|310,00|01-09-2024|01-09-2032|Aanvrager|+310,00|0,00|0,00|");
  EXPECT_EQ(Row("doorlopend", 3),
            "Lijfrente-uitkering|huidig|6.250,00|per jaar|541,88|31-01-2024|31-01-2044|Aanvrager|-541,88|+6.502,50|"
            "+2.405,93|");
  EXPECT_EQ(Row("doorlopend", 5),
            "Rente familielening|huidig|4 %|per jaar||01-03-2026|01-03-2031|Aanvrager||||nu 4,25 %, geen euro's");
  EXPECT_EQ(Row("eenmalig", 0),
            "Goed doel · Gift nieuwbouw kinderhoek|huidig|1.500,00|15-12-2027|Aanvrager|+1.500,00|-1.500,00|-555,00|");
  EXPECT_EQ(Row("totalen", 0), "Huidige lening|-509,38||+10.302,30||+4.336,86||+1.500,00||-1.500,00||-555,00|");
  EXPECT_EQ(
      Row("totalen", 1),
      "Nieuwe lening 1|-746,46|-237,08|+11.407,30|+1.105,00|+4.895,71|+558,85|+1.500,00|0,00|-1.500,00|0,00|-555,00|"
      "0,00");
}

TEST_F(OverviewTest, IsUsedByKeyboardAlone) {
  // The focus stands in the columns; Alt+S goes to the situation, and down to the first new loan.
  EXPECT_TRUE(Find<FigureTable>("doorlopend").hasFocus());
  PressKey(Qt::Key_S, Qt::AltModifier);
  PressKey(Qt::Key_Down);
  EXPECT_EQ(Row("doorlopend", 0),
            "Kinderopvang|afwijking|310,00|per maand|165,00|01-09-2024|01-09-2032|Aanvrager|+165,00|0,00|0,00|");
  EXPECT_EQ(Row("doorlopend", 1).section(u'|', 0, 1), "Krant · Weekendabonnement|volgt");
  EXPECT_EQ(Row("doorlopend", 7).section(u'|', 0, 1), "Onderhoud zonnepanelen|alleen nieuw");
  // The scenario: Alt+L and down to the death of the applicant.
  PressKey(Qt::Key_L, Qt::AltModifier);
  for (int i = 0; i < 4; ++i) PressKey(Qt::Key_Down);
  EXPECT_EQ(Find<QComboBox>("scenario").currentText(), "Overlijden aanvrager");
  EXPECT_EQ(Row("totalen", 1).section(u'|', 0, 2), "Nieuwe lening 1|-789,31|-100,00");
  EXPECT_EQ(Row("doorlopend", 0).section(u'|', -1), "niet in scenario");
  EXPECT_EQ(Row("doorlopend", 3).section(u'|', 7, 7), "Partner") << "the annuity has passed on";
  // Enter on a row goes to its column in the main window, and Escape puts the overview away.
  PressKey(Qt::Key_D, Qt::AltModifier);
  EXPECT_TRUE(Find<FigureTable>("doorlopend").hasFocus());
  PressKey(Qt::Key_End, Qt::ControlModifier);
  PressKey(Qt::Key_Return);
  EXPECT_TRUE(Comes(Place{1, 9}));
  Overview().activateWindow();
  // A window counts as active while the one that it belongs to has the focus.
  ASSERT_TRUE(QTest::qWaitFor([&] { return QGuiApplication::focusWindow() == Overview().windowHandle(); }));
  PressKey(Qt::Key_Escape);
  EXPECT_FALSE(Overview().isVisible());
}

TEST_F(OverviewTest, FollowsAnEditWhileItIsOpen) {
  window_->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
  ASSERT_EQ(Screen().Shown(), (Place{0, 1}));
  ASSERT_TRUE(Screen().GoTo(Place{0, 2}));
  Screen().Kolom().FocusFirst();
  PressKey(Qt::Key_B, Qt::AltModifier);
  Type("50");
  PressKey(Qt::Key_Tab);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Row("doorlopend", 1).section(u'|', 8, 8) == "+50,00"; }, 2000))
      << qPrintable(Row("doorlopend", 1));
  EXPECT_EQ(Row("totalen", 0).section(u'|', 1, 1), "-491,88");
}

TEST_F(OverviewTest, CopiesRowsForASpreadsheet) {
  PressKey(Qt::Key_Down, Qt::ShiftModifier);
  PressKey(Qt::Key_C, Qt::ControlModifier);
  const QStringList lines = QApplication::clipboard()->text().split(u'\n');
  ASSERT_EQ(lines.size(), 4);
  EXPECT_EQ(lines[0].section(u'\t', 0, 4), "Kolom\tSituatie\tBedrag\tTermijn\tPer maand");
  EXPECT_EQ(
      lines[1],
      "Kinderopvang\thuidig\t485,50\tper maand\t310,00\t01-09-2024\t01-09-2032\tAanvrager\t+310,00\t0,00\t0,00\t");
  EXPECT_EQ(lines[2].section(u'\t', 0, 0), "Krant · Weekendabonnement");
}

TEST_F(OverviewTest, TellsAScreenReaderWhatEachCellIs) {
  QTableView& table = Find<QTableView>("doorlopend");
  QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&table);
  ASSERT_NE(reader, nullptr);
  EXPECT_EQ(reader->text(QAccessible::Name), "Doorlopende kolommen");
  QAccessibleTableInterface* cells = reader->tableInterface();
  ASSERT_NE(cells, nullptr);
  EXPECT_EQ(cells->cellAt(3, 9)->text(QAccessible::Name), "Belastbaar inkomen per jaar: +6.502,50");
  EXPECT_EQ(cells->cellAt(5, 8)->text(QAccessible::Name), "Maandlast: leeg");
  // Numbers stand on the right.
  EXPECT_EQ(table.model()->index(0, 8).data(Qt::TextAlignmentRole).toInt() & Qt::AlignHorizontal_Mask, Qt::AlignRight);
}

TEST_F(OverviewTest, GoesWithItsFile) {
  ASSERT_TRUE(window_->CloseDossier());
  EXPECT_EQ(window_->Overviews().Overview(), nullptr);
  EXPECT_FALSE(window_->Actions().overview->isEnabled());
}

}  // namespace
}  // namespace brivane::app
