// A program works in a loan file, and something happens to the file at a random moment. What the program said it had
// accepted is where the documents say, or the next change was refused in a message.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <iostream>
#include <map>
#include <random>

#include "dossier/model/SampleCase.h"
#include "dossier/store/DossierFile.h"

namespace brivane::faults {
namespace {

using dossier::DossierFile;
using dossier::OpeningError;
using dossier::OpeningProblem;

constexpr int kTries = 100;
constexpr int kPatience = 60000;

/// What the child has accepted: the number that stands in the first column as its duration.
using Number = int;

/// A program that writes ever higher numbers into the duration of the first column, one edit each, and says each one
/// once it was accepted; then "refused" once a change was refused, and what file it could keep in place of it.
class Worker {
 public:
  explicit Worker(const QString& file, Number from) {
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(QStringLiteral(FILE_WORKER), {file, QString::number(from)});
    EXPECT_TRUE(process_.waitForStarted());
  }
  ~Worker() {
    if (process_.state() == QProcess::NotRunning) return;
    process_.kill();
    process_.waitForFinished(kPatience);
  }
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;

  /// Waits until it works.
  [[nodiscard]] bool Works() { return Read() && accepted_ > 0; }
  void Kill() {
    process_.kill();
    EXPECT_TRUE(process_.waitForFinished(kPatience));
    while (Read()) {
    }
  }
  /// Lets it go on until a change is refused, or asks it to stop and close the file in order.
  void Finish() {
    process_.closeWriteChannel();
    EXPECT_TRUE(process_.waitForFinished(kPatience));
    EXPECT_EQ(process_.exitStatus(), QProcess::NormalExit);
    while (Read()) {
    }
  }

  [[nodiscard]] Number Accepted() const { return accepted_; }
  [[nodiscard]] bool Refused() const { return refused_; }

 private:
  bool Read() {
    while (!process_.canReadLine()) {
      if (process_.state() == QProcess::NotRunning || !process_.waitForReadyRead(kPatience)) {
        if (!process_.canReadLine()) return false;
      }
    }
    const QByteArray line = process_.readLine().trimmed();
    if (line == "refused")
      refused_ = true;
    else
      accepted_ = line.toInt();
    return true;
  }

  QProcess process_;
  Number accepted_ = 0;
  bool refused_ = false;
};

/// One folder with a loan file, and chance.
class Try {
 public:
  explicit Try(unsigned seed) : chance_(seed) { DossierFile::Maak(Path(), dossier::VoorbeeldDossier()); }

  [[nodiscard]] QString Path(const char* name = "k.dossier") const { return folder_.filePath(QLatin1String(name)); }
  void Wait(int most) { QThread::usleep(std::uniform_int_distribution<unsigned long>(0, most * 1000UL)(chance_)); }
  [[nodiscard]] bool Toss() { return std::bernoulli_distribution()(chance_); }

 private:
  QTemporaryDir folder_;
  std::mt19937 chance_;
};

Number NumberIn(const QString& file) {
  const auto open = DossierFile::Open(file);
  EXPECT_TRUE(open->ControleerHeelheid().isEmpty());
  return open->Dossier()->ZoekKolom(0, 1)->Looptijd();
}

/// The problem that opening meets, or nothing.
std::optional<OpeningProblem> Problem(const QString& file) {
  try {
    static_cast<void>(DossierFile::Open(file));
    return std::nullopt;
  } catch (const OpeningError& error) {
    return error.Problem();
  }
}

/// A copy of the file alone, as a mail or a backup takes it.
QString CopyOf(const Try& one, const char* name = "kopie.dossier") {
  EXPECT_TRUE(QFile::copy(one.Path(), one.Path(name)));
  return one.Path(name);
}

template <class Body> void TryOften(const char* what, Body body) {
  std::map<std::string, int> outcomes;
  for (int n = 0; n < kTries; ++n) {
    SCOPED_TRACE(std::string(what) + ", try " + std::to_string(n));
    Try one(20261122u + static_cast<unsigned>(n));
    ++outcomes[body(one)];
    ASSERT_FALSE(testing::Test::HasFailure());
  }
  std::cout << what << ":";
  for (const auto& [outcome, times] : outcomes) std::cout << ' ' << times << " x " << outcome << ';';
  std::cout << '\n';
}

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
    const auto column = first->Dossier()->ZoekKolom(0, 1);
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
