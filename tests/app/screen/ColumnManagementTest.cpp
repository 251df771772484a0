#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QProcess>
#include <QStatusBar>

#include "app/screen/KolommenModel.h"
#include "tests/app/screen/WindowTest.h"
#include <brivane/frame/Handle.h>
#include <brivane/vrijekolom/Ontwerp.h>

// Columns, loans and persons: what the window does beside the editor.
namespace brivane::app {
namespace {

class ColumnManagementTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    Open();
  }
  [[nodiscard]] QAbstractItemView& Tree() { return *window_->findChild<QAbstractItemView*>("kolommen"); }
  [[nodiscard]] QStringList Kolommen(int lening) {
    QStringList texts;
    const QModelIndex above = Tree().model()->index(lening, 0);
    for (int row = 0; row < Tree().model()->rowCount(above); ++row) {
      texts << Tree().model()->index(row, 0, above).data(Qt::AccessibleTextRole).toString();
    }
    return texts;
  }
};

TEST_F(ColumnManagementTest, TheTreeShowsTheLoansAndTheirColumns) {
  EXPECT_EQ(Tree().model()->rowCount(), 3);
  EXPECT_EQ(Tree().model()->index(0, 0).data().toString(), "Huidige lening");
  EXPECT_EQ(Tree().model()->index(2, 0).data().toString(), "Nieuwe lening 2");
  EXPECT_EQ(Kolommen(1), (QStringList{"Kinderopvang · € 310,00 per maand, wijkt af",
                                      "Onderhoud zonnepanelen · € 95,00 per jaar, nieuw"}));
  EXPECT_TRUE(Kolommen(2).isEmpty());
}

TEST_F(ColumnManagementTest, DuplicatesAColumnAsAnItemOfItsOwn) {
  ASSERT_TRUE(Screen().GoTo({0, 6}));
  PressKey(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(Screen().Shown(), (Place{0, 8}));
  EXPECT_EQ(Focus(), "Omschrijving");
  EXPECT_EQ(Kolom(0, 8).Productnaam, "Seniorlid");
  EXPECT_EQ(Kolommen(0).size(), 7);
  EXPECT_FALSE(Screen().Dossier().Voorstel(1).contains(8));
  EXPECT_EQ(ReadAfterClosing()["0/8/productnaam"].toString(), "Seniorlid");
}

TEST_F(ColumnManagementTest, RemovesAColumnFromTheListByOneKey) {
  ASSERT_TRUE(Screen().GoTo({0, 3}));
  PressKey(Qt::Key_F6);
  PressKey(Qt::Key_Delete);
  EXPECT_EQ(Kolommen(0).size(), 5);
  EXPECT_EQ(Screen().Shown(), (Place{0, 4}));
  EXPECT_FALSE(ReadAfterClosing().contains("0/3/bedrag"));
}

TEST_F(ColumnManagementTest, ANewColumnIsOfTheKindOfInputThatIsChosen) {
  PressKey(Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Focus(), "Omschrijving");
  Type("Opslag");
  PressKey(Qt::Key_Tab);
  Type("2,5");
  PressKey(Qt::Key_A, Qt::AltModifier);
  Type("010127");
  PressKey(Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
  PressKey(Qt::Key_A, Qt::AltModifier);
  Type("010127");
  PressKey(Qt::Key_Tab);
  EXPECT_EQ(Kolommen(0)[6], "Opslag · 2,50 % per maand, volgt");
  const QJsonObject fields = ReadAfterClosing();
  EXPECT_EQ(fields["0/8/invoersoort"].toInt(), 2);
  EXPECT_EQ(fields["0/9/invoersoort"].toInt(), 3);
  // A burden that the tax passes by.
  for (const char* place : {"0/8/", "0/9/"}) {
    EXPECT_EQ(fields[QLatin1String(place) + "correctie_last"].toInt(), 1);
    EXPECT_EQ(fields[QLatin1String(place) + "correctie_fiscaal"].toInt(), 3);
  }
}

/// Answers the refusal of a column that has no start date yet.
class NewColumnTest : public ColumnManagementTest {
 protected:
  void SetUp() override {
    ColumnManagementTest::SetUp();
    PressKey(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_EQ(Screen().Shown(), (Place{0, 8}));
  }
  void ExpectRefusal(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    dialogs_.ExpectMessage("Voer s.v.p. een aanvangsdatum in.", [key, modifiers](QWidget& window) {
      const QPointer<QWidget> box(&window);
      QTest::keyClick(window.windowHandle(), key, modifiers);
      // A button that a letter presses stays down for a moment.
      if (QTest::qWaitFor([&] { return !box || !box->isVisible(); }, 1000)) return;
      ADD_FAILURE() << "the key did not close the message";
      box->close();
    });
  }
  void ExpectRemoval() { ExpectRefusal(Qt::Key_V, Qt::AltModifier); }
};

TEST_F(NewColumnTest, IsRemovedFromItsRefusalAndLeft) {
  Type("Kinderopvang");
  ExpectRemoval();
  PressKey(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(Screen().Shown(), (Place{0, 6}));
  EXPECT_EQ(Kolommen(0).size(), 6);
  EXPECT_FALSE(ReadAfterClosing().contains("0/8/bedrag"));
}

TEST_F(NewColumnTest, IsRemovedFromItsRefusalAndTheProgramClosed) {
  ExpectRemoval();
  PressKey(Qt::Key_Q, Qt::ControlModifier);
  EXPECT_FALSE(window_->isVisible());
  EXPECT_FALSE(ReadInSecondProcess(file_).contains("0/8/bedrag"));
}

TEST_F(NewColumnTest, IsRemovedFromTheRefusalOfItsDateToo) {
  PressKey(Qt::Key_A, Qt::AltModifier);
  Type("1");
  PressKey(Qt::Key_Backspace);
  ExpectRemoval();
  PressKey(Qt::Key_Q, Qt::ControlModifier);
  EXPECT_FALSE(window_->isVisible());
  EXPECT_FALSE(ReadInSecondProcess(file_).contains("0/8/bedrag"));
}

TEST_F(NewColumnTest, StaysAfterOkEscapeAndABareLetter) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
    ExpectRefusal(key);
    PressKey(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_TRUE(window_->isVisible());
    EXPECT_EQ(Focus(), "Aanvangsdatum");
  }
  dialogs_.ExpectMessage("Voer s.v.p. een aanvangsdatum in.", [](QWidget& window) {
    QTest::keyClick(window.windowHandle(), Qt::Key_V);
    QTest::qWait(200);
    EXPECT_TRUE(window.isVisible());
    if (window.isVisible()) QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
  });
  PressKey(Qt::Key_Q, Qt::ControlModifier);
  EXPECT_EQ(Screen().Shown(), (Place{0, 8}));
}

TEST_F(NewColumnTest, ThatIsRemovedWhenItWasToBeCopiedIsNotCopied) {
  ExpectRemoval();
  PressKey(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(Screen().Shown(), (Place{0, std::nullopt}));
  EXPECT_EQ(Kolommen(0).size(), 6);
}

TEST_F(NewColumnTest, ThatEndsBeforeItBeginsIsRemovedFromThatRefusalToo) {
  PressKey(Qt::Key_A, Qt::AltModifier);
  Type("010127");
  PressKey(Qt::Key_Tab);
  Type("010126");
  dialogs_.ExpectMessage("De einddatum dient na de aanvangsdatum te liggen.", [](QWidget& window) {
    EXPECT_EQ(dynamic_cast<QMessageBox&>(window).buttons().size(), 2);
    QTest::keyClick(window.windowHandle(), Qt::Key_Return);
  });
  PressKey(Qt::Key_PageUp, Qt::AltModifier);
  EXPECT_EQ(Screen().Shown(), (Place{0, 8}));
  dialogs_.ExpectMessage("De einddatum dient na de aanvangsdatum te liggen.", [](QWidget& window) {
    QTest::keyClick(window.windowHandle(), Qt::Key_V, Qt::AltModifier);
    QTest::qWait(200);  // a button that a letter presses stays down for a moment
  });
  PressKey(Qt::Key_PageUp, Qt::AltModifier);
  EXPECT_EQ(Screen().Shown(), (Place{0, 6}));
  EXPECT_EQ(Kolommen(0).size(), 6);
}

TEST_F(NewColumnTest, IsRemovedFromTheRefusalOfABoxThatIsLeft) {
  PressKey(Qt::Key_A, Qt::AltModifier);
  Type("1");
  PressKey(Qt::Key_Backspace);
  ExpectRemoval();
  PressKey(Qt::Key_Tab);
  EXPECT_TRUE(Comes(Place{0, 6}));
  EXPECT_EQ(Focus(), "Leningen en vrije kolommen");
  EXPECT_FALSE(ReadAfterClosing().contains("0/8/bedrag"));
}

TEST_F(NewColumnTest, WithAnEmptiedAmountShowsWhatItsHeaderSays) {
  PressKey(Qt::Key_B, Qt::AltModifier);
  Type("12,5");
  PressKey(Qt::Key_Tab);
  PressKey(Qt::Key_B, Qt::AltModifier);
  PressKey(Qt::Key_Delete);
  PressKey(Qt::Key_Tab);
  QApplication::processEvents();
  const auto* box = window_->findChild<QLineEdit*>("TxtBd");
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(box->text(), "0,00");
  EXPECT_EQ(Kolommen(0).back(), "Vrije kolom · € 0,00 per maand, volgt");
}

TEST_F(ColumnManagementTest, AFileToBeReadIsClosedAlsoOnAColumnThatIsNotComplete) {
  window_->CloseDossier();
  {
    dossier::DossierGegevens gegevens = dossier::VoorbeeldDossier();
    gegevens.Leningen.clear();
    gegevens.HuidigeLening.VrijeKolommen.front().DatumAanvang = host::kNoDate;
    QFile::remove(file_);
    dossier::DossierFile::Maak(file_, gegevens);
  }
  ASSERT_TRUE(QFile::setPermissions(file_, QFile::ReadOwner));
  Open();
  ASSERT_TRUE(Screen().Store().IsReadOnly());
  EXPECT_TRUE(window_->CloseDossier());
}

TEST_F(ColumnManagementTest, ALetterWithAltIsTypedIntoNoNameOfALoan) {
  dialogs_.Expect([](QWidget& window) {
    auto& box = *window.findChild<QLineEdit*>();
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_X, Qt::AltModifier);
    EXPECT_EQ(box.text(), "Nieuwe lening 3");
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  window_->Actions().addLening->trigger();
}

TEST_F(ColumnManagementTest, MovesAColumnByKeyboard) {
  ASSERT_TRUE(Screen().GoTo({0, 5}));
  PressKey(Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  QTest::keyClick(menu, '2');
  EXPECT_EQ(Screen().Shown(), (Place{2, 5}));
  EXPECT_EQ(Kolommen(0).size(), 5);
  EXPECT_EQ(Kolommen(2), QStringList{"Lijfrente-uitkering · € 6.250,00 per jaar, nieuw"});
  // Proposals end what the client has now.
  EXPECT_FALSE(Screen().Kolom().Editor().BeeindigenZichtbaar());
  EXPECT_EQ(ReadAfterClosing()["2/5/bedrag"].toDouble(), 6250);
}

TEST_F(ColumnManagementTest, MovesAColumnThatWasDraggedToALoan) {
  auto& model = static_cast<KolommenModel&>(*Tree().model());
  const QModelIndex krant = model.IndexOf({0, 2});
  const std::unique_ptr<QMimeData> dragged(model.mimeData({krant}));
  // On a column is on its loan.
  EXPECT_FALSE(model.dropMimeData(dragged.get(), Qt::MoveAction, -1, -1, model.IndexOf({1, 7})));
  EXPECT_TRUE(Comes({1, 2}));
  EXPECT_EQ(Kolommen(1).size(), 3);
}

TEST_F(ColumnManagementTest, ADeviationHasTheSameItemInTheNewSituation) {
  ASSERT_TRUE(Screen().GoTo({0, 2}));
  ASSERT_EQ(window_->Actions().afwijking->actions().size(), 2);
  window_->Actions().afwijking->actions().at(1)->trigger();
  EXPECT_EQ(Screen().Shown(), (Place{2, 2}));
  EXPECT_EQ(Kolom(2, 2).Productnaam, "De Maasbode op zaterdag");
  EXPECT_EQ(Kolommen(0).size(), 6);
}

TEST_F(ColumnManagementTest, CarryingChangesOverTakesTheDeviationOutOfTheTree) {
  // Column 1 has a version of its own in the first new loan.
  PressKey(Qt::Key_B, Qt::AltModifier);
  Type("500");
  dialogs_.ExpectMessage("Wilt u de wijzigingen overnemen in de nieuwe situatie?", [](QWidget& window) {
    EXPECT_EQ(dynamic_cast<QMessageBox&>(window).informativeText(),
              "\"Ja\" verwijdert:\n• 1 afwijkende kolom in Nieuwe lening 1: Kinderopvang, € 310,00 per maand");
    QTest::keyClick(window.windowHandle(), Qt::Key_J, Qt::AltModifier);
  });
  PressKey(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Screen().Shown(), (Place{0, 2}));
  EXPECT_EQ(Kolommen(0).front(), "Kinderopvang · € 500,00 per maand, volgt");
  EXPECT_EQ(Kolommen(1), QStringList{"Onderhoud zonnepanelen · € 95,00 per jaar, nieuw"});
}

TEST_F(ColumnManagementTest, CarryingOverAtADateTakesTheDeviationOutOfTheTreeAtOnce) {
  PressKey(Qt::Key_B, Qt::AltModifier);
  Type("500");
  PressKey(Qt::Key_A, Qt::AltModifier);
  Type("1-1-2025");
  dialogs_.ExpectMessage("Wilt u de wijzigingen overnemen in de nieuwe situatie?",
                         [](QWidget& window) { QTest::keyClick(window.windowHandle(), Qt::Key_J, Qt::AltModifier); });
  PressKey(Qt::Key_Tab);
  EXPECT_EQ(Screen().Shown(), (Place{0, 1}));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Kolommen(1).size() == 1; }, 2000));
}

TEST_F(ColumnManagementTest, TheStatusBarSaysWhatWasStoredAndWhatAsksForAttention) {
  EXPECT_EQ(window_->statusBar()->currentMessage(), "");
  ASSERT_TRUE(Screen().GoTo({0, 2}));
  const auto* points = window_->findChild<QLabel*>("aandachtspunten");
  ASSERT_NE(points, nullptr);
  EXPECT_EQ(points->text(), "");
  PressKey(Qt::Key_O, Qt::AltModifier);
  PressKey(Qt::Key_Delete);
  PressKey(Qt::Key_Tab);
  EXPECT_EQ(window_->statusBar()->currentMessage(), "Opgeslagen");
  PressKey(Qt::Key_PageDown, Qt::ControlModifier);
  // A column without a description.
  EXPECT_EQ(points->text(), "Aandachtspunten: 1 (F7)");
}

TEST_F(ColumnManagementTest, PagesThroughAllColumnsAcrossTheLoans) {
  const std::vector<Place> expected{{0, 2}, {0, 3}, {0, 4}, {0, 5}, {0, 6}, {1, 1}, {1, 7}, {1, 7}};
  for (const Place& place : expected) {
    PressKey(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(Screen().Shown(), place);
  }
  // From a loan itself: back to the last column before it.
  ASSERT_TRUE(Screen().GoTo({1, std::nullopt}));
  PressKey(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(Screen().Shown(), (Place{0, 6}));
}

TEST_F(ColumnManagementTest, NewClientDetailsAreOnTheScreenAtOnce) {
  dialogs_.Expect([](QWidget&) {
    TabTo("Partner, Achternaam");
    Type("Jansen");
    TabTo("Partner, Geboortedatum");
    Type("1-5-1979");
    TabTo("Leeftijdsgrens");
    Type("70");
    PressKey(Qt::Key_Return);
  });
  PressKey(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  const frame::Controls boxes(Screen().Kolom().Editor().Surface());
  EXPECT_EQ(boxes(vrijekolom::optAanvrager, 2).Caption(), "S. de Jansen");

  ASSERT_TRUE(window_->CloseDossier());
  Open();
  const std::vector<dossier::PersoonGegevens> personen = Screen().Dossier().Personen();
  ASSERT_EQ(personen.size(), 2U);
  EXPECT_EQ(personen[1].Naam[2], "Jansen");
  EXPECT_EQ(Screen().Dossier().Leeftijd(), 70);
}

TEST_F(ColumnManagementTest, APersonWithoutABirthDateIsRefused) {
  dialogs_.Expect([](QWidget& window) {
    TabTo("Aanvrager, Geboortedatum");
    PressKey(Qt::Key_Delete);
    PressKey(Qt::Key_Tab);
    QTest::keyClick(window.windowHandle(), Qt::Key_Return);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(Focus(), "Aanvrager, Geboortedatum");
    PressKey(Qt::Key_Escape);
    PressKey(Qt::Key_Escape);
  });
  PressKey(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_FALSE(Screen().Dossier().Personen()[0].Geboortedatum.IsNone());
}

TEST_F(ColumnManagementTest, ANewLoanIsGivenColumns) {
  dialogs_.Expect([](QWidget&) {
    Type("Verhuur");
    PressKey(Qt::Key_Return);
  });
  window_->Actions().addLening->trigger();
  EXPECT_EQ(Screen().Shown(), (Place{3, std::nullopt}));
  EXPECT_EQ(Tree().model()->index(3, 0).data().toString(), "Verhuur");
  PressKey(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Screen().Shown(), (Place{3, 8}));
  PressKey(Qt::Key_A, Qt::AltModifier);
  Type("1-1-2027");
  EXPECT_TRUE(ReadAfterClosing().contains("3/8/bedrag"));
}

TEST_F(ColumnManagementTest, TheWindowRemembersItsFile) {
  ASSERT_TRUE(window_->close());
  QProcess process;
  process.start(QStringLiteral(DOSSIER), {});
  ASSERT_TRUE(process.waitForStarted());
  // It opens the file of last time, which nobody else then can. Trying before would keep it from opening.
  ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(file_ + "-wal"); }, 20000));
  dialogs_.ExpectMessage("is al geopend in een ander venster of programma", Pressing(Qt::Key_Return));
  NewWindow();
  EXPECT_FALSE(window_->Open(file_));
  process.kill();
  EXPECT_TRUE(process.waitForFinished());
}

}  // namespace
}  // namespace brivane::app
