#include <gtest/gtest.h>

#include "tests/dossier/office/TrialOffice.h"

// A client that could not be taken up, or not be opened, is free again: the lease is the session's, which goes on.
namespace brivane::dossier {
namespace {

using State = OfficeStore::State;

class LeaseTest : public testing::Test {
 protected:
  void Must(const QString& sql) {
    bool failed = false;
    const QString said = office_.Psql("postgres", sql, &failed);
    ASSERT_FALSE(failed) << said.toStdString();
  }
  void ExpectFreeFor(const char* account) {
    const auto store = office_.Open(client_, account);
    EXPECT_EQ(store->Now(), State::Editing) << store->HeldBy().naam.toStdString();
  }
  static OfficeProblem ProblemAtOpening(const std::shared_ptr<OfficeConnection>& session, int client) {
    try {
      static_cast<void>(OfficeStore::Open(session, client));
      return OfficeProblem::Refused;
    } catch (const OfficeError& error) {
      return error.Problem();
    }
  }

  TrialOffice office_;
  int client_ = office_.Add();
};

TEST_F(LeaseTest, WithoutRoomForItsRowNobodyHasTheClient) {
  Must(
      "CREATE FUNCTION kantoor.vol() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN RAISE EXCEPTION 'full' USING ERRCODE "
      "= 'disk_full'; END $$; CREATE TRIGGER vol BEFORE INSERT ON kantoor.bewerker FOR EACH ROW EXECUTE FUNCTION "
      "kantoor.vol()");
  const auto session = office_.Enter();
  EXPECT_EQ(ProblemAtOpening(session, client_), OfficeProblem::DiskFull);
  Must("DROP TRIGGER vol ON kantoor.bewerker");
  ExpectFreeFor("bert");
  EXPECT_EQ(OfficeStore::Open(session, client_)->Now(), State::Editing);
}

TEST_F(LeaseTest, AClientThatCannotBeReadIsLetGoAndFollowedNoMore) {
  Must("UPDATE kantoor.vrijekolom SET looptijd = 40000 WHERE client = " + QString::number(client_));
  const auto session = office_.Enter();
  EXPECT_EQ(ProblemAtOpening(session, client_), OfficeProblem::Damaged);
  Must("UPDATE kantoor.vrijekolom SET looptijd = 40 WHERE client = " + QString::number(client_));
  ExpectFreeFor("bert");
  EXPECT_EQ(office_.Psql("postgres", "SELECT count(*) FROM kantoor.meelezer"), "0");
}

TEST_F(LeaseTest, ASessionThatOnlyHasTheNumberOfTheBrokenOneIsLeftAlone) {
  const auto session = office_.Enter();
  const auto store = OfficeStore::Open(session, client_);
  Must(QString("SELECT pg_terminate_backend(%1, 60000)").arg(session->User().pid));
  // As after a restart of the server, which gives the number of that session to another window of anna's.
  const auto other = OfficeStore::Open(office_.Enter(), client_);
  ASSERT_EQ(other->Now(), State::Editing);
  Must(QString("UPDATE kantoor.bewerker SET pid = %1").arg(session->User().pid));
  EXPECT_THROW(store->Dossier()->FindKolom(0, 1)->SetLooptijd(10), host::Error);
  EXPECT_EQ(store->Now(), State::Reading);
  EXPECT_EQ(store->HeldBy().naam, "Anna Aalders");
}

}  // namespace
}  // namespace brivane::dossier
