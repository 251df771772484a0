#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <functional>

#include "dossier/store/StoreErrors.h"
#include "tests/dossier/office/TrialOffice.h"
#include "tests/support/Patience.h"
#include "tests/support/postgres/SocketProxy.h"

// Two advisers at one client: with an event loop each window looks after itself.
namespace brivane::dossier {
namespace {

using State = OfficeStore::State;

class ReadingAlongTest : public testing::Test {
 protected:
  /// Lets events be handled until something is so; answers whether it comes to be.
  static bool Until(const std::function<bool()>& is_so) {
    QElapsedTimer timer;
    timer.start();
    while (!is_so()) {
      if (timer.hasExpired(test::kPatience)) return false;
      QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 10);
    }
    return true;
  }
  static std::int32_t Duration(OfficeStore& store) { return store.Dossier()->FindKolom(0, 1)->Looptijd(); }

  int argc_ = 1;
  char name_[5] = "test";
  char* argv_[1] = {static_cast<char*>(name_)};
  QCoreApplication application_{argc_, static_cast<char**>(argv_)};
  TrialOffice office_;
  int client_ = office_.Add();
};

/// At once, not when the reader looks again by himself.
TEST_F(ReadingAlongTest, AnAcceptedEditIsToldToWhoReads) {
  WaitingTimes times = Patient();
  times.reading = std::chrono::hours(1);
  WaitingTimes::Set(times);
  const auto editor = office_.Open(client_);
  const auto reader = office_.Open(client_, "bert");
  int reloads = 0;
  const auto reloaded = reader->Herladen.Connect([&] { ++reloads; });
  const auto column = reader->Dossier()->FindKolom(0, 1);
  for (const int months : {11, 12, 13}) {
    editor->Dossier()->FindKolom(0, 1)->SetLooptijd(months);
    EXPECT_TRUE(Until([&] { return Duration(*reader) == months; }));
  }
  EXPECT_EQ(reloads, 3);
  // The objects stay, so that a window need not look for them anew.
  EXPECT_EQ(reader->Dossier()->FindKolom(0, 1), column);
}

TEST_F(ReadingAlongTest, WhoAsksIsHeardAndTakesOverWhatIsLetGo) {
  const auto editor = office_.Open(client_);
  const auto reader = office_.Open(client_, "bert");
  QString asked;
  const auto asks = editor->Asked.Connect([&](const QString& who) { asked = who; });
  reader->Ask();
  EXPECT_TRUE(Until([&] { return !asked.isEmpty(); }));
  EXPECT_EQ(asked, "Bert Bakker");
  int changes = 0;
  const auto changed = reader->Changed.Connect([&] { ++changes; });
  editor->Dossier()->FindKolom(0, 1)->SetLooptijd(44);
  editor->LetGo();
  EXPECT_EQ(editor->Now(), State::Reading);
  EXPECT_TRUE(Until([&] { return changes > 0; }));
  EXPECT_TRUE(reader->HeldBy().naam.isEmpty());
  EXPECT_TRUE(reader->TakeOver());
  EXPECT_EQ(Duration(*reader), 44);
  // The roles have changed.
  reader->Dossier()->FindKolom(0, 1)->SetLooptijd(45);
  EXPECT_TRUE(Until([&] { return Duration(*editor) == 45 && editor->HeldBy().naam == "Bert Bakker"; }));
  try {
    editor->Dossier()->FindKolom(0, 1)->SetLooptijd(46);
    ADD_FAILURE() << "stored";
  } catch (const host::Error& error) {
    EXPECT_EQ(error.Number(), kLeaseError);
  }
}

TEST_F(ReadingAlongTest, WhoWasAwayWhenAskedHearsOfItOnce) {
  test::SocketProxy proxy(office_.Server().Folder());
  const auto editor = OfficeStore::Open(office_.Enter("anna", proxy.Folder()), client_);
  QStringList asked;
  const auto asks = editor->Asked.Connect([&](const QString& who) { asked << who; });
  proxy.Cut();
  EXPECT_THROW(editor->Dossier()->FindKolom(0, 1)->SetLooptijd(10), host::Error);
  // The server has not noticed yet that anna is gone, or has; her row is still there.
  EXPECT_EQ(office_.Psql("bert", QString("SELECT kantoor.vraag(%1)").arg(client_)), "t");
  proxy.Mend();
  EXPECT_TRUE(Until([&] { return editor->Now() == State::Editing; }));
  EXPECT_TRUE(Until([&] { return !asked.isEmpty(); }));
  EXPECT_EQ(asked, QStringList{"Bert Bakker"});
  // It is not told again, also after another connection.
  proxy.Cut();
  EXPECT_THROW(editor->Dossier()->FindKolom(0, 1)->SetLooptijd(10), host::Error);
  proxy.Mend();
  EXPECT_TRUE(Until([&] { return editor->Now() == State::Editing; }));
  editor->Attend();
  EXPECT_EQ(asked.size(), 1);
  // Who takes it up himself was not asked.
  editor->LetGo();
  const auto taken = office_.Open(client_, "bert");
  ASSERT_EQ(taken->Now(), State::Editing);
  EXPECT_EQ(office_.Psql("rob", QString("SELECT gevraagd_door IS NULL FROM kantoor.wie(%1)").arg(client_)), "t");
}

/// Who let go while it was looked who asks: what that found is older than what he is told of.
TEST_F(ReadingAlongTest, WhatIsStoredBeforeOneIsToldOfItShowsToo) {
  WaitingTimes times = Patient();
  times.reading = std::chrono::hours(1);
  for (const bool looks : {false, true}) {
    SCOPED_TRACE(looks);
    times.editing = looks ? std::chrono::milliseconds(1) : std::chrono::hours(1);
    WaitingTimes::Set(times);
    test::SocketProxy far(office_.Server().Folder(), std::chrono::milliseconds(200));
    const auto editor = OfficeStore::Open(office_.Enter("anna", far.Folder()), client_);
    Until([timer = QDeadlineTimer(50)] { return timer.hasExpired(); });
    // Nobody is written down as reading along.
    OfficeConnection elsewhere(office_.Words("postgres"));
    elsewhere.Open();
    elsewhere.RunScript("BEGIN; LOCK TABLE kantoor.meelezer IN SHARE ROW EXCLUSIVE MODE");
    editor->LetGo();
    const std::int32_t months = looks ? 45 : 44;
    office_.Open(client_, "bert")->Dossier()->FindKolom(0, 1)->SetLooptijd(months);
    elsewhere.RunScript("ROLLBACK");
    EXPECT_TRUE(Until([&] { return Duration(*editor) == months; }));
  }
}

TEST_F(ReadingAlongTest, NothingThatIsToldNamesAnybody) {
  const auto listener = office_.Enter("carla");
  QStringList told;
  const auto hears = listener->Told.Connect([&](const QString&, const QString& what) { told << what; });
  listener->Listen(QString("kantoor_%1").arg(client_));
  // What is asked after it is answered after it.
  listener->Run("SELECT 1");
  auto editor = office_.Open(client_);
  const auto reader = office_.Open(client_, "bert");
  editor->Dossier()->FindKolom(0, 1)->SetLooptijd(11);
  reader->Ask();
  editor.reset();
  EXPECT_TRUE(Until([&] { return told.contains("los"); }));
  told.removeDuplicates();
  told.sort();
  EXPECT_EQ(told, (QStringList{"los", "stap", "vraag"}));
}

TEST_F(ReadingAlongTest, AHolderThatIsGoneIsSeenWithoutBeingTold) {
  auto editor = office_.Open(client_);
  const auto reader = office_.Open(client_, "bert");
  office_.Psql("postgres",
               QString("SELECT pg_terminate_backend(pid, 60000) FROM pg_stat_activity WHERE usename = 'anna' AND "
                       "datname = '%1'")
                   .arg(office_.Name()));
  EXPECT_TRUE(Until([&] { return reader->HeldBy().naam.isEmpty(); }));
  EXPECT_TRUE(reader->TakeOver());
}

TEST_F(ReadingAlongTest, AConnectionThatComesBackIsTakenUpByItself) {
  test::SocketProxy proxy(office_.Server().Folder());
  const auto editor = OfficeStore::Open(office_.Enter("anna", proxy.Folder()), client_);
  const auto reader = OfficeStore::Open(office_.Enter("rob", proxy.Folder()), client_);
  std::vector<State> states;
  const auto changed = editor->Changed.Connect([&] { states.push_back(editor->Now()); });
  proxy.Cut();
  EXPECT_THROW(editor->Dossier()->FindKolom(0, 1)->SetLooptijd(10), host::Error);
  EXPECT_TRUE(
      Until([&] { return editor->Now() == State::Broken && reader->Now() == State::Broken && editor->Tries() > 1; }));
  EXPECT_FALSE(editor->InPlace());
  proxy.Mend();
  EXPECT_TRUE(Until([&] { return editor->Now() == State::Editing && reader->Now() == State::Reading; }));
  editor->Dossier()->FindKolom(0, 1)->SetLooptijd(20);
  EXPECT_TRUE(Until([&] { return Duration(*reader) == 20; }));
  EXPECT_EQ(states, (std::vector{State::Broken, State::Editing}));
}

TEST_F(ReadingAlongTest, WhoForgesAMessageShowsNothing) {
  const auto reader = office_.Open(client_, "bert");
  const auto editor = office_.Open(office_.Add());
  int asked = 0;
  const auto asks = reader->Asked.Connect([&](const QString&) { ++asked; });
  const auto asks_editor = editor->Asked.Connect([&](const QString&) { ++asked; });
  office_.Psql("rob",
               QString("NOTIFY kantoor_%1, 'stap 999 Iemand'; NOTIFY kantoor_%1, 'onzin'; NOTIFY kantoor_%2, 'vraag "
                       "Iemand'; NOTIFY kantoor_%2, 'vraag'")
                   .arg(client_)
                   .arg(editor->Client()));
  Until([timer = [] {
    QElapsedTimer t;
    t.start();
    return t;
  }()] { return timer.hasExpired(300); });
  EXPECT_EQ(Duration(*reader), 96);
  EXPECT_EQ(asked, 0);
}

/// What Qt warns of meanwhile.
QStringList* g_warnings = nullptr;

TEST_F(ReadingAlongTest, WhoLeavesAClientHearsNoMoreOfItAndNobodyWarns) {
  QStringList warnings;
  g_warnings = &warnings;
  const auto before =
      qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) { *g_warnings << text; });
  const auto office = office_.Enter("bert");
  const auto tell = [&](const char* what) {
    office_.Psql("rob", QString("NOTIFY kantoor_%1, '%2'").arg(client_).arg(what));
  };
  const auto pass = [](qint64 milliseconds) {
    QElapsedTimer timer;
    timer.start();
    Until([&] { return timer.hasExpired(milliseconds); });
  };
  auto reader = OfficeStore::Open(office, client_);
  reader->LetGo();
  reader->Attend();
  // Something is told while the session is busy, and read together with the end of what it does.
  office->Post("SELECT pg_sleep(0.5)", {});
  tell("stap 1");
  reader.reset();
  // The server knows that he left.
  office->Run("SELECT 1");
  pass(100);
  QStringList told;
  const auto tells = office->Told.Connect([&](const QString&, const QString& what) { told << what; });
  tell("stap 2");
  pass(100);
  // Back in it, it is heard again.
  reader = OfficeStore::Open(office, client_);
  reader->Attend();
  tell("vraag Rob");
  EXPECT_TRUE(Until([&] { return told.contains("vraag Rob"); }));
  EXPECT_FALSE(told.contains("stap 2"));
  reader.reset();
  pass(100);
  qInstallMessageHandler(before);
  EXPECT_EQ(warnings, QStringList()) << warnings.join('|').toStdString();
}

}  // namespace
}  // namespace brivane::dossier
