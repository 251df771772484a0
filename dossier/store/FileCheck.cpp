#include "dossier/store/FileCheck.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include "dossier/store/OpeningError.h"
#include "dossier/store/Reader.h"
#include "dossier/store/Schema.h"

namespace brivane::dossier {
namespace {

// Where an SQLite file's first page tells what it is.
constexpr qsizetype kHeaderSize = 100;
constexpr qsizetype kPageSize = 16;
constexpr qsizetype kWriteFormat = 18;
constexpr qsizetype kReadFormat = 19;
constexpr qsizetype kPageCount = 28;
constexpr qsizetype kUserVersion = 60;
constexpr qsizetype kApplication = 68;
constexpr char kMagic[] = "SQLite format 3";

/// 1 without and 2 with a write-ahead log. SQLite opens a file of a later write format, and then writes nothing to it.
bool IsSchrijfbaarFormaat(const QByteArray& header) {
  const char formaat = header[kWriteFormat];
  return (formaat == 1 || formaat == 2) && header[kReadFormat] == formaat;
}

QByteArray ControleerHeader(const QString& pad) {
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
  if (versie < 1 || !IsSchrijfbaarFormaat(header)) throw OpeningError(OpeningProblem::Damaged, pad);
  return header;
}

/// The marks count as well as the rights: a file marked read-only stays so for an administrator.
bool Schrijfbaar(const QFileInfo& info) {
  return info.isWritable() && (info.permissions() & (QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther));
}

/// All pages that the header speaks of are there. SQLite reads what was cut off as zeros.
bool IsVolledig(const QByteArray& header, qint64 lengte) {
  const qint64 bytes = qFromBigEndian<quint16>(header.constData() + kPageSize);
  const qint64 pagina = bytes == 1 ? 65536 : bytes;
  return pagina > 0 && lengte >= pagina * qFromBigEndian<quint32>(header.constData() + kPageCount);
}

/// The index that reading a write-ahead log leaves beside it, removed again.
class LogIndex {
 public:
  explicit LogIndex(const QString& pad) : naam_(pad + QStringLiteral("-shm")), stond_(QFileInfo::exists(naam_)) {}
  LogIndex(const LogIndex&) = delete;
  LogIndex& operator=(const LogIndex&) = delete;
  ~LogIndex() {
    if (!stond_) QFile::remove(naam_);
  }

 private:
  QString naam_;
  bool stond_;
};

/// Looks at the contents through a connection that cannot write.
void BekijkInhoud(const QString& pad, Access access) {
  const LogIndex index(pad);
  try {
    Database database(pad, access);
    ControleerInhoud(database, pad);
    static_cast<void>(LeesDossier(database));
  } catch (const DatabaseError& error) {
    throw OpeningError(error.Code() == SqliteCode::Busy ? OpeningProblem::InUse : OpeningProblem::Damaged, pad);
  }
}

}  // namespace

void ControleerBestand(const QString& pad) {
  const QFileInfo info(pad);
  if (!info.exists()) throw OpeningError(OpeningProblem::Missing, pad);
  if (info.isDir()) throw OpeningError(OpeningProblem::Directory, pad);
  if (!info.isFile()) throw OpeningError(OpeningProblem::NotALoanFile, pad);
  const QByteArray header = ControleerHeader(pad);
  // The write-ahead log is kept in the same folder.
  if (!Schrijfbaar(info) || !Schrijfbaar(QFileInfo(info.absolutePath()))) {
    throw OpeningError(OpeningProblem::ReadOnly, pad);
  }
  // With a log beside it the file alone is not what counts: a program was killed, or is still at work.
  const bool log = QFileInfo::exists(pad + QStringLiteral("-wal"));
  if (!log && !IsVolledig(header, info.size())) throw OpeningError(OpeningProblem::Damaged, pad);
  // Opening to work works off what stands beside the file, so the contents are looked at before.
  if (log) {
    BekijkInhoud(pad, Access::ReadOnly);
  } else if (QFileInfo::exists(pad + QStringLiteral("-journal"))) {
    BekijkInhoud(pad, Access::Immutable);
  }
}

void ControleerInhoud(Database& database, const QString& pad) {
  const int versie = database.Value(QStringLiteral("PRAGMA user_version")).toInt();
  if (versie > kSchemaVersion) throw OpeningError(OpeningProblem::Newer, pad);
  // The layout comes first: SQLite holds the rows against the constraints that the file itself gives.
  if (versie < 1 || !HasSchema(database, versie) ||
      database.Value(QStringLiteral("PRAGMA integrity_check(1)")).toString() != QStringLiteral("ok")) {
    throw OpeningError(OpeningProblem::Damaged, pad);
  }
}

}  // namespace brivane::dossier
