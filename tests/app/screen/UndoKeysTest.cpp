#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QStatusBar>
#include <QTableView>

#include "app/desk/Settings.h"
#include "app/history/HistoryWindow.h"
#include "tests/app/screen/WindowTest.h"
#include <brivane/frame/Handle.h>
#include <brivane/vrijekolom/Ontwerp.h>

// The way back by keys, in the real window.
namespace brivane::app {
namespace {

class UndoKeysTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    Open();
  }
  /// Presses a key and counts it.
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    ++keys_;
    PressKey(key, modifiers);
  }
  void Undo() { Key(Qt::Key_Z, Qt::ControlModifier); }
  void Redo() { Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
  [[nodiscard]] QString UndoText() { return window_->Actions().undo->text(); }
  [[nodiscard]] QString RedoText() { return window_->Actions().redo->text(); }
  [[nodiscard]] dossier::DossierGegevens Case() { return Screen().Dossier().Gegevens(); }
  void Amount(const char* text) {
    PressKey(Qt::Key_B, Qt::AltModifier);
    Type(text);
    PressKey(Qt::Key_Tab);
    QApplication::processEvents();
  }

  int keys_ = 0;
};

TEST_F(UndoKeysTest, AColumnIsDeletedAndBackInLessThanThreeKeys) {
  ASSERT_TRUE(Screen().GoTo({0, 3}));
  const dossier::DossierGegevens before = Case();
  Key(Qt::Key_Delete, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_FALSE(Screen().Dossier().FindKolom(0, 3));
  EXPECT_EQ(UndoText(), "&Ongedaan maken: verwijderen van Muzieklessen aan huis");
  Undo();
  EXPECT_EQ(Case(), before);
  EXPECT_EQ(Screen().Shown(), (Place{0, 3}));
  EXPECT_EQ(keys_, 2);
}

TEST_F(UndoKeysTest, AnAmountGoesBackAndForthWithTheFocusInItsBox) {
  ASSERT_TRUE(Screen().GoTo({0, 3}));
  Amount("500");
  EXPECT_EQ(UndoText(), "&Ongedaan maken: bedrag van Muzieklessen aan huis");
  EXPECT_FALSE(window_->Actions().redo->isEnabled());
  // From another column.
  ASSERT_TRUE(Screen().GoTo({0, 2}));
  Undo();
  EXPECT_EQ(Screen().Shown(), (Place{0, 3}));
  EXPECT_EQ(Focus(), "Bedrag");
  EXPECT_EQ(window_->findChild<QLineEdit*>("TxtBd")->text(), "350,00");
  EXPECT_EQ(Kolom(0, 3).Bedrag.Bedrag, 350);
  EXPECT_EQ(RedoText(), "Opn&ieuw: bedrag van Muzieklessen aan huis");
  Key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Kolom(0, 3).Bedrag.Bedrag, 500);
  EXPECT_EQ(Focus(), "Bedrag");
  Undo();
  Redo();
  EXPECT_EQ(Kolom(0, 3).Bedrag.Bedrag, 500);
  EXPECT_EQ(ReadAfterClosing()["0/3/bedrag"].toDouble(), 500);
}

TEST_F(UndoKeysTest, WhileABoxIsTypedInTheKeyIsTheBoxs) {
  ASSERT_TRUE(Screen().GoTo({0, 1}));
  Amount("500");
  PressKey(Qt::Key_B, Qt::AltModifier);
  Type("7");
  auto* box = window_->findChild<QLineEdit*>("TxtBd");
  EXPECT_EQ(box->text(), "7");
  Undo();
  // The box has taken back what was typed; the file holds what it held.
  EXPECT_NE(box->text(), "7");
  EXPECT_EQ(Kolom(0, 1).Bedrag.Bedrag, 500);
  PressKey(Qt::Key_Escape);
  Undo();
  EXPECT_EQ(Kolom(0, 1).Bedrag.Bedrag, 485.5);
}

TEST_F(UndoKeysTest, ANewColumnThatIsNotCompleteGoesAgain) {
  const dossier::DossierGegevens before = Case();
  PressKey(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
  ASSERT_EQ(Screen().Shown(), (Place{0, 8}));
  Undo();
  EXPECT_EQ(Case(), before);
  EXPECT_EQ(Screen().Shown(), (Place{0, std::nullopt}));
  Redo();
  EXPECT_EQ(Screen().Shown(), (Place{0, 8}));
}

TEST_F(UndoKeysTest, ATermThatBecameOneOffGetsItsPeriodsBack) {
  ASSERT_TRUE(Screen().GoTo({0, 1}));
  const dossier::KolomGegevens before = Kolom(0, 1);
  ASSERT_EQ(before.Bedrag.Perioden.size(), 2U);
  PressKey(Qt::Key_B, Qt::AltModifier);
  PressKey(Qt::Key_Tab);
  const QString termijn = Focus();
  PressKey(Qt::Key_End);
  PressKey(Qt::Key_Tab);
  ASSERT_EQ(Kolom(0, 1).Termijn, 99);
  EXPECT_EQ(UndoText(), "&Ongedaan maken: termijn van Kinderopvang");
  Undo();
  EXPECT_EQ(Kolom(0, 1), before);
  EXPECT_EQ(Focus(), termijn);
}

TEST_F(UndoKeysTest, AnOptionIsFocusedWhereItStandsAgain) {
  ASSERT_TRUE(Screen().GoTo({0, 1}));
  PressKey(Qt::Key_A, Qt::AltModifier);
  PressKey(Qt::Key_Tab, Qt::ShiftModifier);
  PressKey(Qt::Key_Left);
  EXPECT_EQ(UndoText(), "&Ongedaan maken: correctie fiscaal van Kinderopvang");
  ASSERT_NE(Kolom(0, 1).CorrectieFiscaal, 3);
  Undo();
  EXPECT_EQ(Kolom(0, 1).CorrectieFiscaal, 3);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "optFiscaal(3)");
}

TEST_F(UndoKeysTest, TheClientAndLoansGoBackToo) {
  const dossier::DossierGegevens before = Case();
  std::vector<dossier::PersoonGegevens> personen = Screen().Dossier().Personen();
  personen[0].Belastingtarief = 37.48;
  ASSERT_TRUE(Screen().SetClient(personen, 68));
  EXPECT_EQ(Screen().NextStep(dossier::StepKind::Undo), "cliëntgegevens");
  ASSERT_TRUE(Screen().AddLening("Verhuur"));
  EXPECT_EQ(Screen().NextStep(dossier::StepKind::Undo), "toevoegen van Verhuur");
  ASSERT_TRUE(Screen().RenameLening("Verhuurd"));
  EXPECT_EQ(Screen().NextStep(dossier::StepKind::Undo), "naam van Verhuurd");
  ASSERT_TRUE(Screen().GoTo({1, 7}));
  ASSERT_TRUE(Screen().RemoveLening());
  EXPECT_EQ(Screen().NextStep(dossier::StepKind::Undo), "verwijderen van Nieuwe lening 1");
  QApplication::processEvents();
  for (int n = 0; n < 4; ++n) Undo();
  EXPECT_EQ(Case(), before);
  EXPECT_FALSE(window_->Actions().undo->isEnabled());
  // The loan of the current situation stays.
  ASSERT_TRUE(Screen().GoTo({0, 1}));
  EXPECT_FALSE(Screen().RemoveLening());
  EXPECT_FALSE(window_->Actions().removeLening->isEnabled());
}

TEST_F(UndoKeysTest, TheWayBackOutlivesTheProgram) {
  ASSERT_TRUE(Screen().GoTo({0, 3}));
  Amount("500");
  Amount("600");
  ASSERT_TRUE(window_->CloseDossier());
  Open();
  Undo();
  EXPECT_EQ(Kolom(0, 3).Bedrag.Bedrag, 500);
  Undo();
  EXPECT_EQ(Kolom(0, 3).Bedrag.Bedrag, 350);
  EXPECT_FALSE(window_->Actions().undo->isEnabled());
}

TEST_F(UndoKeysTest, ARefusedBoxKeepsTheStep) {
  ASSERT_TRUE(Screen().GoTo({0, 1}));
  Amount("500");
  PressKey(Qt::Key_A, Qt::AltModifier);
  Type("31-31");
  EXPECT_FALSE(Screen().Take(dossier::StepKind::Undo));
  EXPECT_EQ(Kolom(0, 1).Bedrag.Bedrag, 500);
  PressKey(Qt::Key_Escape);
}

TEST_F(UndoKeysTest, ARecordingEndsBeforeAnUndo) {
  const QString file = folder_.filePath("opname.json");
  ASSERT_TRUE(window_->Record(file));
  ASSERT_TRUE(Screen().GoTo({0, 1}));
  Amount("500");
  dialogs_.ExpectMessage("De opname is gestopt", Pressing(Qt::Key_Return));
  Undo();
  EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(file); }, 3000));
  EXPECT_FALSE(window_->Actions().record->isChecked());
  EXPECT_EQ(Kolom(0, 1).Bedrag.Bedrag, 485.5);
  QTest::qWait(600);
}

TEST_F(UndoKeysTest, AYesToTheCarryOverIsAStepOfItsOwn) {
  ASSERT_TRUE(Screen().GoTo({0, 1}));
  Amount("500");
  const dossier::DossierGegevens before = Case();
  dialogs_.ExpectMessage("Wilt u de wijzigingen overnemen in de nieuwe situatie?",
                         [](QWidget& window) { QTest::keyClick(window.windowHandle(), Qt::Key_J, Qt::AltModifier); });
  PressKey(Qt::Key_PageDown, Qt::ControlModifier);
  QApplication::processEvents();
  ASSERT_FALSE(Screen().Dossier().FindKolom(1, 1));
  const dossier::DossierGegevens after = Case();
  EXPECT_EQ(UndoText(), "&Ongedaan maken: overnemen van Kinderopvang in de nieuwe situatie");
  Undo();
  EXPECT_EQ(Case(), before);
  EXPECT_EQ(Screen().Shown(), (Place{1, 1}));
  EXPECT_EQ(window_->statusBar()->currentMessage(),
            "Ongedaan gemaakt: overnemen van Kinderopvang in de nieuwe situatie");
  EXPECT_EQ(RedoText(), "Opn&ieuw: overnemen van Kinderopvang in de nieuwe situatie");
  Redo();
  EXPECT_EQ(Case(), after);
  // The history tells the removal of the version by its reason.
  const auto view = Screen().Store().Geschiedenis();
  HistoryModel history(*view, nullptr);
  history.Show({});
  QStringList kinds;
  for (int row = 0; row < history.rowCount({}); ++row) {
    const QStringList texts = history.Texts(row);
    if (texts[HistoryModel::What] == "kolom" || texts[HistoryModel::What] == "bedrag")
      kinds << texts[HistoryModel::Kind];
  }
  EXPECT_EQ(kinds, (QStringList{"opnieuw gedaan", "ongedaan gemaakt", "overgenomen", "gewijzigd"}));
}

TEST_F(UndoKeysTest, AVersionThatTheAdviserRemovesIsRemoved) {
  ASSERT_TRUE(Screen().GoTo({1, 1}));
  PressKey(Qt::Key_Delete, Qt::ControlModifier | Qt::ShiftModifier);
  ASSERT_FALSE(Screen().Dossier().FindKolom(1, 1));
  EXPECT_EQ(UndoText(), "&Ongedaan maken: verwijderen van Kinderopvang");
}

TEST_F(UndoKeysTest, TheHistoryTellsWhoChangedWhatInTheWordsOfTheScreen) {
  const QString account = Settings::Author();
  Settings::SetAuthor("Zoë de Vries");
  Screen().SetAuthor(Settings::Author());
  ASSERT_TRUE(Screen().GoTo({0, 3}));
  Amount("500");
  PressKey(Qt::Key_A, Qt::AltModifier);
  Type("1-4-2031");
  PressKey(Qt::Key_Tab);
  Undo();
  Settings::SetAuthor({});
  EXPECT_EQ(Settings::Author(), account);
  bool seen = false;
  dialogs_.Expect([&](QWidget& window) {
    seen = true;
    auto& history = dynamic_cast<HistoryWindow&>(window);
    auto* table = window.findChild<QTableView*>("wijzigingen");
    ASSERT_NE(table, nullptr);
    const auto text = [&](int row, int column) { return table->model()->index(row, column).data().toString(); };
    EXPECT_EQ(table->model()->rowCount(), 3);
    EXPECT_EQ(text(0, HistoryModel::What), "aanvangsdatum");
    EXPECT_EQ(text(0, HistoryModel::Kind), "ongedaan gemaakt");
    EXPECT_EQ(text(0, HistoryModel::Before), "01-04-2031");
    EXPECT_EQ(text(0, HistoryModel::After), "01-04-2025");
    EXPECT_EQ(text(2, HistoryModel::Who), "Zoë de Vries");
    EXPECT_EQ(text(2, HistoryModel::Lening), "Huidige lening");
    EXPECT_EQ(text(2, HistoryModel::Kolom), "Muzieklessen aan huis");
    EXPECT_EQ(text(2, HistoryModel::What), "bedrag");
    EXPECT_EQ(text(2, HistoryModel::Kind), "gewijzigd");
    EXPECT_EQ(text(2, HistoryModel::Before), "€ 350,00");
    EXPECT_EQ(text(2, HistoryModel::After), "€ 500,00");
    EXPECT_TRUE(history.Csv().contains(
        "Zoë de Vries;Huidige lening;Muzieklessen aan huis;bedrag;gewijzigd;€ 350,00;€ 500,00\r\n"));
    // The focus is in the table: rows are copied by keys.
    EXPECT_EQ(QApplication::focusWidget(), table);
    for (int n = 0; n < 2; ++n) PressKey(Qt::Key_Down);
    PressKey(Qt::Key_C, Qt::ControlModifier);
    const QString copied = QGuiApplication::clipboard()->text();
    EXPECT_TRUE(copied.endsWith("bedrag\tgewijzigd\t€ 350,00\t€ 500,00")) << copied.toStdString();
    // A day on which nothing was changed.
    QTest::keyClick(&window, Qt::Key_A, Qt::AltModifier);
    QTest::keyClicks(QApplication::focusWidget(), "1-1-2090");
    EXPECT_EQ(table->model()->rowCount(), 0);
    window.close();
  });
  PressKey(Qt::Key_F8);
  EXPECT_TRUE(seen);
}

}  // namespace
}  // namespace brivane::app
