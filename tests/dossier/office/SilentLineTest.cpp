#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QTimer>
#include <algorithm>
#include <thread>

#include "dossier/office/LongWait.h"
#include "dossier/store/StoreErrors.h"
#include "tests/dossier/office/TrialOffice.h"
#include "tests/support/Patience.h"
#include "tests/support/postgres/SocketProxy.h"

// A line on which nothing arrives any more and nobody is told: whoever waits is told within seconds.
namespace brivane::dossier {
namespace {

using State = OfficeStore::State;

class SilentLineTest : public testing::Test {
 protected:
  ~SilentLineTest() override { LongWait::ShowBy({}); }

  static bool Comes(const std::function<bool()>& is_so, int longest = test::kPatience) {
    QElapsedTimer timer;
    timer.start();
    while (!is_so()) {
      if (timer.hasExpired(longest)) return false;
      QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 10);
    }
    return true;
  }
  template <class Body> static qint64 Took(Body&& body) {
    QElapsedTimer timer;
    timer.start();
    body();
    return timer.elapsed();
  }
  static std::int32_t Duration(OfficeStore& store) { return store.Dossier()->FindKolom(0, 1)->Looptijd(); }

  int argc_ = 1;
  char name_[5] = "test";
  char* argv_[1] = {static_cast<char*>(name_)};
  QCoreApplication application_{argc_, static_cast<char**>(argv_)};
  TrialOffice office_;
  test::SocketProxy proxy_{office_.Server().Folder()};
  int client_ = office_.Add();
};

TEST_F(SilentLineTest, AnEditIsToldAsUnknownIsSeenToWaitAndSettledLater) {
  const auto store = OfficeStore::Open(office_.Enter("anna", proxy_.Folder()), client_);
  store->Attend();
  const std::int32_t before = Duration(*store);
  std::vector<Outcome> settled;
  const auto settles = store->Settled.Connect([&](Outcome outcome) { settled.push_back(outcome); });
  std::vector<std::chrono::seconds> shown;
  int over = 0;
  LongWait::ShowBy({.goes_on = [&](std::chrono::seconds so_far) { shown.push_back(so_far); }, .over = [&] { ++over; }});
  WaitingTimes::Set(Patient({&WaitingTimes::edit, &WaitingTimes::back, &WaitingTimes::silence}));
  proxy_.Hang();
  bool due = false;
  QTimer::singleShot(0, [&] { due = true; });
  const qint64 took = Took([&] {
    try {
      store->Dossier()->FindKolom(0, 1)->SetLooptijd(before + 1);
      ADD_FAILURE() << "stored";
    } catch (const host::Error& error) {
      EXPECT_EQ(error.Number(), kUnknownError);
    }
  });
  // Eight seconds for the answer, and one for whether the office is there at all.
  EXPECT_GE(took, 8000);
  EXPECT_LT(took, test::kPatience);
  EXPECT_FALSE(due) << "an event was handled in the middle of an edit";
  // Each second, but for those that a slow machine misses.
  ASSERT_GE(shown.size(), 2U);
  EXPECT_TRUE(std::is_sorted(shown.begin(), shown.end()));
  EXPECT_GE(shown.front(), std::chrono::seconds(1));
  EXPECT_LT(shown.front(), std::chrono::seconds(5));
  EXPECT_GT(shown.back(), std::chrono::seconds(3));
  EXPECT_LT(shown.back(), std::chrono::seconds(8));
  EXPECT_EQ(over, 1);
  EXPECT_EQ(store->Now(), State::Broken);
  EXPECT_EQ(Duration(*store), before);
  proxy_.Mend();
  ASSERT_TRUE(Comes([&] { return store->Now() == State::Editing && !settled.empty(); }));
  // It was on its way: whichever came first, the office and the window agree.
  const bool stored = settled.front() == Outcome::WasStored;
  EXPECT_EQ(Duration(*store), before + (stored ? 1 : 0));
  EXPECT_EQ(Duration(*office_.Open(client_, "rob")), Duration(*store));
  store->Dossier()->FindKolom(0, 1)->SetLooptijd(55);
  EXPECT_EQ(Duration(*office_.Open(client_, "rob")), 55);
  EXPECT_EQ(office_.Psql("postgres", QString("SELECT count(*) FROM kantoor.stap WHERE client = %1").arg(client_)),
            stored ? "2" : "1");
}

TEST_F(SilentLineTest, OtherQuestionsGiveUpSoonerAndAWayOutSoonest) {
  auto store = OfficeStore::Open(office_.Enter("anna", proxy_.Folder()), client_);
  const auto reader = OfficeStore::Open(office_.Enter("bert", proxy_.Folder()), client_);
  store->Attend();
  reader->Attend();
  const auto third = office_.Enter("rob", proxy_.Folder());
  WaitingTimes::Set(Patient({&WaitingTimes::little}));
  proxy_.Hang();
  qint64 took = Took([&] { EXPECT_THROW(reader->Ask(), OfficeError); });
  EXPECT_GE(took, 5000);
  EXPECT_LT(took, test::kPatience);
  took = Took([&] { EXPECT_THROW(static_cast<void>(OfficeStore::Open(third, client_)), OfficeError); });
  EXPECT_LT(took, test::kPatience);
  EXPECT_TRUE(third->IsBroken());
  WaitingTimes::Set(Patient({&WaitingTimes::moment, &WaitingTimes::leaving}));
  took = Took([&] { store.reset(); });
  EXPECT_GE(took, 900);
  EXPECT_LT(took, test::kPatience);
}

/// The clock went on while the machine slept.
TEST_F(SilentLineTest, WhoSleptHearsTheAnswerBeforeHeGivesTheLineUp) {
  WaitingTimes times = Patient();
  times.editing = std::chrono::milliseconds(1);
  times.silence = std::chrono::milliseconds(100);
  times.overdue = times.little;
  WaitingTimes::Set(times);
  const auto store = OfficeStore::Open(office_.Enter("anna", proxy_.Folder()), client_);
  int changes = 0;
  const auto changed = store->Changed.Connect([&] { ++changes; });
  proxy_.Hang();
  const int before = proxy_.RoundTrips();
  Comes([timer = QDeadlineTimer(50)] { return timer.hasExpired(); });
  std::this_thread::sleep_for(std::chrono::milliseconds(200));
  proxy_.Mend();
  ASSERT_TRUE(Comes([&] { return proxy_.RoundTrips() > before + 5; }));
  EXPECT_EQ(changes, 0);
  EXPECT_EQ(store->Now(), State::Editing);
}

TEST_F(SilentLineTest, WhatIsLookedAtByItselfHoldsNobodyUp) {
  const auto store = OfficeStore::Open(office_.Enter("anna"), client_);
  const auto reader = OfficeStore::Open(office_.Enter("bert", proxy_.Folder() + " connect_timeout=120"), client_);
  reader->Attend();
  WaitingTimes::Set(Patient({&WaitingTimes::silence}));
  qint64 longest = 0;
  QElapsedTimer since;
  since.start();
  QTimer tick;
  QObject::connect(&tick, &QTimer::timeout, [&] { longest = std::max(longest, since.restart()); });
  tick.start(10);
  proxy_.Hang();
  ASSERT_TRUE(Comes([&] { return reader->Now() == State::Broken; }));
  EXPECT_LT(longest, test::kPatience / 2);
  store->Dossier()->FindKolom(0, 1)->SetLooptijd(77);
  proxy_.Mend();
  ASSERT_TRUE(Comes([&] { return reader->Now() == State::Reading && Duration(*reader) == 77; }));
  EXPECT_LT(longest, test::kPatience / 2);
}

}  // namespace
}  // namespace brivane::dossier
