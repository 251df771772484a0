#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>

#include "app/desk/UnfinishedText.h"
#include "app/office/ClientListDialog.h"
#include "app/office/PasswordDialog.h"
#include "app/office/RecentOffices.h"
#include "dossier/office/Aside.h"
#include "tests/app/screen/WindowTest.h"
#include "tests/dossier/office/TrialOffice.h"
#include "tests/support/Patience.h"
#include "tests/support/postgres/SocketProxy.h"

// The way into an office: a server that does not answer, and one that wants a password.
namespace brivane::app {
namespace {

using dossier::WaitingTimes;

class EntranceTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    QSettings().remove("kantoren");
  }
  void TearDown() override {
    for (const UnfinishedText::Kept& kept : UnfinishedText::All()) UnfinishedText::Forget(kept.name);
    QSettings().remove("kantoren");
    window_.reset();
    EXPECT_TRUE(dossier::Aside::AllEnd(std::chrono::milliseconds(test::kPatience)));
  }
};

/// Had the window waited for the silent line, it would have stood still four times as long.
constexpr int kStill = 30000;

/// The words for a line on which one is let in and never answered: the network itself does not give up.
QString Silent(const test::SocketProxy& line) { return " connect_timeout=120 host=" + line.Folder(); }

/// The longest time in which the event loop did nothing.
class Stillness final : public QObject {
 public:
  Stillness() {
    connect(&tick_, &QTimer::timeout, this, [this] { longest_ = std::max(longest_, since_.restart()); });
    since_.start();
    tick_.start(10);
  }
  [[nodiscard]] qint64 Longest() const { return std::max(longest_, since_.elapsed()); }

 private:
  QTimer tick_;
  QElapsedTimer since_;
  qint64 longest_ = 0;
};

TEST_F(EntranceTest, AServerThatNeverAnswersIsLeftAtOnce) {
  test::SocketProxy nobody("/tmp/daar-is-niets");
  nobody.FallSilent();
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
    QElapsedTimer time;
    qint64 shown = 0;
    dialogs_.Expect([&](QWidget& window) {
      shown = time.elapsed();
      const auto* text = window.findChild<QLabel*>("waarmee");
      ASSERT_TRUE(text);
      EXPECT_EQ(text->text(), "Er wordt verbinding gemaakt met het kantoor \"kantoor\"…");
      auto* cancel = qobject_cast<QPushButton*>(window.focusWidget());
      ASSERT_TRUE(cancel);
      EXPECT_EQ(cancel->text(), "Annuleren");
      EXPECT_EQ(cancel->accessibleDescription(), text->text());
      // It goes on painting and hearing keys.
      const Stillness still;
      QTest::qWait(1500);
      EXPECT_LT(still.Longest(), kStill);
      time.restart();
      QTest::keyClick(window.windowHandle(), key);
    });
    time.start();
    window_->OpenOffice("dbname=kantoor user=anna" + Silent(nobody));
    EXPECT_LT(time.elapsed(), kStill) << "after the key";
    EXPECT_GE(shown, 200) << "a window that flashes up";
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(RecentOffices::All().isEmpty());
  }
}

TEST_F(EntranceTest, AServerThatIsSlowIsWaitedFor) {
  dossier::TrialOffice office;
  test::SocketProxy slow(office.Server().Folder());
  slow.FallSilent();
  dialogs_.Expect([&](QWidget& window) {
    ASSERT_TRUE(window.findChild<QLabel*>("waarmee"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return slow.Unanswered() > 0; }, test::kPatience));
    // Who was not answered is sent away, and told so.
    dialogs_.ExpectMessage("Er is geen verbinding met het kantoor", Pressing(Qt::Key_Return));
    slow.Mend();
  });
  const QString words = office.Words("anna") + " host=" + slow.Folder();
  window_->OpenOffice(words);
  dialogs_.LetPass("verbinden");
  dialogs_.Expect([&](QWidget& window) {
    EXPECT_TRUE(dynamic_cast<ClientListDialog*>(&window));
    QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
  });
  window_->OpenOffice(words);
  EXPECT_EQ(RecentOffices::All(), QStringList(words));
}

TEST_F(EntranceTest, AConnectionThatIsLostAndNotAnsweredLetsTheWindowGoOn) {
  dossier::TrialOffice office;
  const int client = office.Add();
  dialogs_.LetPass("verbinden");
  test::SocketProxy proxy(office.Server().Folder());
  ASSERT_TRUE(window_->OpenClient({office.Words("rob") + Silent(proxy), client}));
  const auto* bar = window_->findChild<QLabel*>("stand");
  ASSERT_TRUE(bar);
  proxy.FallSilent();
  const Stillness still;
  EXPECT_TRUE(QTest::qWaitFor([&] { return bar->text().startsWith("Geen verbinding"); }, test::kPatience));
  QTest::qWait(3000);
  EXPECT_LT(still.Longest(), kStill);
  proxy.Mend();
  EXPECT_TRUE(QTest::qWaitFor([&] { return bar->text().startsWith("Alleen lezen"); }, test::kPatience))
      << qPrintable(bar->text());
}

TEST_F(EntranceTest, ALineThatFallsSilentLetsTheWindowOfAReaderGoOn) {
  dossier::TrialOffice office;
  const int client = office.Add();
  dialogs_.LetPass("verbinden");
  test::SocketProxy proxy(office.Server().Folder());
  ASSERT_TRUE(window_->OpenClient({office.Words("bert") + Silent(proxy), client}));
  window_->Actions().office.handOver->trigger();
  const auto* bar = window_->findChild<QLabel*>("stand");
  ASSERT_TRUE(bar && QTest::qWaitFor([&] { return bar->text().startsWith("Alleen lezen"); }, test::kPatience));
  WaitingTimes::Set(dossier::Patient({&WaitingTimes::silence}));
  proxy.Hang();
  const Stillness still;
  EXPECT_TRUE(QTest::qWaitFor([&] { return bar->text().startsWith("Geen verbinding"); }, test::kPatience))
      << qPrintable(bar->text());
  QTest::qWait(2000);
  EXPECT_LT(still.Longest(), kStill);
  proxy.Mend();
  EXPECT_TRUE(QTest::qWaitFor([&] { return bar->text().startsWith("Alleen lezen"); }, test::kPatience))
      << qPrintable(bar->text());
}

TEST_F(EntranceTest, WhatIsTypedWhileNothingAnswersIsToldWithinSeconds) {
  dossier::TrialOffice office;
  const int client = office.Add();
  dialogs_.LetPass("verbinden");
  test::SocketProxy proxy(office.Server().Folder());
  ASSERT_TRUE(window_->OpenClient({office.Words("anna") + Silent(proxy), client}));
  WaitingTimes::Set(dossier::Patient({&WaitingTimes::back}));
  proxy.FallSilent();
  QElapsedTimer time;
  time.start();
  EXPECT_THROW(Screen().Dossier().FindKolom(0, 2)->SetOmschrijving("Avondkrant"), host::Error);
  EXPECT_LT(time.elapsed(), kStill);
  proxy.Mend();
  dialogs_.LookAway();
  EXPECT_TRUE(QTest::qWaitFor([&] { return window_->Actions().office.handOver->isEnabled(); }, test::kPatience));
}

class PasswordTest : public EntranceTest {
 protected:
  void SetUp() override {
    EntranceTest::SetUp();
    dialogs_.LetPass("verbinden");
    client_ = office_.Add();
    office_.Psql("postgres", QString("SET password_encryption = 'scram-sha-256'; ALTER ROLE anna PASSWORD '%1'")
                                 .arg(QString(kRight).replace("'", "''")));
    server_.Stop("fast");
    server_.AddAdmissions("local all anna scram-sha-256\n");
    server_.Start();
  }

  [[nodiscard]] QString Words() const { return office_.Words("anna") + " passfile=/dev/null"; }
  static constexpr char kWrong[] = "Dit wachtwoord is niet goed. Probeer het opnieuw.";
  static constexpr char kOutdated[] =
      "De verbinding is verbroken, en het kantoor neemt het eerdere wachtwoord niet meer aan.";
  /// Expects the question with that reason, types an answer and presses a key.
  void ExpectQuestion(const char* why, const QString& typed, Qt::Key key = Qt::Key_Return) {
    const QString reason_text = why;
    dialogs_.Expect([=, this](QWidget& window) {
      ASSERT_TRUE(dynamic_cast<PasswordDialog*>(&window)) << qPrintable(window.windowTitle());
      auto* box = window.findChild<QLineEdit*>("wachtwoord");
      ASSERT_TRUE(box && box->hasFocus());
      EXPECT_EQ(box->echoMode(), QLineEdit::Password);
      EXPECT_TRUE(box->text().isEmpty());
      EXPECT_TRUE(box->accessibleDescription().contains("vraagt om het wachtwoord van anna"));
      const auto* reason = window.findChild<QLabel*>("reden");
      EXPECT_EQ(reason->isVisible(), !reason_text.isEmpty());
      EXPECT_EQ(reason->text(), reason_text);
      EXPECT_TRUE(box->accessibleDescription().startsWith(reason_text));
      // An empty one is no answer.
      QTest::keyClick(window.windowHandle(), Qt::Key_Return);
      EXPECT_TRUE(window.isVisible());
      box->setFocus();
      for (const QChar letter : typed) QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, letter, Qt::NoModifier);
      EXPECT_EQ(box->text(), typed);
      if (key != Qt::Key_unknown) return QTest::keyClick(window.windowHandle(), key);
      window_->EndInOrder();
    });
  }
  /// The client is open under the right password, and what is typed in a box of it stands there unconfirmed.
  void OpenAndType(const char* text) {
    ExpectQuestion("", QString::fromUtf8(kRight));
    ASSERT_TRUE(window_->OpenClient({Words(), client_}));
    ASSERT_TRUE(window_->Screen()->GoTo({0, 2}));
    window_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get(), test::kPatience));
    PressKey(Qt::Key_O, Qt::AltModifier);
    Type(text);
  }
  void ChangePassword(const char* to) {
    office_.Psql("postgres",
                 QString("SET password_encryption = 'scram-sha-256'; ALTER ROLE anna PASSWORD '%1'").arg(to));
    EndSessions();
  }
  void EndSessions() {
    office_.Psql("postgres", "SELECT pg_terminate_backend(pid, 60000) FROM pg_stat_activity WHERE usename = 'anna'");
  }
  [[nodiscard]] QString Told(const char* label) const {
    const auto* found = window_->findChild<QLabel*>(label);
    return found ? found->text() : QString();
  }
  /// The bar comes to begin so.
  [[nodiscard]] bool Says(const char* text) {
    return QTest::qWaitFor([&] { return Told("stand").startsWith(text); }, test::kPatience);
  }
  [[nodiscard]] bool IsEditingAgain() {
    return QTest::qWaitFor([&] { return window_->Actions().office.handOver->isEnabled(); }, test::kPatience);
  }
  [[nodiscard]] std::string Stored() {
    return office_.Open(client_, "rob")->Dossier()->FindKolom(0, 2)->Gegevens().Omschrijving;
  }
  void ExpectListOfClients() {
    dialogs_.Expect([](QWidget& window) {
      EXPECT_TRUE(dynamic_cast<ClientListDialog*>(&window));
      QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
    });
  }
  /// In no file of the settings, the log or what was kept.
  void ExpectStoredNowhere(const QString& secret) {
    QSettings().sync();
    for (const QString& path : {QSettings().fileName(), eventLog_.Folder() + "/logboek.txt"}) {
      QFile file(path);
      if (!file.open(QIODevice::ReadOnly)) continue;
      EXPECT_FALSE(file.readAll().contains(secret.toUtf8())) << qPrintable(path);
    }
    EXPECT_TRUE(UnfinishedText::All().empty());
  }

  /// With everything that has a meaning among the words of a connection.
  static constexpr char kRight[] = "ge'heim\\ ;é= x";
  test::PostgresServer server_;
  dossier::TrialOffice office_{server_};
  int client_ = 0;
};

TEST_F(PasswordTest, IsAskedForUntilItIsRightAndNeverKept) {
  ExpectQuestion("", "foutwoord");
  ExpectQuestion(kWrong, QString::fromUtf8(kRight));
  ExpectListOfClients();
  window_->OpenOffice(Words());
  EXPECT_EQ(RecentOffices::All(), QStringList(Words()));
  ExpectStoredNowhere("foutwoord");
  ExpectStoredNowhere("ge'heim");
  // The window is in the office: nothing is asked, and a session that was ended is begun anew without asking.
  ExpectListOfClients();
  window_->OpenOffice(Words());
  ASSERT_TRUE(window_->OpenClient({Words(), client_}));
  office_.Psql("postgres", "SELECT pg_terminate_backend(pid, 60000) FROM pg_stat_activity WHERE usename = 'anna'");
  dialogs_.LookAway();
  EXPECT_THROW(Screen().Dossier().FindKolom(0, 2)->SetOmschrijving("weg"), host::Error);
  EXPECT_TRUE(QTest::qWaitFor([&] { return window_->Actions().office.handOver->isEnabled(); }, test::kPatience));
  Screen().Dossier().FindKolom(0, 2)->SetOmschrijving("Avondkrant");
  EXPECT_EQ(office_.Open(client_, "rob")->Dossier()->FindKolom(0, 2)->Gegevens().Omschrijving, "Avondkrant");
}

TEST_F(PasswordTest, ThatWasChangedMeanwhileIsAskedForOnceNobodyTypes) {
  OpenAndType("Avondkrant");
  ChangePassword("nieuw");
  // What is being typed does not end up in a question.
  QTest::qWait(1500);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  dialogs_.ExpectMessage("Er is een fout opgetreden.", Pressing(Qt::Key_Return));
  ExpectQuestion(kOutdated, "niet dit");
  ExpectQuestion(kWrong, "nieuw");
  PressKey(Qt::Key_Tab);
  ASSERT_TRUE(IsEditingAgain()) << qPrintable(Told("stand"));
  EXPECT_EQ(Told("stand"), "");
  EXPECT_TRUE(Told("nietOpgeslagen").endsWith(": Avondkrant")) << qPrintable(Told("nietOpgeslagen"));
  window_->activateWindow();
  TabTo("Terugzetten");
  PressKey(Qt::Key_Space);
  PressKey(Qt::Key_Tab);
  EXPECT_EQ(Stored(), "Avondkrant");
  // What is opened from now on goes by the new one.
  ExpectListOfClients();
  window_->OpenOffice(Words());
  EndSessions();
  dialogs_.LookAway();
  EXPECT_THROW(Screen().Dossier().FindKolom(0, 2)->SetOmschrijving("weg"), host::Error);
  EXPECT_TRUE(IsEditingAgain());
  for (const char* secret : {"ge'heim", "niet dit", "nieuw"}) ExpectStoredNowhere(secret);
}

TEST_F(PasswordTest, ThatIsNotGivenIsNotTriedTimeAndAgain) {
  OpenAndType("Avondkrant");
  ChangePassword("nieuw");
  dialogs_.ExpectMessage("Er is een fout opgetreden.", Pressing(Qt::Key_Return));
  ExpectQuestion(kOutdated, "x", Qt::Key_Escape);
  PressKey(Qt::Key_Tab);
  ASSERT_TRUE(Says("Geen verbinding met het kantoor: het neemt uw wachtwoord niet meer aan."));
  ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeModalWidget() == nullptr; }, test::kPatience));
  const auto& store = dynamic_cast<const dossier::OfficeStore&>(Screen().Store());
  const int tries = store.Tries();
  QTest::qWait(3000);
  EXPECT_EQ(store.Tries(), tries);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_TRUE(Told("nietOpgeslagen").endsWith(": Avondkrant"));
  ExpectQuestion(kOutdated, "nieuw");
  window_->activateWindow();
  TabTo("Opnieuw verbinden");
  PressKey(Qt::Key_Space);
  EXPECT_TRUE(IsEditingAgain()) << qPrintable(Told("stand"));
  EXPECT_FALSE(window_->Actions().office.reconnect->isEnabled());
  EXPECT_TRUE(Told("nietOpgeslagen").endsWith(": Avondkrant"));
}

TEST_F(PasswordTest, DoesNotHelpWhereTheAccountIsLockedAndTheBarSaysSo) {
  OpenAndType("x");
  PressKey(Qt::Key_Escape);
  office_.Psql("postgres", "ALTER ROLE anna NOLOGIN");
  EndSessions();
  window_->Screen()->Kolom().FocusOmschrijving();
  dialogs_.ExpectMessage("Er is een fout opgetreden.", Pressing(Qt::Key_Return));
  PressKey(Qt::Key_O, Qt::AltModifier);
  Type("Avondkrant");
  PressKey(Qt::Key_Tab);
  EXPECT_TRUE(Says("Geen verbinding met het kantoor (het meldt: role \"anna\" is not permitted to log in). Er wordt"))
      << qPrintable(Told("stand"));
  office_.Psql("postgres", "ALTER ROLE anna LOGIN");
  EXPECT_TRUE(IsEditingAgain()) << qPrintable(Told("stand"));
}

TEST_F(PasswordTest, PutAwayNothingIsOpened) {
  ExpectQuestion("", "x", Qt::Key_Escape);
  window_->OpenOffice(Words());
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_TRUE(RecentOffices::All().isEmpty());
}

TEST_F(PasswordTest, IsNotKeptWhereTheProgramHasToEnd) {
  ExpectQuestion("", "halverwege", Qt::Key_unknown);
  window_->OpenOffice(Words());
  QTest::qWait(200);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  ExpectStoredNowhere("halverwege");
}

}  // namespace
}  // namespace brivane::app
