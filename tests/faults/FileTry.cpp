#include "tests/faults/FileTry.h"

#include <QFile>
#include <QThread>
#include <iostream>
#include <map>

#include "dossier/model/SampleCase.h"

namespace brivane::faults {
namespace {

using dossier::DossierFile;

constexpr int kTries = 100;
constexpr int kPatience = 60000;
constexpr Number kLong = 3000;  ///< edits after which no refusal comes

}  // namespace

Worker::Worker(const QString& file, Number from, const QStringList& fault) {
  process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process_.start(QStringLiteral(FILE_WORKER), QStringList{file, QString::number(from)} + fault);
  EXPECT_TRUE(process_.waitForStarted());
}

Worker::~Worker() {
  if (process_.state() == QProcess::NotRunning) return;
  process_.kill();
  process_.waitForFinished(kPatience);
}

bool Worker::Works() { return Read() && accepted_ > 0; }

void Worker::WaitForRefusal() {
  while (!refused_ && accepted_ < kLong && Read()) {
  }
}

void Worker::Kill() {
  process_.kill();
  EXPECT_TRUE(process_.waitForFinished(kPatience));
  while (Read()) {
  }
}

void Worker::Finish() {
  process_.closeWriteChannel();
  // One that has ended already is not waited for.
  EXPECT_TRUE(process_.state() == QProcess::NotRunning || process_.waitForFinished(kPatience));
  EXPECT_EQ(process_.exitStatus(), QProcess::NormalExit);
  while (Read()) {
  }
}

bool Worker::Read() {
  while (!process_.canReadLine()) {
    if (process_.state() == QProcess::NotRunning || !process_.waitForReadyRead(kPatience)) {
      if (!process_.canReadLine()) return false;
    }
  }
  const QByteArray line = process_.readLine().trimmed();
  if (line == "refused")
    refused_ = true;
  else if (line == "not opened")
    notOpened_ = true;
  else
    accepted_ = line.toInt();
  return true;
}

Try::Try(unsigned seed) : chance_(seed) { DossierFile::Maak(Path(), dossier::VoorbeeldDossier()); }

void Try::Wait(int most) {
  QThread::usleep(std::uniform_int_distribution<unsigned long>(0, static_cast<unsigned long>(most) * 1000)(chance_));
}

Number NumberIn(const QString& file) {
  const auto open = DossierFile::Open(file);
  EXPECT_TRUE(open->ControleerHeelheid().isEmpty());
  return open->Dossier()->FindKolom(0, 1)->Looptijd();
}

std::optional<dossier::OpeningProblem> Problem(const QString& file) {
  try {
    static_cast<void>(DossierFile::Open(file));
    return std::nullopt;
  } catch (const dossier::OpeningError& error) {
    return error.Problem();
  }
}

QString CopyOf(const Try& one, const char* name) {
  EXPECT_TRUE(QFile::copy(one.Path(), one.Path(name)));
  return one.Path(name);
}

void TryOften(const char* what, const std::function<std::string(Try&)>& body) {
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

}  // namespace brivane::faults
