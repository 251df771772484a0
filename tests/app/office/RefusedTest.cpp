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

/// What comes of a dialog that the office refuses, or does not answer: it stays behind the message, with what was
/// filled in, and is in front again then.
struct Refusal {
  /// Right before it is confirmed with this text in the box that has the focus.
  std::function<void()> before;
  const char* text;
  QStringList says{};
  QStringList says_not{};
  /// While the message stands there, and in the dialog once it was put away.
  std::function<void()> meanwhile = [] {};
  Dialogs::Handler then = Pressing(Qt::Key_Escape);
};

class RefusedTest : public ClientWindow {
 protected:
  [[nodiscard]] QString Unstored() { return Text(*window_, "nietOpgeslagen"); }
  void ExpectUnstored(const QString& begins, const QString& ends = {}) {
    EXPECT_TRUE(Unstored().startsWith(begins) && Unstored().endsWith(ends)) << qPrintable(Unstored());
  }
  void ExpectNothingUnstored() {
    EXPECT_EQ(Unstored(), "");
    EXPECT_TRUE(UnfinishedText::All().empty());
  }
  [[nodiscard]] std::string StoredInitials() {
    return office_.Open(client_, "rob")->Dossier()->Personen().front().Naam[0];
  }
  /// Types over what stands in the box that has the focus, and confirms.
  static void Answer(const char* text) {
    auto* box = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_TRUE(box);
    box->selectAll();
    Type(text);
    PressKey(Qt::Key_Return);
  }
  void ExpectRefusal(const Refusal& refusal) {
    dialogs_.Expect([this, refusal](QWidget& window) {
      refused_ = &window;
      refusal.before();
      Answer(refusal.text);
    });
    ExpectFailed(refusal.says, refusal.says_not, [this, refusal](QWidget& box) {
      EXPECT_EQ(box.parentWidget(), refused_);
      refusal.meanwhile();
      Pressing(Qt::Key_Return)(box);
    });
    dialogs_.Expect([this, refusal](QWidget& window) {
      EXPECT_EQ(&window, refused_);
      refusal.then(window);
    });
  }
  void OpenClientData() {
    PressKey(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_FALSE(refused_);
  }
  /// Confirms the dialog once more, and it goes.
  static void ConfirmAgain(QWidget& window) {
    ASSERT_TRUE(window.isVisible());
    PressKey(Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
  }
  [[nodiscard]] std::function<void()> EditsAreRefused() {
    return [this] {
      Superuser(
          "CREATE FUNCTION kantoor.nee() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN RAISE EXCEPTION 'nu niet'; END "
          "$$; "
          "CREATE TRIGGER nee BEFORE INSERT ON kantoor.stap FOR EACH ROW EXECUTE FUNCTION kantoor.nee()");
    };
  }
  [[nodiscard]] std::function<void()> EditsAreAccepted() {
    return [this] { Superuser("DROP TRIGGER nee ON kantoor.stap; DROP FUNCTION kantoor.nee()"); };
  }
  /// The window is on the client again, with the connection there.
  [[nodiscard]] bool IsBack() {
    return QTest::qWaitFor([&] { return Bar(*window_).isEmpty(); }, test::kPatience);
  }
  void ExpectNotice(const QString& ends) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return Text(*window_, "bericht").endsWith(ends); }, test::kPatience))
        << qPrintable(Text(*window_, "bericht"));
  }

  QPointer<QWidget> refused_;
};

TEST_F(RefusedTest, ClientDataStayInTheirDialogUntilTheOfficeTakesThem) {
  OpenAs(*window_, "anna");
  ExpectRefusal({.before = EditsAreRefused(),
                 .text = "Q.",
                 .says = {"nu niet", "Wat u invulde, staat nog in het venster."},
                 .meanwhile = EditsAreAccepted(),
                 .then = [&](QWidget& dialog) {
                   ExpectUnstored("Niet opgeslagen (Cliëntgegevens): ");
                   EXPECT_EQ(UnfinishedText::All().size(), 1U);
                   ConfirmAgain(dialog);
                 }});
  OpenClientData();
  EXPECT_EQ(StoredInitials(), "Q.");
  ExpectNothingUnstored();
}

TEST_F(RefusedTest, WhatIsGivenUpInADialogIsKeptUntilItIsThrownAway) {
  OpenAs(*window_, "anna");
  ExpectRefusal({.before = EditsAreRefused(), .text = "Q.", .meanwhile = EditsAreAccepted()});
  OpenClientData();
  EXPECT_TRUE(Unstored().contains("Q.")) << qPrintable(Unstored());
  TabTo("Weggooien");
  PressKey(Qt::Key_Space);
  ExpectNothingUnstored();
}

/// Confirmed once more it would be there twice.
TEST_F(RefusedTest, ANewLoanThatTurnsOutToBeStoredIsAskedForNoMore) {
  SocketProxy proxy(office_.Server().Folder());
  OpenAs(*window_, "anna", proxy.Folder());
  ExpectRefusal({.before = [&] { proxy.NextMeets(SocketProxy::Fate::DeadAfter); },
                 .text = "Verhuur",
                 .says = {"Blijkt dat het is opgeslagen, dan sluit dat venster vanzelf."},
                 .says_not = {"niet opgeslagen"},
                 .then =
                     [&](QWidget&) {
                       ExpectUnstored("Niet bekend of dit is opgeslagen (Lening toevoegen): ");
                       proxy.Mend();
                       EXPECT_TRUE(
                           QTest::qWaitFor([&] { return !refused_ || !refused_->isVisible(); }, test::kPatience));
                     }});
  window_->Actions().addLening->trigger();
  EXPECT_TRUE(IsBack()) << qPrintable(Bar(*window_));
  EXPECT_EQ(Screen().Dossier().AantalLeningen(), 3);
  EXPECT_EQ(Screen().Dossier().FindLening(3)->Naam(), "Verhuur");
  ExpectNothingUnstored();
}

TEST_F(RefusedTest, ClientDataThatTurnOutNotToBeStoredAreConfirmedOnceMore) {
  SocketProxy proxy(office_.Server().Folder());
  OpenAs(*window_, "anna", proxy.Folder());
  ExpectRefusal({.before = [&] { proxy.NextMeets(SocketProxy::Fate::DeadBefore); },
                 .text = "Q.",
                 .then =
                     [&](QWidget& dialog) {
                       ExpectUnstored("Niet bekend of dit is opgeslagen (Cliëntgegevens): ");
                       proxy.Mend();
                       EXPECT_TRUE(IsBack());
                       ExpectUnstored("Niet opgeslagen (Cliëntgegevens): ");
                       ASSERT_EQ(UnfinishedText::All().size(), 1U);
                       EXPECT_FALSE(UnfinishedText::All().front().what.unknown);
                       ConfirmAgain(dialog);
                     }});
  OpenClientData();
  EXPECT_EQ(StoredInitials(), "Q.");
  ExpectNothingUnstored();
}

TEST_F(RefusedTest, AnEditWhoseAnswerWasLostIsNotToldAsNotStored) {
  SocketProxy proxy(office_.Server().Folder());
  OpenAs(*window_, "anna", proxy.Folder());
  // The program ends before that is known.
  ExpectFailed({"blijkt of dat is gelukt", "Voer haar niet opnieuw in."}, {"niet opgeslagen"},
               [this](QWidget&) { window_->EndInOrder(); });
  Describe("Avondkrant", [&] { proxy.NextMeets(SocketProxy::Fate::DeadAfter); });
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
  ExpectFailed();
  Describe("Avondkrant", [&] { proxy.NextMeets(SocketProxy::Fate::DeadAfter); });
  ASSERT_TRUE(QTest::qWaitFor([&] { return Unstored().endsWith(": Avondkrant"); }, test::kPatience))
      << qPrintable(Unstored());
  QTest::qWait(100);
  ExpectFailed({"De wijziging is niet opgeslagen"});
  PressKey(Qt::Key_B, Qt::AltModifier);
  Type("77");
  PressKey(Qt::Key_Tab);
  ASSERT_TRUE(QTest::qWaitFor([&] { return Unstored().endsWith(": 77"); }, test::kPatience)) << qPrintable(Unstored());
  EXPECT_EQ(UnfinishedText::All().size(), 2U);
  proxy.Mend();
  ExpectNotice("De laatste wijziging is opgeslagen.");
  EXPECT_EQ(Stored(), "Avondkrant");
  ExpectUnstored("Niet opgeslagen (", ": 77");
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
  ExpectFileQuestion(copy);
  window_->Actions().office.toFile->trigger();
  EXPECT_TRUE(window_->statusBar()->currentMessage().contains("zonder geschiedenis"))
      << qPrintable(window_->statusBar()->currentMessage());
  EXPECT_TRUE(QTest::qWaitFor([&] { return Bar(*window_).startsWith("Geen verbinding"); }, test::kPatience));
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
  ExpectFileQuestion(copy);
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
  EXPECT_TRUE(QTest::qWaitFor([&] { return Bar(*window_) == told; }, test::kPatience)) << qPrintable(Bar(*window_));
  EXPECT_EQ(Omschrijving(*window_), "Weekendabonnement");
  EXPECT_FALSE(window_->Actions().office.ask->isEnabled());
  EXPECT_TRUE(eventLog_.Read().contains("is beschadigd"));
  Mend(client_);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Omschrijving(*window_) == "Avondkrant"; }, test::kPatience));
  EXPECT_TRUE(Bar(*window_).startsWith("Alleen lezen: Anna Aalders werkt hierin")) << qPrintable(Bar(*window_));
}

/// Nobody edits what he does not see.
TEST_F(UnreadableTest, WhoTakesOverWhatCannotBeReadEditsNothingUntilItCan) {
  auto anna = office_.Open(client_);
  OpenAs(*window_, "bert");
  anna->LetGo();
  ASSERT_TRUE(QTest::qWaitFor([&] { return window_->Actions().office.takeOver->isEnabled(); }, test::kPatience));
  Damage(client_);
  Superuser(QString("UPDATE kantoor.client SET laatste = laatste + 1 WHERE nummer = %1").arg(client_));
  Click(*window_, "Overnemen");
  EXPECT_TRUE(Bar(*window_).startsWith("Wat u ziet is oud")) << qPrintable(Bar(*window_));
  EXPECT_TRUE(window_->windowTitle().contains("(alleen lezen)")) << qPrintable(window_->windowTitle());
  EXPECT_FALSE(window_->Actions().add->isEnabled());
  EXPECT_TRUE(window_->Actions().office.handOver->isEnabled());
  ExpectFailed();
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
