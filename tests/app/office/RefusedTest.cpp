#include <QAction>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QStatusBar>

#include "dossier/store/Database.h"
#include "tests/app/office/ClientWindow.h"
#include "tests/support/postgres/SocketProxy.h"

// What an adviser typed while the office refuses it, or does not say whether it has it; and what the office has and
// cannot be read.
namespace brivane::app {
namespace {

using test::SocketProxy;

class RefusedTest : public ClientWindow {
 protected:
  static QString Details(QWidget& box) { return static_cast<QMessageBox&>(box).informativeText(); }
  [[nodiscard]] QString Unstored() { return Text(*window_, "nietOpgeslagen"); }
  [[nodiscard]] std::vector<dossier::PersoonGegevens> StoredPersons() {
    return office_.Open(client_, "rob")->Dossier()->Personen();
  }
  /// Types over what stands in the box that has the focus, and confirms.
  static void Answer(const char* text) {
    auto* box = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_TRUE(box);
    box->selectAll();
    Type(text);
    PressKey(Qt::Key_Return);
  }
  void Superuser(const QString& sql) {
    bool failed = false;
    const QString said = office_.Psql("postgres", sql, &failed);
    EXPECT_FALSE(failed) << said.toStdString();
  }
  void RefuseEdits() {
    Superuser(
        "CREATE FUNCTION kantoor.nee() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN RAISE EXCEPTION 'nu niet'; END $$; "
        "CREATE TRIGGER nee BEFORE INSERT ON kantoor.stap FOR EACH ROW EXECUTE FUNCTION kantoor.nee()");
  }
  void AcceptEdits() { Superuser("DROP TRIGGER nee ON kantoor.stap; DROP FUNCTION kantoor.nee()"); }
  /// The window is on the client again, with the connection there.
  [[nodiscard]] bool IsBack() {
    return QTest::qWaitFor([&] { return Bar(*window_).isEmpty(); }, 15000);
  }
};

TEST_F(RefusedTest, ClientDataStayInTheirDialogUntilTheOfficeTakesThem) {
  OpenAs(*window_, "anna");
  QPointer<QWidget> dialog;
  dialogs_.Expect([&](QWidget& window) {
    dialog = &window;
    RefuseEdits();
    Answer("Q.");
  });
  dialogs_.ExpectMessage(kFailed, [&](QWidget& box) {
    AcceptEdits();
    EXPECT_EQ(box.parentWidget(), dialog);
    EXPECT_TRUE(Details(box).contains("nu niet")) << qPrintable(Details(box));
    EXPECT_TRUE(Details(box).contains("Wat u invulde, staat nog in het venster.")) << qPrintable(Details(box));
    Pressing(Qt::Key_Return)(box);
  });
  dialogs_.Expect([&](QWidget& window) {
    EXPECT_EQ(&window, dialog);
    EXPECT_TRUE(Unstored().startsWith("Niet opgeslagen (Cliëntgegevens): ")) << qPrintable(Unstored());
    EXPECT_EQ(UnfinishedText::All().size(), 1U);
    PressKey(Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
  });
  PressKey(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_FALSE(dialog);
  EXPECT_EQ(StoredPersons()[0].Naam[0], "Q.");
  EXPECT_EQ(Unstored(), "");
  EXPECT_TRUE(UnfinishedText::All().empty());
}

TEST_F(RefusedTest, WhatIsGivenUpInADialogIsKeptUntilItIsThrownAway) {
  OpenAs(*window_, "anna");
  dialogs_.Expect([&](QWidget&) {
    RefuseEdits();
    Answer("Q.");
  });
  dialogs_.ExpectMessage(kFailed, [&](QWidget& box) {
    AcceptEdits();
    Pressing(Qt::Key_Return)(box);
  });
  dialogs_.Expect(Pressing(Qt::Key_Escape));
  PressKey(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(Unstored().contains("Q.")) << qPrintable(Unstored());
  TabTo("Weggooien");
  PressKey(Qt::Key_Space);
  EXPECT_EQ(Unstored(), "");
  EXPECT_TRUE(UnfinishedText::All().empty());
}

/// Confirmed once more it would be there twice.
TEST_F(RefusedTest, ANewLoanThatTurnsOutToBeStoredIsAskedForNoMore) {
  SocketProxy proxy(office_.Server().Folder());
  OpenAs(*window_, "anna", proxy.Folder());
  dialogs_.Expect([&](QWidget&) {
    proxy.NextMeets(SocketProxy::Fate::DeadAfter);
    Answer("Verhuur");
  });
  dialogs_.ExpectMessage(kFailed, [&](QWidget& box) {
    EXPECT_FALSE(Details(box).contains("niet opgeslagen")) << qPrintable(Details(box));
    EXPECT_TRUE(Details(box).contains("Blijkt dat het is opgeslagen, dan sluit dat venster vanzelf."));
    Pressing(Qt::Key_Return)(box);
  });
  dialogs_.Expect([&](QWidget& window) {
    const QPointer<QWidget> dialog(&window);
    EXPECT_TRUE(Unstored().startsWith("Niet bekend of dit is opgeslagen (Lening toevoegen): "))
        << qPrintable(Unstored());
    proxy.Mend();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog || !dialog->isVisible(); }, 15000));
  });
  window_->Actions().addLening->trigger();
  EXPECT_TRUE(IsBack()) << qPrintable(Bar(*window_));
  EXPECT_EQ(Screen().Dossier().AantalLeningen(), 3);
  EXPECT_EQ(Screen().Dossier().FindLening(3)->Naam(), "Verhuur");
  EXPECT_EQ(Unstored(), "");
  EXPECT_TRUE(UnfinishedText::All().empty());
}

TEST_F(RefusedTest, ClientDataThatTurnOutNotToBeStoredAreConfirmedOnceMore) {
  SocketProxy proxy(office_.Server().Folder());
  OpenAs(*window_, "anna", proxy.Folder());
  dialogs_.Expect([&](QWidget&) {
    proxy.NextMeets(SocketProxy::Fate::DeadBefore);
    Answer("Q.");
  });
  dialogs_.ExpectMessage(kFailed, Pressing(Qt::Key_Return));
  dialogs_.Expect([&](QWidget& window) {
    EXPECT_TRUE(Unstored().startsWith("Niet bekend of dit is opgeslagen (Cliëntgegevens): ")) << qPrintable(Unstored());
    proxy.Mend();
    EXPECT_TRUE(IsBack());
    EXPECT_TRUE(Unstored().startsWith("Niet opgeslagen (Cliëntgegevens): ")) << qPrintable(Unstored());
    ASSERT_EQ(UnfinishedText::All().size(), 1U);
    EXPECT_FALSE(UnfinishedText::All().front().what.unknown);
    ASSERT_TRUE(window.isVisible());
    PressKey(Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
  });
  PressKey(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(StoredPersons()[0].Naam[0], "Q.");
  EXPECT_EQ(Unstored(), "");
}

TEST_F(RefusedTest, AnEditWhoseAnswerWasLostIsNotToldAsNotStored) {
  SocketProxy proxy(office_.Server().Folder());
  OpenAs(*window_, "anna", proxy.Folder());
  PressKey(Qt::Key_O, Qt::AltModifier);
  Type("Avondkrant");
  proxy.NextMeets(SocketProxy::Fate::DeadAfter);
  dialogs_.ExpectMessage(kFailed, [&](QWidget& box) {
    EXPECT_TRUE(Details(box).contains("blijkt of dat is gelukt")) << qPrintable(Details(box));
    EXPECT_TRUE(Details(box).contains("Voer haar niet opnieuw in.")) << qPrintable(Details(box));
    EXPECT_FALSE(Details(box).contains("niet opgeslagen")) << qPrintable(Details(box));
    // The program ends before that is known.
    window_->EndInOrder();
  });
  PressKey(Qt::Key_Tab);
  ASSERT_TRUE(QTest::qWaitFor([&] { return window_->Screen() == nullptr; }));
  ASSERT_EQ(UnfinishedText::All().size(), 1U);
  NewWindow();
  dialogs_.Expect([&](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Misschien niet opgeslagen");
    const auto* text = dialog.findChild<QPlainTextEdit*>();
    EXPECT_TRUE(text && text->toPlainText() == "Avondkrant");
    QString said;
    for (const QLabel* label : dialog.findChildren<QLabel*>()) said += label->text();
    EXPECT_TRUE(said.contains("Of het is opgeslagen is niet bekend")) << qPrintable(said);
    EXPECT_FALSE(said.contains("Het is niet opgeslagen")) << qPrintable(said);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
  });
  window_->OfferUnfinished();
}

TEST_F(RefusedTest, WhatIsRefusedWhileAnEditIsInDoubtIsKeptWhenThatTurnsOutToBeStored) {
  SocketProxy proxy(office_.Server().Folder());
  OpenAs(*window_, "anna", proxy.Folder());
  PressKey(Qt::Key_O, Qt::AltModifier);
  Type("Avondkrant");
  proxy.NextMeets(SocketProxy::Fate::DeadAfter);
  dialogs_.ExpectMessage(kFailed, Pressing(Qt::Key_Return));
  PressKey(Qt::Key_Tab);
  ASSERT_TRUE(QTest::qWaitFor([&] { return Unstored().endsWith(": Avondkrant"); }, 5000)) << qPrintable(Unstored());
  QTest::qWait(100);
  dialogs_.ExpectMessage(kFailed, [&](QWidget& box) {
    EXPECT_TRUE(Details(box).contains("De wijziging is niet opgeslagen")) << qPrintable(Details(box));
    Pressing(Qt::Key_Return)(box);
  });
  PressKey(Qt::Key_B, Qt::AltModifier);
  Type("77");
  PressKey(Qt::Key_Tab);
  ASSERT_TRUE(QTest::qWaitFor([&] { return Unstored().endsWith(": 77"); }, 5000)) << qPrintable(Unstored());
  EXPECT_EQ(UnfinishedText::All().size(), 2U);
  proxy.Mend();
  ASSERT_TRUE(
      QTest::qWaitFor([&] { return Text(*window_, "bericht").endsWith("De laatste wijziging is opgeslagen."); }, 15000))
      << qPrintable(Text(*window_, "bericht"));
  EXPECT_EQ(Stored(), "Avondkrant");
  EXPECT_TRUE(Unstored().startsWith("Niet opgeslagen (") && Unstored().endsWith(": 77")) << qPrintable(Unstored());
  EXPECT_EQ(UnfinishedText::All().size(), 1U);
}

/// The connection is gone, and nobody knows it yet.
TEST_F(RefusedTest, AFileIsMadeWithoutItsHistoryWhereTheConnectionBreaksMeanwhile) {
  office_.Open(client_)->Dossier()->FindKolom(0, 2)->SetOmschrijving("Avondkrant");
  office_.Open(client_)->Dossier()->FindKolom(0, 2)->SetOmschrijving("Ochtendkrant");
  SocketProxy proxy(office_.Server().Folder());
  OpenAs(*window_, "anna", proxy.Folder());
  proxy.Cut();
  const QString copy = folder_.filePath("bewaard.dossier");
  dialogs_.Expect([&](QWidget& window) {
    auto* box = window.findChild<QLineEdit*>("fileNameEdit");
    ASSERT_TRUE(box);
    box->setText(copy);
    QTest::keyClick(window.windowHandle(), Qt::Key_Return);
  });
  window_->Actions().office.toFile->trigger();
  EXPECT_TRUE(window_->statusBar()->currentMessage().contains("zonder geschiedenis"))
      << qPrintable(window_->statusBar()->currentMessage());
  EXPECT_TRUE(QTest::qWaitFor([&] { return Bar(*window_).startsWith("Geen verbinding"); }, 5000));
  EXPECT_EQ(ReadInSecondProcess(copy)["0/2/omschrijving"].toString(), "Ochtendkrant");
}

/// What no edit writes, put there by somebody with another program.
class UnreadableTest : public RefusedTest {
 protected:
  void Damage(int client) {
    Superuser(QString("UPDATE kantoor.vrijekolom SET looptijd = 40000 WHERE client = %1 AND id = 3").arg(client));
  }
  void Mend(int client) {
    Superuser(QString("UPDATE kantoor.vrijekolom SET looptijd = 12 WHERE client = %1 AND id = 3").arg(client));
  }
  static constexpr char kDamaged[] =
      "wat het kantoor van deze cliënt heeft, is beschadigd (kolom 3 van de huidige situatie, looptijd)";
};

TEST_F(UnreadableTest, AClientThatCannotBeReadDoesNotOpenAndWhatWasOpenStays) {
  const int other = office_.Add();
  OpenAs(*window_, "anna");
  Damage(other);
  dialogs_.ExpectMessage(QString(kDamaged).mid(1), Pressing(Qt::Key_Return));
  EXPECT_FALSE(window_->OpenClient({office_.Words("anna"), other}));
  ASSERT_TRUE(window_->Screen());
  window_->Screen()->Kolom().FocusOmschrijving();
  Describe("Avondkrant");
  EXPECT_EQ(Stored(), "Avondkrant");
}

TEST_F(UnreadableTest, AHistoryThatCannotBeReadIsToldAndTheWorkGoesOn) {
  {
    const auto before = office_.Open(client_);
    before->Dossier()->FindKolom(0, 2)->SetOmschrijving("Avondkrant");
    before->Dossier()->FindKolom(0, 2)->SetOmschrijving("Ochtendkrant");
    static_cast<void>(before->Take(dossier::StepKind::Undo));
  }
  Superuser(QString("SET session_replication_role = replica; UPDATE kantoor.wijziging SET oud = '\\x07' WHERE client "
                    "= %1 AND stap = 1")
                .arg(client_));
  OpenAs(*window_, "anna");
  EXPECT_EQ(window_->Actions().undo->text(), "&Ongedaan maken: de geschiedenis is niet te lezen");
  const auto told = [this](QWidget& box) {
    const auto& message = static_cast<QMessageBox&>(box);
    const QString said = message.text() + message.informativeText();
    EXPECT_TRUE(said.contains("at het kantoor van deze cliënt heeft, is beschadigd")) << qPrintable(said);
    Pressing(Qt::Key_Return)(box);
  };
  dialogs_.Expect(told);
  PressKey(Qt::Key_Z, Qt::ControlModifier);
  dialogs_.Expect(told);
  PressKey(Qt::Key_F8);
  const QString copy = folder_.filePath("bewaard.dossier");
  dialogs_.Expect([&](QWidget& window) {
    auto* box = window.findChild<QLineEdit*>("fileNameEdit");
    ASSERT_TRUE(box);
    box->setText(copy);
    QTest::keyClick(window.windowHandle(), Qt::Key_Return);
  });
  dialogs_.Expect(told);
  window_->Actions().office.toFile->trigger();
  EXPECT_FALSE(QFile::exists(copy));
  window_->Screen()->Kolom().FocusOmschrijving();
  Describe("Weekblad");
  EXPECT_EQ(Stored(), "Weekblad");
}

TEST_F(UnreadableTest, AFileThatCannotBeReadIsNotBroughtToTheOffice) {
  OpenAs(*window_, "anna");
  Open();
  Screen().Dossier().FindKolom(0, 2)->SetOmschrijving("Avondkrant");
  dynamic_cast<dossier::DossierFile&>(Screen().Store()).Tabellen().Run(QStringLiteral("DROP TABLE wijziging"));
  dialogs_.ExpectMessage("Het bestand is beschadigd.", Pressing(Qt::Key_Return));
  window_->Actions().office.toOffice->trigger();
  EXPECT_EQ(Screen().Path(), file_);
}

TEST_F(UnreadableTest, WhoReadsAlongIsToldThatWhatIsShownIsOld) {
  const auto anna = office_.Open(client_);
  OpenAs(*window_, "bert");
  Damage(client_);
  anna->Dossier()->FindKolom(0, 2)->SetOmschrijving("Avondkrant");
  const QString told = QString("Wat u ziet is oud en kan niet worden gewijzigd: %1.").arg(kDamaged);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Bar(*window_) == told; }, 5000)) << qPrintable(Bar(*window_));
  EXPECT_EQ(Omschrijving(*window_), "Weekendabonnement");
  EXPECT_FALSE(window_->Actions().office.ask->isEnabled());
  EXPECT_TRUE(eventLog_.Read().contains("is beschadigd"));
  Mend(client_);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Omschrijving(*window_) == "Avondkrant"; }, 5000));
  EXPECT_TRUE(Bar(*window_).startsWith("Alleen lezen: Anna Aalders werkt hierin")) << qPrintable(Bar(*window_));
}

/// Nobody edits what he does not see.
TEST_F(UnreadableTest, WhoTakesOverWhatCannotBeReadEditsNothingUntilItCan) {
  auto anna = office_.Open(client_);
  OpenAs(*window_, "bert");
  anna->LetGo();
  ASSERT_TRUE(QTest::qWaitFor([&] { return window_->Actions().office.takeOver->isEnabled(); }, 5000));
  Damage(client_);
  Superuser(QString("UPDATE kantoor.client SET laatste = laatste + 1 WHERE nummer = %1").arg(client_));
  Click(*window_, "Overnemen");
  EXPECT_TRUE(Bar(*window_).startsWith("Wat u ziet is oud")) << qPrintable(Bar(*window_));
  EXPECT_TRUE(window_->windowTitle().contains("(alleen lezen)")) << qPrintable(window_->windowTitle());
  EXPECT_FALSE(window_->Actions().add->isEnabled());
  EXPECT_TRUE(window_->Actions().office.handOver->isEnabled());
  dialogs_.ExpectMessage(kFailed, Pressing(Qt::Key_Return));
  window_->Screen()->Kolom().FocusOmschrijving();
  Describe("Avondkrant");
  Superuser(QString("UPDATE kantoor.client SET laatste = laatste - 1 WHERE nummer = %1").arg(client_));
  Mend(client_);
  ASSERT_TRUE(IsBack()) << qPrintable(Bar(*window_));
  EXPECT_FALSE(window_->windowTitle().contains("(alleen lezen)"));
  Click(*window_, "Terugzetten");
  PressKey(Qt::Key_Tab);
  EXPECT_EQ(Stored(), "Avondkrant");
}

}  // namespace
}  // namespace brivane::app
