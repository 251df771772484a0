#include "dossier/store/EarlierVersion.h"

#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include "dossier/store/FileCheck.h"
#include "dossier/store/NewFile.h"
#include "dossier/store/OpeningError.h"
#include "dossier/store/Schema.h"

namespace brivane::dossier {
namespace {

/// So many copies with other contents may stand there already.
constexpr int kMostNames = 99;

QByteArray BytesOf(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw OpeningError(OpeningProblem::DiskError, path);
  QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) throw OpeningError(OpeningProblem::DiskError, path);
  return bytes;
}

bool Write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() &&
         fsync(file.handle()) == 0;
}

bool Holds(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) && file.size() == bytes.size() && file.readAll() == bytes;
}

}  // namespace

QString EarlierVersionOf(const QString& path) { return path + QStringLiteral(".vorige-versie"); }

QString KeepEarlierVersion(const QString& path) {
  const QByteArray bytes = BytesOf(path);
  // Written beside its place and then given its name, so that no half copy ever has it.
  const QString unfinished = path + QStringLiteral(".") + QUuid::createUuid().toString(QUuid::Id128);
  const auto giveUp = [&] {
    QFile::remove(unfinished);
    throw OpeningError(OpeningProblem::NoEarlierVersion, path);
  };
  if (!MakePrivateFile(unfinished) || !Write(unfinished, bytes)) giveUp();
  for (int number = 1; number <= kMostNames; ++number) {
    QString name = number == 1 ? EarlierVersionOf(path) : EarlierVersionOf(path) + QStringLiteral("-%1").arg(number);
    switch (RenameToNew(unfinished, name)) {
      case Renamed::Done: return name;
      case Renamed::Failed: giveUp(); break;
      case Renamed::NameIsTaken: break;
    }
    // A program was killed between the copy and the bringing up to date.
    if (Holds(name, bytes)) {
      QFile::remove(unfinished);
      return name;
    }
  }
  giveUp();
  return {};
}

bool IsEarlierVersion(const QString& copy) {
  const std::optional<int> version = LoanFileVersion(copy);
  return version && *version < kSchemaVersion;
}

}  // namespace brivane::dossier
