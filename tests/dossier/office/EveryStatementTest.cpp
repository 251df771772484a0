#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "dossier/store/StoreErrors.h"
#include "tests/dossier/office/TrialOffice.h"
#include "tests/dossier/store/ScriptedEdits.h"
#include "tests/support/Patience.h"
#include "tests/support/postgres/SocketProxy.h"

// Every single question to the office gets no answer in turn, one session each; and every table of the office is full
// in turn.
namespace brivane::dossier {
namespace {

using Fate = test::SocketProxy::Fate;
using State = OfficeStore::State;

/// The edits of the session: every kind twice.
constexpr int kEdits = 12;

/// What came of the sessions of a kind.
struct Tally {
  int struck = 0;      ///< sessions
  int not_opened = 0;  ///< of them
  int accepted = 0;
  int refused = 0;
};

class Session {
 public:
  Session(TrialOffice& office, Tally& tally) : office_(office), tally_(tally) {}

  /// Runs the session with that question meeting that fate. False where there were not so many.
  bool Run(Fate fate, int others) {
    SCOPED_TRACE("question " + std::to_string(others + 1));
    test::SocketProxy proxy(office_.Server().Folder());
    proxy.NextMeets(fate, others);
    try {
      auto store = OfficeStore::Open(office_.Enter("anna", proxy.Folder()), client_);
      // The answer may have been lost that the client was taken up.
      AwaitEditing(*store);
      Work(*store);
    } catch (const OfficeError& error) {
      EXPECT_FALSE(proxy.Awaits());
      EXPECT_EQ(error.Problem(), OfficeProblem::Unreachable);
      ++tally_.not_opened;
    }
    if (proxy.Awaits()) return false;
    ++tally_.struck;
    // As the office has it, for somebody else; and it is free again.
    const auto next = office_.Open(client_, "bert");
    EXPECT_EQ(next->Dossier()->Gegevens(), stored_);
    AwaitEditing(*next);
    EXPECT_EQ(next->Now(), State::Editing);
    EXPECT_EQ(office_.Psql("postgres", QString("SELECT count(*), count(DISTINCT bewerking) FROM kantoor.stap WHERE "
                                               "client = %1")
                                           .arg(client_)),
              QString("%1|%1").arg(steps_));
    return true;
  }

 private:
  void Work(OfficeStore& store) {
    ASSERT_EQ(store.Now(), State::Editing);
    EXPECT_EQ(store.Dossier()->Gegevens(), stored_);
    Outcome outcome = Outcome::NoneAsked;
    const auto settled = store.Settled.Connect([&](Outcome which) { outcome = which; });
    Desk desk(store);
    int boxes = 0;
    desk.Toolkit().Desktop().answer = [&](const std::string& title, const std::string&, host::MessageStyle) {
      if (title == "Kwandero") ++boxes;
      return host::MessageAnswer::Ok;
    };
    desk.Bind(0, 1);
    for (int n = 0; n < kEdits; ++n) {
      desk.reports.clear();
      desk.failed.clear();
      boxes = 0;
      outcome = Outcome::NoneAsked;
      DoEdit(desk, n);
      const auto told = desk.reports.size() + static_cast<std::size_t>(boxes);
      if (desk.failed.empty()) {
        EXPECT_EQ(told, 0U) << "edit " << n;
        Stored(store);
        ++tally_.accepted;
        continue;
      }
      EXPECT_EQ(desk.failed.size(), 1U) << "edit " << n;
      EXPECT_EQ(told, desk.failed.front().told == Told::Yes ? 1U : 0U) << "edit " << n;
      EXPECT_EQ(store.Dossier()->Gegevens(), stored_) << "edit " << n;
      ++tally_.refused;
      AwaitEditing(store);
      if (outcome == Outcome::WasStored) Stored(store);
      desk.Bind(0, 1);
    }
  }

  void Stored(OfficeStore& store) {
    const DossierGegevens now = store.Dossier()->Gegevens();
    if (now != stored_) ++steps_;
    stored_ = now;
  }

  static void AwaitEditing(OfficeStore& store) {
    const auto patience = std::chrono::steady_clock::now() + std::chrono::milliseconds(test::kPatience);
    do {
      store.Attend();
      if (store.Now() == State::Editing) return;
      if (store.Now() == State::Reading && store.HeldBy().naam.isEmpty()) static_cast<void>(store.TakeOver());
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    } while (std::chrono::steady_clock::now() < patience);
  }

  TrialOffice& office_;
  Tally& tally_;
  int client_ = office_.Add();
  DossierGegevens stored_ = office_.Open(client_, "rob")->Dossier()->Gegevens();
  int steps_ = 0;
};

class EveryStatementTest : public testing::TestWithParam<Fate> {};

TEST_P(EveryStatementTest, GetsNoAnswerInTurn) {
  TrialOffice office;
  Tally tally;
  for (int others = 0; !HasFailure(); ++others) {
    if (!Session(office, tally).Run(GetParam(), others)) break;
  }
  EXPECT_GT(tally.struck, 20);
  std::printf("%d questions without an answer: %d times not opened, %d edits accepted and %d refused\n", tally.struck,
              tally.not_opened, tally.accepted, tally.refused);
  if (GetParam() == Fate::LostBefore) {
    // What never arrived is told, and is all that was lost.
    EXPECT_GE(tally.refused, kEdits - 1);
  } else {
    EXPECT_EQ(tally.refused, 0) << "what was stored was not told so";
  }
}

INSTANTIATE_TEST_SUITE_P(Fates, EveryStatementTest, testing::Values(Fate::LostBefore, Fate::LostAfter),
                         [](const auto& chosen) {
                           return chosen.param == Fate::LostBefore ? "BeforeTheOffice" : "AfterTheOffice";
                         });

TEST(FullTableTest, IsFullInTurn) {
  TrialOffice office;
  const auto must = [&](const QString& sql) {
    bool failed = false;
    const QString said = office.Psql("postgres", sql, &failed);
    ASSERT_FALSE(failed) << said.toStdString();
  };
  must(
      "CREATE FUNCTION kantoor.vol() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN RAISE EXCEPTION 'full' USING ERRCODE "
      "= 'disk_full'; END $$; GRANT EXECUTE ON FUNCTION kantoor.vol() TO PUBLIC");
  struct TableCase {
    const char* table;
    /// Of the edits of the script, those that write it.
    int refused;
  };
  // Each edit writes the client's row, a step, its entries and the name of its author, which is new each time; the
  // fifth and the eleventh write periods and no column. The ninth sets a choice back that the third could not set:
  // where none is stored it changes nothing.
  constexpr TableCase kCases[] = {{"client", 11},    {"stap", 11},   {"wijziging", 11},
                                  {"vrijekolom", 9}, {"periode", 2}, {"naam", 11}};
  for (const TableCase& one : kCases) {
    SCOPED_TRACE(one.table);
    const auto store = office.Open(office.Add());
    Desk desk(*store);
    desk.Bind(0, 1);
    must(QString("CREATE TRIGGER vol BEFORE INSERT OR UPDATE ON kantoor.%1 FOR EACH ROW EXECUTE FUNCTION kantoor.vol()")
             .arg(one.table));
    int refused = 0;
    for (int n = 1; n <= kEdits; ++n) {
      const DossierGegevens before = store->Dossier()->Gegevens();
      desk.reports.clear();
      desk.failed.clear();
      DoEdit(desk, n);
      if (desk.failed.empty()) continue;
      ++refused;
      EXPECT_EQ(desk.failed.size(), 1U);
      EXPECT_EQ(desk.failed.front().error.Description(),
                "De wijziging is niet opgeslagen: de schijf van het kantoor is vol.");
      EXPECT_EQ(store->Dossier()->Gegevens(), before);
      desk.Bind(0, 1);
    }
    EXPECT_EQ(refused, one.refused);
    must(QString("DROP TRIGGER vol ON kantoor.%1").arg(one.table));
    desk.failed.clear();
    for (int n = 1; n <= kEdits; ++n) DoEdit(desk, n);
    EXPECT_TRUE(desk.failed.empty());
    EXPECT_EQ(office.Open(store->Client(), "rob")->Dossier()->Gegevens(), store->Dossier()->Gegevens());
  }
}

}  // namespace
}  // namespace brivane::dossier
