#include "dossier/store/FileCheck.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <cerrno>

#include "dossier/store/HeldFile.h"
#include "dossier/store/OpeningError.h"
#include "dossier/store/Possible.h"
#include "dossier/store/Schema.h"
#include "dossier/store/StateChain.h"
#include "dossier/store/WholeCheck.h"

namespace brivane::dossier {
namespace {

// Where an SQLite file's first page tells what it is.
constexpr qsizetype kHeaderSize = 100;
constexpr qsizetype kPageSizeAt = 16;
constexpr qsizetype kWriteFormat = 18;
constexpr qsizetype kReadFormat = 19;
constexpr qsizetype kPageCount = 28;
constexpr qsizetype kEncoding = 56;
constexpr qsizetype kUserVersion = 60;
constexpr qsizetype kApplication = 68;
constexpr char kMagic[] = "SQLite format 3";

/// 1 without and 2 with a write-ahead log. SQLite opens a file of a later write format, and then writes nothing to it.
bool IsSchrijfbaarFormaat(const QByteArray& header) {
  const char formaat = header[kWriteFormat];
  return (formaat == 1 || formaat == 2) && header[kReadFormat] == formaat;
}

/// SQLite looks at the last two bits of the encoding alone. Where they are zero it reads the texts as UTF-8, and
/// refuses to go on as soon as the layout changes: halfway through bringing the file up to date.
bool IsUtf8(const QByteArray& header) {
  constexpr quint32 kUtf8 = 1;
  return (qFromBigEndian<quint32>(header.constData() + kEncoding) & 3U) == kUtf8;
}

bool BeginsAsALoanFile(const QByteArray& header) {
  // The closing zero byte is part of the mark.
  return header.size() >= kHeaderSize && header.startsWith(QByteArray(kMagic, sizeof kMagic)) &&
         qFromBigEndian<quint32>(header.constData() + kApplication) == kApplicationId;
}

QByteArray ControleerHeader(const QString& pad) {
  QFile bestand(pad);
  if (!bestand.open(QIODevice::ReadOnly)) {
    const bool allowed = eaccess(QFile::encodeName(pad).constData(), R_OK) == 0;
    throw OpeningError(allowed ? OpeningProblem::DiskError : OpeningProblem::Unreadable, pad);
  }
  QByteArray header = bestand.read(kHeaderSize);
  if (bestand.error() != QFileDevice::NoError) throw OpeningError(OpeningProblem::DiskError, pad);
  if (header.isEmpty()) throw OpeningError(OpeningProblem::Empty, pad);
  if (!BeginsAsALoanFile(header)) {
    throw OpeningError(OpeningProblem::NotALoanFile, pad);
  }
  const auto versie = qFromBigEndian<qint32>(header.constData() + kUserVersion);
  if (versie > kSchemaVersion) throw OpeningError(OpeningProblem::Newer, pad);
  if (versie < 1 || !IsSchrijfbaarFormaat(header) || !IsUtf8(header)) {
    throw OpeningError(OpeningProblem::Damaged, pad);
  }
  return header;
}

/// The marks count as well as the rights: a file marked read-only stays so for an administrator.
bool Schrijfbaar(const QString& pad) {
  struct stat file {};
  const QByteArray name = QFile::encodeName(pad);
  constexpr mode_t kAnybody = S_IWUSR | S_IWGRP | S_IWOTH;
  return stat(name.constData(), &file) == 0 && (file.st_mode & kAnybody) != 0 && eaccess(name.constData(), W_OK) == 0;
}

qint64 PageSizeOf(const QByteArray& header) {
  const qint64 bytes = qFromBigEndian<quint16>(header.constData() + kPageSizeAt);
  return bytes == 1 ? 65536 : bytes;
}

/// The bytes of all pages that the header speaks of.
qint64 WholeLength(const QByteArray& header) {
  return PageSizeOf(header) * qFromBigEndian<quint32>(header.constData() + kPageCount);
}

/// SQLite reads what was cut off as zeros.
bool IsVolledig(const QByteArray& header, qint64 lengte) {
  return PageSizeOf(header) > 0 && lengte >= WholeLength(header);
}

}  // namespace

void CheckName(const QString& pad) {
  struct stat file {};
  if (stat(QFile::encodeName(pad).constData(), &file) != 0) {
    throw OpeningError(errno == EACCES                                         ? OpeningProblem::Unreadable
                       : errno == ENOENT || errno == ENOTDIR || errno == ELOOP ? OpeningProblem::Missing
                                                                               : OpeningProblem::DiskError,
                       pad);
  }
  if (S_ISDIR(file.st_mode)) throw OpeningError(OpeningProblem::Directory, pad);
  if (!S_ISREG(file.st_mode)) throw OpeningError(OpeningProblem::NotALoanFile, pad);
  if (file.st_size > kMostFile) throw OpeningError(OpeningProblem::TooLarge, pad);
  if (eaccess(QFile::encodeName(pad).constData(), R_OK) != 0) throw OpeningError(OpeningProblem::Unreadable, pad);
  // The log of a session under the other name would not be found.
  if (file.st_nlink > 1) throw OpeningError(OpeningProblem::SecondName, pad);
}

std::optional<int> LoanFileVersion(const QString& pad) {
  QFile file(pad);
  if (!QFileInfo(pad).isFile() || !file.open(QIODevice::ReadOnly)) return std::nullopt;
  const QByteArray header = file.read(kHeaderSize);
  if (!BeginsAsALoanFile(header)) return std::nullopt;
  return qFromBigEndian<qint32>(header.constData() + kUserVersion);
}

bool LooksLikeALoanFile(const QString& pad) { return LoanFileVersion(pad).has_value(); }

bool IsWritable(const QString& pad) { return Schrijfbaar(pad) && Schrijfbaar(QFileInfo(pad).absolutePath()); }

void CheckHeader(const QString& pad) {
  const QByteArray header = ControleerHeader(pad);
  // With a log beside it the file alone is not what counts.
  if (QFileInfo(LogOf(pad)).size() == 0 && !IsVolledig(header, QFileInfo(pad).size())) {
    throw OpeningError(OpeningProblem::Damaged, pad);
  }
}

qint64 PageSize(const QString& pad) { return PageSizeOf(ControleerHeader(pad)); }

void LengthenAsItsHeaderSays(const QString& copy) {
  const QByteArray header = ControleerHeader(copy);
  if (IsVolledig(header, QFileInfo(copy).size()) || WholeLength(header) > kMostFile) return;
  const bool lengthened =
      QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner) && QFile::resize(copy, WholeLength(header));
  if (!lengthened) throw OpeningError(OpeningProblem::CannotCopy, copy);
}

void CheckPossible(const DossierGegevens& contents, const QString& pad) {
  if (const auto place = FirstImpossible(contents)) {
    throw OpeningError(OpeningProblem::Impossible, pad, QString::fromStdString(*place));
  }
}

StoredDossier ReadChecked(Database& database, const QString& pad) {
  const int versie = database.Value(QStringLiteral("PRAGMA user_version")).toInt();
  if (versie > kSchemaVersion) throw OpeningError(OpeningProblem::Newer, pad);
  // The layout comes first: SQLite holds the rows against the constraints that the file itself gives.
  if (versie < 1 || !HasSchema(database, versie)) throw OpeningError(OpeningProblem::Damaged, pad);
  // With a log beside it the file alone is not what is read.
  std::optional<CheckBeside> beside;
  if (QFileInfo(LogOf(pad)).size() == 0) beside.emplace(pad, versie);
  const auto check = [&] { beside ? beside->Verdict() : CheckWhole(database, versie, pad); };
  StoredDossier read;
  try {
    // Never after the check, which has no bound of its own: reading ends where a case is too large.
    read = ReadDossier(database);
  } catch (const ContentsError& error) {
    // Where the file is damaged, that is why.
    if (error.Which() != ContentsError::What::Size) check();
    throw;
  }
  check();
  static_cast<void>(ReadStates(database));
  CheckPossible(read.gegevens, pad);
  return read;
}

}  // namespace brivane::dossier
