// Every single call of SQLite on the disk fails in turn, one run each; and the disk is full from every moment on.

#include <gtest/gtest.h>

#include <iostream>

#include "tests/dossier/store/Desk.h"
#include "tests/dossier/store/Files.h"
#include "tests/dossier/store/ScriptedEdits.h"
#include "tests/faults/FaultyVfs.h"

namespace brivane::faults {
namespace {

using dossier::Desk;
using dossier::DossierFile;
using dossier::DossierGegevens;
using dossier::Folder;
using dossier::Told;

/// The edits of the session: every kind twice.
constexpr int kEdits = 12;

enum class Kind { OneCall, FullDisk };

class Session {
 public:
  Session() : path_(folder_.Make()), stored_(dossier::ReadBack(path_)) {}

  /// Runs the session with that call failing, and checks it. Answers how many calls there were.
  int Run(Kind kind, int nth) {
    SCOPED_TRACE("call " + std::to_string(nth));
    if (kind == Kind::OneCall)
      vfs_.FailAt(nth);
    else
      vfs_.FullFrom(nth);
    try {
      Work();
    } catch (const dossier::OpeningError& error) {
      EXPECT_TRUE(vfs_.Struck()) << "not opened: " << static_cast<int>(error.Problem());
      // Nobody is advised to put a backup over a file that is whole.
      EXPECT_EQ(error.Problem(),
                kind == Kind::OneCall ? dossier::OpeningProblem::DiskError : dossier::OpeningProblem::DiskFull)
          << error.what();
    }
    const int calls = vfs_.Calls();
    failed_ = vfs_.Struck();
    vfs_.FailAt(0);
    Reopened();
    return calls;
  }

  /// Whether a call failed, and how many edits that has cost.
  [[nodiscard]] bool Failed() const { return failed_; }
  [[nodiscard]] int Lost() const { return lost_; }

 private:
  void Work() {
    const auto file = DossierFile::Open(path_);
    Desk bench(*file);
    int boxes = 0;
    bench.Toolkit().Desktop().answer = [&](const std::string& title, const std::string&, host::MessageStyle) {
      if (title == "Kwandero") ++boxes;
      return host::MessageAnswer::Ok;
    };
    bench.Bind(0, 1);
    EXPECT_TRUE(bench.reports.empty());
    for (int n = 0; n < kEdits; ++n) {
      bench.reports.clear();
      bench.failed.clear();
      boxes = 0;
      dossier::DoEdit(bench, n);
      Told(bench, boxes, n);
      const DossierGegevens now = file->Dossier()->Gegevens();
      if (bench.failed.empty()) {
        // After one was lost another may find what it is to do done already.
        EXPECT_TRUE(lost_ > 0 || now != stored_) << "edit " << n << " changed nothing";
        stored_ = now;
      } else {
        ++lost_;
        EXPECT_TRUE(now == stored_) << "after edit " << n << " failed the memory does not show what is stored";
        bench.Bind(0, 1);
      }
    }
  }

  /// A change that is not stored is told of once: by whoever made it, or by the window.
  static void Told(const Desk& bench, int boxes, int n) {
    const auto reports = bench.reports.size() + static_cast<std::size_t>(boxes);
    if (bench.failed.empty()) {
      EXPECT_EQ(reports, 0u) << "edit " << n;
      return;
    }
    EXPECT_EQ(bench.failed.size(), 1u) << "edit " << n;
    EXPECT_EQ(reports, bench.failed.front().told == dossier::Told::Yes ? 1u : 0u) << "edit " << n;
  }

  /// Whatever happened, the file is whole and holds every edit that was not said to have failed.
  void Reopened() {
    const auto file = DossierFile::Open(path_);
    EXPECT_TRUE(file->ControleerHeelheid().isEmpty()) << file->ControleerHeelheid().join("; ").toStdString();
    EXPECT_TRUE(file->Dossier()->Gegevens() == stored_) << "the file does not hold what was stored";
    Desk bench(*file);
    bench.Bind(0, 1);
    bench.Type("TxtOm", std::string("hersteld"));
    EXPECT_TRUE(bench.reports.empty() && bench.failed.empty());
    EXPECT_EQ(file->Dossier()->FindKolom(0, 1)->Omschrijving(), "hersteld");
  }

  FaultyVfs vfs_;
  Folder folder_;
  QString path_;
  DossierGegevens stored_;
  bool failed_ = false;
  int lost_ = 0;
};

void TryAll(Kind kind) {
  int tried = 0;
  int lost = 0;
  for (int nth = 1;; ++nth) {
    Session session;
    const int calls = session.Run(kind, nth);
    ASSERT_FALSE(testing::Test::HasFailure());
    if (nth > calls) break;
    if (session.Failed()) ++tried;
    lost += session.Lost();
  }
  EXPECT_GT(tried, 50);
  EXPECT_GT(lost, 10);
  testing::Test::RecordProperty("FaultsTried", std::to_string(tried));
  std::cout << "faults tried: " << tried << ", edits that failed: " << lost << '\n';
}

TEST(StoreFaults, EveryCallFailsInTurn) { TryAll(Kind::OneCall); }

TEST(StoreFaults, TheDiskIsFullFromEveryCallOn) { TryAll(Kind::FullDisk); }

/// A new file is there complete, or not at all and with nothing beside it.
TEST(StoreFaults, ANewFileIsCompleteOrNotThere) {
  int tried = 0;
  for (int nth = 1;; ++nth) {
    SCOPED_TRACE("call " + std::to_string(nth));
    FaultyVfs vfs;
    const Folder folder;
    vfs.FailAt(nth);
    bool made = false;
    try {
      static_cast<void>(folder.Make());
      made = true;
    } catch (const dossier::OpeningError& error) {
      EXPECT_EQ(error.Problem(), dossier::OpeningProblem::CannotCreate);
    }
    const bool struck = vfs.Struck();
    vfs.FailAt(0);
    if (made) {
      EXPECT_TRUE(dossier::ReadBack(folder.Path()) == dossier::ReadBack(Folder().Make()));
    } else {
      EXPECT_TRUE(folder.Contents().isEmpty()) << folder.Contents().join(", ").toStdString();
    }
    ASSERT_FALSE(testing::Test::HasFailure());
    if (!struck) break;
    ++tried;
  }
  EXPECT_GT(tried, 20);
  RecordProperty("FaultsTried", std::to_string(tried));
  std::cout << "faults tried: " << tried << '\n';
}

/// A program that is killed while it works off its log leaves a file of which some pages are new and others old. The
/// log beside it holds all of them, and is known to be the file's own after any of the writes.
TEST(StoreFaults, KilledWhileManyEditsAreWorkedOff) {
  // More than the names of their states would have room for on one page.
  constexpr int kMany = 400;
  int tried = 0;
  for (int nth = 1;; ++nth) {
    SCOPED_TRACE("call " + std::to_string(nth));
    FaultyVfs vfs;
    const Folder killed;
    const Folder left;
    const auto file = DossierFile::Open(killed.Make());
    const auto column = file->Dossier()->FindKolom(0, 1);
    for (int n = 1; n <= kMany; ++n) column->SetLooptijd(n);
    vfs.FullFrom(nth);
    file->WorkOff();
    const bool struck = vfs.Struck();
    // What stands on the disk now.
    for (const char* name : {"test.dossier", "test.dossier-wal"}) QFile::copy(killed.Path(name), left.Path(name));
    vfs.FailAt(0);
    const auto again = DossierFile::Open(left.Path());
    EXPECT_EQ(again->Dossier()->FindKolom(0, 1)->Looptijd(), kMany);
    EXPECT_TRUE(again->ControleerHeelheid().isEmpty());
    ASSERT_FALSE(testing::Test::HasFailure());
    if (!struck) break;
    ++tried;
  }
  EXPECT_GT(tried, 10);
  RecordProperty("FaultsTried", std::to_string(tried));
}

/// The same where a file of an earlier layout is brought up to date: the program that comes after finds the log.
TEST(StoreFaults, KilledWhileAnEarlierFileIsBroughtUpToDate) {
  for (const char* kept : {"/versie-1.dossier", "/versie-2.dossier"}) {
    int tried = 0;
    int refused = 0;
    for (int nth = 1;; ++nth) {
      SCOPED_TRACE(kept + (", call " + std::to_string(nth)));
      FaultyVfs vfs;
      const Folder killed;
      const Folder left;
      QFile::copy(QLatin1String(EARLIER_FILES) + QLatin1String(kept), killed.Path());
      QFile::setPermissions(killed.Path(), QFile::ReadOwner | QFile::WriteOwner);
      vfs.FullFrom(nth);
      const auto take = [&] {
        for (const QString& name : killed.Contents()) {
          QFile::copy(killed.Path(qPrintable(name)), left.Path(qPrintable(name)));
        }
      };
      try {
        const auto file = DossierFile::Open(killed.Path());
        take();
      } catch (const dossier::OpeningError&) {
        take();
      }
      const bool struck = vfs.Struck();
      vfs.FailAt(0);
      // A page that neither the file had nor the log has is not theirs.
      const Folder strange;
      for (const QString& name : left.Contents()) {
        QFile::copy(left.Path(qPrintable(name)), strange.Path(qPrintable(name)));
      }
      QFile file(strange.Path());
      EXPECT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(file.size() - 1) && file.putChar('x'));
      file.close();
      const auto problem = dossier::ProblemAtOpening(strange.Path());
      if (problem == dossier::OpeningProblem::StrangeLog) ++refused;
      EXPECT_EQ(dossier::ProblemAtOpening(left.Path()), std::nullopt);
      if (!struck) break;
      ++tried;
    }
    EXPECT_GT(tried, 10);
    EXPECT_GT(refused, 0);
  }
}

}  // namespace
}  // namespace brivane::faults
