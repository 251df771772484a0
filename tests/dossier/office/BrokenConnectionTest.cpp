#include "dossier/store/StoreErrors.h"
#include "tests/dossier/office/TrialOffice.h"
#include "tests/dossier/store/Desk.h"
#include "tests/support/postgres/SocketProxy.h"

// The connection breaks: what the adviser was told is so, and nothing is stored twice.
namespace brivane::dossier {
namespace {

using controls::Enter;
using Fate = test::SocketProxy::Fate;
using State = OfficeStore::State;

class BrokenConnectionTest : public testing::Test {
 protected:
  BrokenConnectionTest() {
    store_ = OfficeStore::Open(office_.Enter("anna", proxy_.Folder()), client_);
    settled_ = store_->Settled.Connect([this](Outcome outcome) { settlements_.push_back(outcome); });
    desk_ = std::make_unique<Desk>(*store_);
    desk_->Bind(0, 1);
    // What opening leaves to be done aside comes first.
    store_->Attend();
  }

  void Type(const std::string& text) { desk_->Do("TxtOm", Enter{text}); }
  [[nodiscard]] std::string InMemory() { return store_->Dossier()->FindKolom(0, 1)->Omschrijving(); }
  [[nodiscard]] std::string InOffice() {
    return office_.Open(client_, "rob")->Dossier()->FindKolom(0, 1)->Omschrijving();
  }
  [[nodiscard]] int Steps() {
    return office_.Psql("postgres", QString("SELECT count(*) FROM kantoor.stap WHERE client = %1").arg(client_))
        .toInt();
  }
  /// Ends the session at the server, as an administrator would.
  void EndSession() {
    office_.Psql("postgres",
                 QString("SELECT pg_terminate_backend(pid, 60000) FROM pg_stat_activity WHERE usename = 'anna' AND "
                         "datname = '%1'")
                     .arg(office_.Name()));
  }

  TrialOffice office_;
  test::SocketProxy proxy_{office_.Server().Folder()};
  int client_ = office_.Add();
  std::unique_ptr<OfficeStore> store_;
  std::unique_ptr<Desk> desk_;
  host::Subscription settled_;
  std::vector<Outcome> settlements_;
};

TEST_F(BrokenConnectionTest, AnAnswerThatIsLostIsLookedUp) {
  proxy_.NextMeets(Fate::LostAfter);
  Type("na de breuk");
  EXPECT_TRUE(desk_->reports.empty());
  EXPECT_EQ(InMemory(), "na de breuk");
  EXPECT_EQ(InOffice(), "na de breuk");
  EXPECT_EQ(Steps(), 1);
  EXPECT_EQ(store_->Now(), State::Editing);
  // The way back is whole.
  Type("en verder");
  EXPECT_EQ(Steps(), 2);
  ASSERT_TRUE(store_->Take(StepKind::Undo));
  ASSERT_TRUE(store_->Take(StepKind::Undo));
  EXPECT_EQ(InOffice(), "Kinderopvang");
}

TEST_F(BrokenConnectionTest, WhatDidNotReachTheOfficeIsToldAndNotSentAgain) {
  proxy_.NextMeets(Fate::LostBefore);
  Type("verloren");
  ASSERT_EQ(desk_->reports.size(), 1U);
  EXPECT_EQ(desk_->reports[0].ErrorNumber, std::to_string(kOfficeError));
  EXPECT_EQ(InMemory(), "Kinderopvang");
  EXPECT_EQ(InOffice(), "Kinderopvang");
  EXPECT_EQ(Steps(), 0);
  EXPECT_EQ(store_->Now(), State::Editing);
  Type("opnieuw getypt");
  EXPECT_EQ(InOffice(), "opnieuw getypt");
}

TEST_F(BrokenConnectionTest, AnOutcomeThatIsNotKnownIsToldOnceItIs) {
  for (const Fate fate : {Fate::DeadAfter, Fate::DeadBefore}) {
    const bool was_stored = fate == Fate::DeadAfter;
    SCOPED_TRACE(was_stored);
    settlements_.clear();
    desk_->reports.clear();
    const std::string before = InMemory();
    const int steps = Steps();
    proxy_.NextMeets(fate);
    Type("ongewis");
    ASSERT_EQ(desk_->reports.size(), 1U);
    EXPECT_EQ(desk_->reports[0].ErrorNumber, std::to_string(kUnknownError));
    EXPECT_EQ(InMemory(), before);
    // Nothing is stored meanwhile, and each try fails.
    Type("kan niet");
    EXPECT_EQ(desk_->reports.back().ErrorNumber, std::to_string(kOfficeError));
    store_->Attend();
    EXPECT_EQ(store_->Now(), State::Broken);
    EXPECT_GE(store_->Tries(), 1);
    proxy_.Mend();
    store_->Attend();
    EXPECT_EQ(store_->Now(), State::Editing);
    EXPECT_EQ(settlements_, std::vector{was_stored ? Outcome::WasStored : Outcome::WasNotStored});
    EXPECT_EQ(InMemory(), was_stored ? "ongewis" : before);
    EXPECT_EQ(InOffice(), InMemory());
    EXPECT_EQ(Steps(), steps + (was_stored ? 1 : 0));
    desk_->Bind(0, 1);
    Type(was_stored ? "daarna" : "later");
    EXPECT_EQ(InOffice(), was_stored ? "daarna" : "later");
  }
}

TEST_F(BrokenConnectionTest, ASessionThatWasEndedIsBegunAnew) {
  EndSession();
  Type("na het einde");
  ASSERT_EQ(desk_->reports.size(), 1U);
  EXPECT_EQ(store_->Now(), State::Editing);
  Type("weer");
  EXPECT_EQ(desk_->reports.size(), 1U);
  EXPECT_EQ(InOffice(), "weer");
}

TEST_F(BrokenConnectionTest, WhoTookItUpMeanwhileKeepsItAndTheOtherStoresNothing) {
  EndSession();
  const auto other = office_.Open(client_, "bert");
  ASSERT_EQ(other->Now(), State::Editing);
  other->Dossier()->FindKolom(0, 1)->SetOmschrijving("van Bert");
  Type("van Anna");
  EXPECT_EQ(desk_->reports.size(), 1U);
  EXPECT_EQ(store_->Now(), State::Reading);
  EXPECT_EQ(store_->HeldBy().naam, "Bert Bakker");
  EXPECT_EQ(InOffice(), "van Bert");
  EXPECT_EQ(Steps(), 1);
  store_->Attend();
  EXPECT_EQ(InMemory(), "van Bert");
  desk_->Bind(0, 1);
  Type("nog eens");
  EXPECT_EQ(desk_->reports.back().ErrorNumber, std::to_string(kLeaseError));
  EXPECT_EQ(desk_->reports.back().ErrorDescription,
            "De wijziging is niet opgeslagen: Bert Bakker werkt in dit dossier.");
}

TEST_F(BrokenConnectionTest, AnEditBehindAStolenLeaseIsRefusedByTheServer) {
  // A bug or a forger: the row of the lease names another session.
  office_.Psql("postgres", "UPDATE kantoor.bewerker SET bewijs = gen_random_uuid()");
  Type("te laat");
  ASSERT_EQ(desk_->reports.size(), 1U);
  EXPECT_EQ(desk_->reports[0].ErrorNumber, std::to_string(kLeaseError));
  EXPECT_EQ(store_->Now(), State::Reading);
  EXPECT_EQ(Steps(), 0);
}

TEST_F(BrokenConnectionTest, AnEditThatFollowsOnAnotherIsRefusedAndTheMemoryReadAnew) {
  office_.Psql("postgres", "UPDATE kantoor.client SET laatste = 5");
  Type("achterhaald");
  ASSERT_EQ(desk_->reports.size(), 1U);
  EXPECT_EQ(desk_->reports[0].ErrorNumber, std::to_string(kRefusedError));
  EXPECT_EQ(InMemory(), "Kinderopvang");
  Type("te vroeg");
  EXPECT_EQ(desk_->reports.back().ErrorDescription,
            "De wijziging is niet opgeslagen: het dossier wordt opnieuw gelezen.");
}

TEST_F(BrokenConnectionTest, AnAcceptedEditIsOneRoundTripAndOpeningAConstantNumber) {
  Type("een");
  const int before = proxy_.RoundTrips();
  Type("twee");
  EXPECT_EQ(proxy_.RoundTrips() - before, 1);
  const auto trips = [&](int client) {
    const auto office = office_.Enter("bert", proxy_.Folder());
    const int first = proxy_.RoundTrips();
    const auto opened = OfficeStore::Open(office, client);
    const int waited = proxy_.RoundTrips() - first;
    opened->Attend();
    // That was one too, prepared and run.
    return std::pair(waited, proxy_.RoundTrips() - first - 2);
  };
  DossierGegevens large = VoorbeeldDossier();
  for (std::int16_t id = 100; id < 600; ++id) {
    KolomGegevens kolom = large.HuidigeLening.VrijeKolommen.front();
    kolom.Id = id;
    large.HuidigeLening.VrijeKolommen.push_back(kolom);
  }
  const auto [waited, all] = trips(office_.Add());
  EXPECT_EQ(trips(office_.Add(large)).second, all);
  // The lease and the case, each prepared and run.
  EXPECT_GE(waited, 4);
  EXPECT_LE(all, 6);
  std::printf("%d round trips to open a client in a new session, of which %d are waited for\n", all, waited);
}

}  // namespace
}  // namespace brivane::dossier
