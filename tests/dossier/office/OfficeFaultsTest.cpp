#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <map>
#include <random>
#include <thread>

#include "dossier/store/StoreErrors.h"
#include "tests/dossier/office/TrialOffice.h"
#include "tests/dossier/store/Digest.h"
#include "tests/dossier/store/ScriptedEdits.h"
#include "tests/support/Patience.h"
#include "tests/support/postgres/SocketProxy.h"
#include <brivane/host/Error.h>

// Something breaks at a random moment of a session: what the adviser saw stored is there once, and nothing half.
namespace brivane::dossier {
namespace {

using Fate = test::SocketProxy::Fate;
using State = OfficeStore::State;

/// Of each kind, in every run; more where BRIVANE_FAULTS asks for them.
int Tries() {
  const int asked = qEnvironmentVariableIntValue("BRIVANE_FAULTS");
  return asked > 0 ? asked : 3;
}

constexpr int kEdits = 24;

/// What came of the sessions of one kind.
struct Tally {
  int sessions = 0;
  int accepted = 0;
  int refused = 0;
  int unknown = 0;
  int found_stored = 0;
};

class OfficeFaultsTest : public testing::Test {
 protected:
  /// One session of an adviser, in which `fault` strikes in a thread of its own, after a pause drawn by chance.
  void Session(Tally& tally, const std::function<void(test::SocketProxy&)>& fault, unsigned seed) {
    const int client = office_.Add();
    test::SocketProxy proxy(server_.Folder());
    auto store = OfficeStore::Open(office_.Enter("anna", proxy.Folder()), client);
    std::vector<Outcome> settlements;
    const auto settled = store->Settled.Connect([&](Outcome outcome) { settlements.push_back(outcome); });
    Desk desk(*store);
    desk.Bind(0, 1);
    const std::string before = Digest(store->Dossier()->Gegevens());
    std::mt19937 chance(seed);
    const auto pause = std::chrono::microseconds(chance() % 80000);
    std::thread breaker([&] {
      std::this_thread::sleep_for(pause);
      fault(proxy);
    });
    int steps = 0;
    for (int n = 1; n <= kEdits; ++n) {
      const std::string was = Digest(store->Dossier()->Gegevens());
      desk.reports.clear();
      desk.failed.clear();
      DoEdit(desk, n);
      const bool changed = Digest(store->Dossier()->Gegevens()) != was;
      if (desk.failed.empty()) {
        if (changed) ++steps;
        ++tally.accepted;
        continue;
      }
      // What was refused is not there, and was told once.
      EXPECT_EQ(desk.failed.size(), 1U);
      EXPECT_LE(desk.reports.size(), 1U);
      EXPECT_FALSE(changed);
      const bool unknown = desk.failed[0].error.Number() == kUnknownError;
      ++(unknown ? tally.unknown : tally.refused);
      AwaitEditing(*store);
      ASSERT_EQ(store->Now(), State::Editing);
      if (unknown) {
        ASSERT_EQ(settlements.size(), 1U);
        if (settlements.back() == Outcome::WasStored) {
          ++steps;
          ++tally.found_stored;
        }
        settlements.clear();
      }
      desk.Bind(0, 1);
    }
    breaker.join();
    ++tally.sessions;
    // As the office has it, for somebody else.
    const auto reader = office_.Open(client, "rob");
    EXPECT_EQ(Digest(reader->Dossier()->Gegevens()), Digest(store->Dossier()->Gegevens()));
    EXPECT_EQ(
        office_.Psql("postgres", QString("SELECT count(*), count(DISTINCT bewerking), max(nummer) FROM kantoor.stap "
                                         "WHERE client = %1")
                                     .arg(client)),
        QString("%1|%1|%1").arg(steps));
    TakeAllBack(*store);
    EXPECT_EQ(Digest(store->Dossier()->Gegevens()), before);
  }

  static void AwaitEditing(OfficeStore& store) {
    const auto patience = std::chrono::steady_clock::now() + std::chrono::milliseconds(test::kPatience);
    while (store.Now() != State::Editing && std::chrono::steady_clock::now() < patience) {
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
      store.Attend();
    }
    store.Attend();
  }

  /// What struck after the last edit is met by the first step back: that one is refused, once, and tried again.
  static void TakeAllBack(OfficeStore& store) {
    try {
      while (store.Take(StepKind::Undo)) {
      }
      return;
    } catch (const host::Error&) {
      AwaitEditing(store);
    }
    ASSERT_EQ(store.Now(), State::Editing);
    while (store.Take(StepKind::Undo)) {
    }
  }

  void Sessions(const char* kind, const std::function<void(test::SocketProxy&)>& fault) {
    Tally tally;
    for (int n = 0; n < Tries() && !HasFatalFailure(); ++n) Session(tally, fault, static_cast<unsigned>(n + 1));
    std::printf("%-28s %3d sessions %5d accepted %3d refused %3d not known (%d of them stored)\n", kind, tally.sessions,
                tally.accepted, tally.refused, tally.unknown, tally.found_stored);
    EXPECT_EQ(tally.sessions, Tries());
  }

  /// A server that waits for its disk: it is stopped without warning.
  test::PostgresServer server_{test::PostgresServer::Disk::Waits};
  TrialOffice office_{server_};
};

TEST_F(OfficeFaultsTest, WhateverBreaks) {
  Sessions("nothing", [](test::SocketProxy&) {});
  Sessions("session ended", [&](test::SocketProxy&) {
    office_.Psql("postgres", "SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE usename = 'anna'");
  });
  Sessions("lost before the office", [](test::SocketProxy& proxy) { proxy.NextMeets(Fate::LostBefore); });
  Sessions("lost after the commit", [](test::SocketProxy& proxy) { proxy.NextMeets(Fate::LostAfter); });
  Sessions("line dead for a while", [](test::SocketProxy& proxy) {
    proxy.Cut();
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    proxy.Mend();
  });
  Sessions("dead after the commit", [](test::SocketProxy& proxy) {
    proxy.NextMeets(Fate::DeadAfter);
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    proxy.NextMeets(Fate::Answered);
    proxy.Mend();
  });
  for (const char* how : {"fast", "immediate"}) {
    Sessions(how, [&](test::SocketProxy&) {
      server_.Stop(how);
      server_.Start();
    });
  }
}

}  // namespace
}  // namespace brivane::dossier
