#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QTemporaryDir>

#include "dossier/store/DossierFile.h"
#include "dossier/store/StoreErrors.h"
#include "tests/dossier/office/TrialOffice.h"
#include "tests/support/Patience.h"
#include "tests/support/postgres/SocketProxy.h"

// A client that is removed, or given to a team that one is not in, while it is open here.
namespace brivane::dossier {
namespace {

using State = OfficeStore::State;

class GoneTest : public testing::Test {
 protected:
  void Must(const char* account, const QString& sql) {
    bool failed = false;
    const QString said = office_.Psql(account, QString(sql).replace("%1", QString::number(client_)), &failed);
    ASSERT_FALSE(failed) << said.toStdString();
  }
  void Remove() { Must("postgres", "SELECT kantoor.verwijder(%1)"); }
  void GiveToZuid() { Must("mia", "SELECT kantoor.geef_aan_team(%1, 2)"); }
  static void Edit(OfficeStore& store, std::int32_t months) { store.Dossier()->FindKolom(0, 1)->SetLooptijd(months); }
  static void ExpectRefused(OfficeStore& store) {
    try {
      Edit(store, 99);
      ADD_FAILURE() << "stored";
    } catch (const host::Error& error) {
      EXPECT_EQ(error.Number(), kRefusedError);
      EXPECT_EQ(error.Description(),
                "De wijziging is niet opgeslagen: deze cliënt is er niet (meer), of niet voor uw team.");
    }
  }
  template <class Action> static OfficeProblem ProblemOf(Action&& action) {
    try {
      action();
    } catch (const OfficeError& error) {
      return error.Problem();
    }
    ADD_FAILURE() << "nothing went wrong";
    return OfficeProblem::Refused;
  }

  TrialOffice office_;
  int client_ = office_.Add();
};

TEST_F(GoneTest, WhoReadsARemovedClientIsToldOnceKeepsWhatHeHasAndEditsNothing) {
  const auto reader = office_.Open(client_, "rob");
  int changes = 0;
  const auto changed = reader->Changed.Connect([&] { ++changes; });
  Remove();
  for (int look = 0; look < 3; ++look) reader->Attend();
  EXPECT_EQ(reader->Now(), State::Gone);
  EXPECT_EQ(changes, 1);
  EXPECT_TRUE(reader->IsReadOnly());
  EXPECT_FALSE(reader->InPlace());
  EXPECT_EQ(reader->Dossier()->FindKolom(0, 1)->Looptijd(), 96);
  ExpectRefused(*reader);
  EXPECT_EQ(reader->Dossier()->FindKolom(0, 1)->Looptijd(), 96);
}

TEST_F(GoneTest, WhoTakesUpOrAsksForARemovedClientFindsOut) {
  const auto taker = office_.Open(client_);
  const auto asker = office_.Open(client_, "bert");
  taker->LetGo();
  Remove();
  EXPECT_EQ(ProblemOf([&] { taker->TakeOver(); }), OfficeProblem::NoClient);
  EXPECT_EQ(taker->Now(), State::Gone);
  EXPECT_FALSE(taker->TakeOver());
  EXPECT_EQ(ProblemOf([&] { asker->Ask(); }), OfficeProblem::NoClient);
  EXPECT_EQ(asker->Now(), State::Gone);
}

/// As long as the line of who edits it is there it cannot be removed.
TEST_F(GoneTest, WhoComesBackToARemovedClientLooksForItNoMore) {
  test::SocketProxy proxy(office_.Server().Folder());
  const auto store = OfficeStore::Open(office_.Enter("anna", proxy.Folder()), client_);
  proxy.NextMeets(test::SocketProxy::Fate::DeadAfter);
  EXPECT_THROW(Edit(*store, 10), host::Error);
  Must("postgres",
       "SELECT pg_terminate_backend(pid, 60000) FROM pg_stat_activity WHERE usename = 'anna' AND datname = "
       "current_database()");
  Remove();
  proxy.Mend();
  int settled = 0;
  const auto settles = store->Settled.Connect([&](Outcome) { ++settled; });
  store->Attend();
  EXPECT_EQ(store->Now(), State::Gone);
  const int asked = proxy.RoundTrips();
  store->Attend();
  EXPECT_EQ(proxy.RoundTrips(), asked);
  ExpectRefused(*store);
  // Nobody can tell any more.
  EXPECT_EQ(settled, 0);
}

TEST_F(GoneTest, AClientThatGoesToAnotherTeamIsFreeForItAtOnce) {
  const auto store = office_.Open(client_);
  GiveToZuid();
  ExpectRefused(*store);
  EXPECT_EQ(store->Now(), State::Gone);
  for (const QDeadlineTimer patience(test::kPatience); !patience.hasExpired();) {
    if (office_.Open(client_, "carla")->Now() == State::Editing) return;
  }
  ADD_FAILURE() << "it is still held";
}

TEST_F(GoneTest, ThatItWentToAnotherTeamIsFoundOutBetweenEditsToo) {
  const auto store = office_.Open(client_);
  GiveToZuid();
  store->Attend();
  EXPECT_EQ(store->Now(), State::Gone);
}

TEST_F(GoneTest, ThePartOfAHistoryThatWasNotReadIsNotTakenForNone) {
  Edit(*office_.Open(client_), 10);
  Edit(*office_.Open(client_), 11);
  const auto part = office_.Open(client_, "rob");
  const auto whole = office_.Open(client_, "rob");
  EXPECT_EQ(whole->Geschiedenis()->Find({}).size(), 2U);
  Remove();
  EXPECT_THROW(static_cast<void>(part->Geschiedenis()), host::Error);
  EXPECT_EQ(part->Now(), State::Gone);
  QTemporaryDir folder;
  EXPECT_EQ(ProblemOf([&] { part->Kopieer(folder.filePath("deel.dossier")); }), OfficeProblem::NoClient);
  EXPECT_FALSE(QFile::exists(folder.filePath("deel.dossier")));
  // What was read is there for good.
  whole->Attend();
  ASSERT_EQ(whole->Now(), State::Gone);
  EXPECT_EQ(whole->Geschiedenis()->Find({}).size(), 2U);
  whole->Kopieer(folder.filePath("geheel.dossier"));
  EXPECT_EQ(DossierFile::Open(folder.filePath("geheel.dossier"))->Geschiedenis()->Find({}).size(), 2U);
}

}  // namespace
}  // namespace brivane::dossier
