// A program works in a loan file, and something happens to the file at a random moment. What the program said it had
// accepted is where the documents say, or the next change was refused in a message.

#include <QFile>
#include <cstdio>

#include "dossier/model/SampleCase.h"
#include "tests/faults/FileTry.h"

namespace brivane::faults {
namespace {

using dossier::DossierFile;
using dossier::OpeningError;
using dossier::OpeningProblem;

TEST(FileFaults, Killed) {
  TryOften("killed", [](Try& one) -> std::string {
    Worker worker(one.Path(), 1);
    EXPECT_TRUE(worker.Works());
    // Half a second after the first edit the log is worked off.
    one.Wait(700);
    worker.Kill();
    const Number stored = NumberIn(one.Path());
    EXPECT_TRUE(stored == worker.Accepted() || stored == worker.Accepted() + 1) << stored << worker.Accepted();
    EXPECT_FALSE(QFile::exists(one.Path("k.dossier-wal")));
    return "in the file";
  });
}

TEST(FileFaults, Moved) {
  TryOften("moved", [](Try& one) -> std::string {
    Worker worker(one.Path(), 1);
    EXPECT_TRUE(worker.Works());
    one.Wait(60);
    EXPECT_TRUE(QFile::rename(one.Path(), one.Path("elders.dossier")));
    const bool killed = one.Toss();
    if (!killed) {
      worker.Finish();
      EXPECT_TRUE(worker.Refused());
      EXPECT_FALSE(QFile::exists(one.Path("k.dossier-wal")));
      // A change that was under way when the file was moved may have been the last.
      EXPECT_EQ(NumberIn(one.Path("elders.dossier")), worker.Accepted());
      return "refused, and in the file where it went";
    }
    one.Wait(30);
    worker.Kill();
    // What the file does not hold yet stands in the log under the old name, and is worked in when it is moved back.
    EXPECT_TRUE(QFile::rename(one.Path("elders.dossier"), one.Path()));
    const Number stored = NumberIn(one.Path());
    EXPECT_TRUE(stored == worker.Accepted() || stored == worker.Accepted() + 1) << stored << worker.Accepted();
    return "killed, and in the file once it was moved back";
  });
}

TEST(FileFaults, Replaced) {
  TryOften("replaced", [](Try& one) -> std::string {
    const QString backup = CopyOf(one);
    Worker worker(one.Path(), 1);
    EXPECT_TRUE(worker.Works());
    one.Wait(60);
    EXPECT_EQ(rename(QFile::encodeName(backup).constData(), QFile::encodeName(one.Path()).constData()), 0);
    QFile file(one.Path());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    worker.Finish();
    EXPECT_TRUE(worker.Refused());
    // Nothing of the session came into the other file, and all of it could be kept.
    file.seek(0);
    EXPECT_EQ(file.readAll(), bytes);
    EXPECT_EQ(NumberIn(one.Path("k.dossier.bewaard")), worker.Accepted());
    EXPECT_EQ(Problem(one.Path()), std::nullopt);
    return "refused, and kept elsewhere";
  });
}

TEST(FileFaults, Deleted) {
  TryOften("deleted", [](Try& one) -> std::string {
    Worker worker(one.Path(), 1);
    EXPECT_TRUE(worker.Works());
    one.Wait(60);
    EXPECT_TRUE(QFile::remove(one.Path()));
    worker.Finish();
    EXPECT_TRUE(worker.Refused());
    EXPECT_EQ(NumberIn(one.Path("k.dossier.bewaard")), worker.Accepted());
    // A new case under the name has nothing of it.
    DossierFile::Maak(one.Path(), dossier::VoorbeeldDossier());
    EXPECT_EQ(NumberIn(one.Path()), dossier::VoorbeeldDossier().HuidigeLening.VrijeKolommen.front().Looptijd);
    return "refused, and kept elsewhere";
  });
}

TEST(FileFaults, Copied) {
  TryOften("copied", [](Try& one) -> std::string {
    const Number untouched = NumberIn(one.Path());
    Worker worker(one.Path(), 1000);
    EXPECT_TRUE(worker.Works());
    one.Wait(700);
    const QString copy = CopyOf(one);
    worker.Finish();
    EXPECT_EQ(NumberIn(one.Path()), worker.Accepted());
    // While somebody works in it the copy may be a moment behind, or torn where it was made during the working off of
    // the log; then it is refused.
    if (const auto problem = Problem(copy)) {
      EXPECT_EQ(*problem, OpeningProblem::Damaged);
      return "torn and refused";
    }
    const Number copied = NumberIn(copy);
    if (copied == untouched) return "the state before the session";
    EXPECT_GE(copied, 1000);
    EXPECT_LE(copied, worker.Accepted());
    return "a state of the last second";
  });
}

TEST(FileFaults, CopiedAtRest) {
  TryOften("copied at rest", [](Try& one) -> std::string {
    Worker worker(one.Path(), 1);
    EXPECT_TRUE(worker.Works());
    one.Wait(30);
    worker.Finish();
    EXPECT_EQ(NumberIn(CopyOf(one)), worker.Accepted());
    return "all of it";
  });
}

/// The disk is full from some call on, or one call fails; then it is well again, and the work goes on.
void TryADiskThat(const char* how) {
  TryOften(how, [how](Try& one) -> std::string {
    const Number untouched = NumberIn(one.Path());
    Worker worker(one.Path(), 1, {QLatin1String(how), QString::number(one.Pick(400))});
    worker.WaitForRefusal();
    const bool killed = worker.Refused() && one.Toss();
    one.Wait(20);
    if (killed)
      worker.Kill();
    else
      worker.Finish();
    const Number stored = NumberIn(one.Path());
    if (worker.NotOpened()) {
      EXPECT_EQ(worker.Accepted(), 0);
      return "not opened, with its reason";
    }
    // A kill may come before anything was accepted, and may take the word for what was accepted just now.
    const Number last = worker.Accepted() == 0 ? untouched : worker.Accepted();
    EXPECT_TRUE(stored == last || (killed && stored == worker.Accepted() + 1)) << stored << ' ' << last;
    EXPECT_TRUE(killed || worker.Accepted() > 0);
    EXPECT_FALSE(QFile::exists(one.Path("k.dossier-wal")));
    if (!worker.Refused()) return "met by no edit, and in the file";
    return killed ? "refused, then killed, and in the file" : "refused, and in the file with what came after";
  });
}

TEST(FileFaults, DiskFull) { TryADiskThat("full"); }

TEST(FileFaults, DiskError) { TryADiskThat("error"); }

TEST(FileFaults, TwoPrograms) {
  TryOften("two programs", [](Try& one) -> std::string {
    Worker worker(one.Path(), 1);
    EXPECT_TRUE(worker.Works());
    for (int n = 0; n < 3; ++n) {
      one.Wait(20);
      // As a dialog does, here and there.
      QFile file(one.Path());
      EXPECT_TRUE(file.open(QIODevice::ReadOnly));
      file.close();
      EXPECT_EQ(Problem(one.Path()), OpeningProblem::InUse);
    }
    worker.Finish();
    EXPECT_FALSE(worker.Refused());
    EXPECT_EQ(NumberIn(one.Path()), worker.Accepted());
    return "the second refused";
  });
}

TEST(FileFaults, TwoWindows) {
  TryOften("two windows", [](Try& one) -> std::string {
    EXPECT_TRUE(QFile::link(one.Path(), one.Path("koppeling.dossier")));
    auto first = DossierFile::Open(one.Toss() ? one.Path() : one.Path("koppeling.dossier"));
    const auto column = first->Dossier()->FindKolom(0, 1);
    for (int n = 1; n <= 5; ++n) {
      EXPECT_EQ(Problem(one.Toss() ? one.Path() : one.Path("koppeling.dossier")), OpeningProblem::InUse);
      column->SetLooptijd(n);
      if (one.Toss()) static_cast<void>(QFile(one.Path()).open(QIODevice::ReadOnly));
    }
    Worker other(one.Path(), 1000);
    EXPECT_FALSE(other.Works());
    first.reset();
    EXPECT_EQ(NumberIn(one.Path()), 5);
    return "the second refused";
  });
}

TEST(FileFaults, LeftOverLog) {
  TryOften("left-over log", [](Try& one) -> std::string {
    const QString backup = CopyOf(one);
    {
      Worker before(one.Path(), 1);
      EXPECT_TRUE(before.Works());
      before.Finish();
    }
    Worker worker(one.Path(), 1000);
    EXPECT_TRUE(worker.Works());
    one.Wait(60);
    worker.Kill();
    const bool log = QFile(one.Path("k.dossier-wal")).size() > 0;
    EXPECT_TRUE(QFile::remove(one.Path()));
    // Another case under the name: made anew, or an older copy put back.
    if (one.Toss()) {
      try {
        DossierFile::Maak(one.Path(), dossier::VoorbeeldDossier());
        ADD_FAILURE() << "made beside a log";
      } catch (const OpeningError& error) {
        EXPECT_EQ(error.Problem(), OpeningProblem::LogThere);
      }
      return "not made";
    }
    EXPECT_TRUE(QFile::rename(backup, one.Path()));
    const auto problem = Problem(one.Path());
    if (!log) return problem ? "refused without need" : "an empty log, dropped";
    EXPECT_EQ(problem, OpeningProblem::StrangeLog);
    return "refused";
  });
}

}  // namespace
}  // namespace brivane::faults
