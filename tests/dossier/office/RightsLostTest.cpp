#include <gtest/gtest.h>

#include "dossier/store/StoreErrors.h"
#include "tests/dossier/office/TrialOffice.h"
#include "tests/support/postgres/SocketProxy.h"

// An account whose right is taken away while it has a client open, and an office that cannot be used any more.
namespace brivane::dossier {
namespace {

using Fate = test::SocketProxy::Fate;
using State = OfficeStore::State;

class RightsLostTest : public testing::Test {
 protected:
  /// The roles are the server's, which other tests go on with.
  ~RightsLostTest() override { Must("GRANT kantoor_adviseur TO anna; REVOKE kantoor_lezer FROM anna"); }

  void Must(const QString& sql) {
    bool failed = false;
    const QString said = office_.Psql("postgres", sql, &failed);
    EXPECT_FALSE(failed) << said.toStdString();
  }
  void MakeReader() { Must("REVOKE kantoor_adviseur FROM anna; GRANT kantoor_lezer TO anna"); }
  static void Edit(OfficeStore& store, std::int32_t months) { store.Dossier()->FindKolom(0, 1)->SetLooptijd(months); }
  static std::int32_t NumberOf(OfficeStore& store, std::int32_t months) {
    try {
      Edit(store, months);
    } catch (const host::Error& error) {
      return error.Number();
    }
    return 0;
  }
  void ExpectFreeForBert() {
    for (int look = 0; look < 100; ++look) {
      if (office_.Open(client_, "bert")->Now() == State::Editing) return;
    }
    ADD_FAILURE() << "it is still held";
  }

  TrialOffice office_;
  test::SocketProxy proxy_{office_.Server().Folder()};
  int client_ = office_.Add();
};

TEST_F(RightsLostTest, WhoComesBackAsAReaderReadsOnAndLearnsWhatBecameOfHisEdit) {
  for (const Fate fate : {Fate::DeadAfter, Fate::DeadBefore}) {
    const bool stored = fate == Fate::DeadAfter;
    SCOPED_TRACE(stored);
    const auto store = OfficeStore::Open(office_.Enter("anna", proxy_.Folder()), client_);
    std::vector<Outcome> settled;
    const auto settles = store->Settled.Connect([&](Outcome outcome) { settled.push_back(outcome); });
    store->Attend();
    const std::int32_t before = store->Dossier()->FindKolom(0, 1)->Looptijd();
    proxy_.NextMeets(fate);
    const std::int32_t now = before == 17 ? 19 : 17;
    EXPECT_EQ(NumberOf(*store, now), kUnknownError);
    MakeReader();
    proxy_.Mend();
    store->Attend();
    EXPECT_EQ(store->Now(), State::Reading);
    EXPECT_FALSE(store->Writes());
    EXPECT_EQ(settled, std::vector{stored ? Outcome::WasStored : Outcome::WasNotStored});
    EXPECT_EQ(store->Dossier()->FindKolom(0, 1)->Looptijd(), stored ? now : before);
    EXPECT_EQ(NumberOf(*store, 18), kLeaseError);
    ExpectFreeForBert();
    Must("GRANT kantoor_adviseur TO anna; REVOKE kantoor_lezer FROM anna");
  }
}

TEST_F(RightsLostTest, WhoMayEditNoMoreLetsTheClientGoAndReadsOn) {
  const auto store = office_.Open(client_);
  MakeReader();
  EXPECT_EQ(NumberOf(*store, 17), kRefusedError);
  EXPECT_EQ(store->Now(), State::Reading);
  EXPECT_FALSE(store->Writes());
  ExpectFreeForBert();
  store->Attend();
  EXPECT_EQ(store->Now(), State::Reading);
  // One that is opened now opens to be read, and the right is looked for anew.
  const auto session = office_.Enter();
  EXPECT_EQ(OfficeStore::Open(session, client_)->Now(), State::Reading);
}

TEST_F(RightsLostTest, WhoLostItSinceTheSessionBeganOpensToRead) {
  const auto session = office_.Enter();
  MakeReader();
  const auto store = OfficeStore::Open(session, client_);
  EXPECT_EQ(store->Now(), State::Reading);
  EXPECT_FALSE(store->Writes());
  EXPECT_EQ(NumberOf(*store, 17), kLeaseError);
}

TEST_F(RightsLostTest, WhoMayNotEvenReadIsToldSoAndKeepsWhatHeHas) {
  const auto store = office_.Open(client_);
  Must("REVOKE kantoor_adviseur FROM anna");
  EXPECT_EQ(NumberOf(*store, 17), kRefusedError);
  store->Attend();
  EXPECT_EQ(store->Now(), State::Gone);
  EXPECT_EQ(store->GoneBecause(), OfficeProblem::NotAllowed);
  EXPECT_EQ(store->Dossier()->FindKolom(0, 1)->Looptijd(), 96);
  ExpectFreeForBert();
}

TEST_F(RightsLostTest, AnOfficeThatWasUpgradedMeanwhileIsToldAndComesBackOnceItCanBeUsed) {
  const auto store = OfficeStore::Open(office_.Enter("anna", proxy_.Folder()), client_);
  std::vector<Outcome> settled;
  const auto settles = store->Settled.Connect([&](Outcome outcome) { settled.push_back(outcome); });
  store->Attend();
  proxy_.NextMeets(Fate::DeadAfter);
  EXPECT_EQ(NumberOf(*store, 17), kUnknownError);
  Must("UPDATE kantoor.versie SET nummer = nummer + 98");
  proxy_.Mend();
  store->Attend();
  EXPECT_EQ(store->Now(), State::Broken);
  ASSERT_TRUE(store->LastFailure());
  EXPECT_EQ(store->LastFailure()->Problem(), OfficeProblem::Newer);
  EXPECT_TRUE(settled.empty());
  Must("UPDATE kantoor.versie SET nummer = nummer - 98");
  store->Attend();
  EXPECT_EQ(store->Now(), State::Editing);
  EXPECT_FALSE(store->LastFailure());
  EXPECT_EQ(settled, std::vector{Outcome::WasStored});
}

}  // namespace
}  // namespace brivane::dossier
