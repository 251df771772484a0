#include "dossier/store/Bestandstest.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include "dossier/store/OpeningError.h"
#include "dossier/store/Schema.h"

namespace brivane::dossier {
namespace {

// Where an SQLite file's first page tells what it is.
constexpr qsizetype kHeaderSize = 100;
constexpr qsizetype kUserVersion = 60;
constexpr qsizetype kApplication = 68;
constexpr char kMagic[] = "SQLite format 3";

void ControleerHeader(const QString& pad) {
  QFile bestand(pad);
  if (!bestand.open(QIODevice::ReadOnly)) throw OpeningError(OpeningProblem::Unreadable, pad);
  const QByteArray header = bestand.read(kHeaderSize);
  if (header.isEmpty()) throw OpeningError(OpeningProblem::Empty, pad);
  // The closing zero byte is part of the mark.
  if (header.size() < kHeaderSize || !header.startsWith(QByteArray(kMagic, sizeof kMagic)) ||
      qFromBigEndian<quint32>(header.constData() + kApplication) != kApplicationId) {
    throw OpeningError(OpeningProblem::NotALoanFile, pad);
  }
  const auto versie = qFromBigEndian<qint32>(header.constData() + kUserVersion);
  if (versie > kSchemaVersion) throw OpeningError(OpeningProblem::Newer, pad);
  if (versie < 1) throw OpeningError(OpeningProblem::Damaged, pad);
}

/// The marks count as well as the rights: a file marked read-only stays so for an administrator.
bool Schrijfbaar(const QFileInfo& info) {
  return info.isWritable() && (info.permissions() & (QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther));
}

void ControleerInhoud(const QString& pad) {
  const bool log = QFileInfo::exists(pad + QStringLiteral("-wal"));
  const QString index = pad + QStringLiteral("-shm");
  const bool indexStond = QFileInfo::exists(index);
  bool heel = false;
  try {
    Database database(pad, log ? Access::ReadOnly : Access::Immutable);
    heel = database.Value(QStringLiteral("PRAGMA quick_check(1)")).toString() == QStringLiteral("ok");
    if (heel && database.Value(QStringLiteral("PRAGMA user_version")).toInt() > kSchemaVersion) {
      throw OpeningError(OpeningProblem::Newer, pad);
    }
  } catch (const DatabaseError& error) {
    if (error.Code() == SqliteCode::Busy) throw OpeningError(OpeningProblem::InUse, pad);
  }
  if (heel) return;
  if (!indexStond) QFile::remove(index);
  throw OpeningError(OpeningProblem::Damaged, pad);
}

}  // namespace

void ControleerBestand(const QString& pad) {
  const QFileInfo info(pad);
  if (!info.exists()) throw OpeningError(OpeningProblem::Missing, pad);
  if (info.isDir()) throw OpeningError(OpeningProblem::Directory, pad);
  ControleerHeader(pad);
  // The write-ahead log is kept in the same folder.
  if (!Schrijfbaar(info) || !Schrijfbaar(QFileInfo(info.absolutePath()))) {
    throw OpeningError(OpeningProblem::ReadOnly, pad);
  }
  ControleerInhoud(pad);
}

}  // namespace brivane::dossier
