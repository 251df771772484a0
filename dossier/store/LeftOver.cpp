#include "dossier/store/LeftOver.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>

#include "dossier/store/EarlierVersion.h"
#include "dossier/store/FileCheck.h"
#include "dossier/store/HeldFile.h"
#include "dossier/store/OpeningError.h"
#include "dossier/store/Reader.h"
#include "dossier/store/StateChain.h"

namespace brivane::dossier {
namespace {

/// A copy of a file and its log in a folder of the user's alone: reading a file with its log works the log into it.
class Copy {
 public:
  Copy(const QString& file, const QString& log) {
    Take(file, Path());
    Take(log, LogOf(Path()));
    LengthenAsItsHeaderSays(Path());
  }
  [[nodiscard]] QString Path() const { return folder_.filePath(QStringLiteral("kopie")); }

 private:
  void Take(const QString& from, const QString& to) const {
    if (!folder_.isValid() || !QFile::copy(from, to)) throw OpeningError(OpeningProblem::CannotCopy, from);
  }

  QTemporaryDir folder_;
};

/// Whether the log leads on from the file that stands before it. A file of a version that names no states proves
/// nothing; its log may be worked off where that changes nothing: a program was killed while it brought the file up to
/// a newer version.
bool Belongs(Database& file, Database& together) {
  const std::vector<qint64> before = ReadStates(file);
  const std::vector<qint64> after = ReadStates(together);
  if (before.empty()) return ReadDossier(file).gegevens == ReadDossier(together).gegevens;
  return std::find(after.begin(), after.end(), before.back()) != after.end();
}

bool IsProved(const QString& copy, Database& together) {
  try {
    Database file(copy, Access::Immutable);
    return Belongs(file, together);
  } catch (const DatabaseError& error) {
    // Pages of two files make no whole one.
    if (!error.IsDamage()) throw;
    return false;
  }
}

/// Whether each page of a file is that page of one of two others.
bool IsMadeOf(const QString& path, const QString& one, const QString& other) {
  QFile files[] = {QFile(path), QFile(one), QFile(other)};
  for (QFile& file : files) {
    if (!file.open(QIODevice::ReadOnly)) throw OpeningError(OpeningProblem::DiskError, path);
  }
  const qint64 page = PageSize(path);
  while (!files[0].atEnd()) {
    const QByteArray mixed = files[0].read(page);
    if (const QByteArray first = files[1].read(page), second = files[2].read(page); mixed != first && mixed != second) {
      return false;
    }
  }
  return true;
}

/// Whether the log brings up to date the file of an earlier layout whose copy stands beside it, and the file is what a
/// program leaves that is killed while it works that log off: each page stands as it was or as the log has it.
bool BringsUpToDate(const QString& path) {
  const QString earlier = EarlierVersionOf(path);
  if (!IsEarlierVersion(earlier)) return false;
  const Copy copy(earlier, LogOf(path));
  {
    Database before(earlier, Access::Immutable);
    Database after(copy.Path(), Access::ReadWrite);
    if (ReadDossier(before).gegevens != ReadDossier(after).gegevens) return false;
    after.Run(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
  }
  return IsMadeOf(path, earlier, copy.Path());
}

/// The file with its log, in a copy.
DossierGegevens ReadCopy(const QString& path, const std::function<void(const QString&)>& look = nullptr) {
  const Copy copy(path, LogOf(path));
  Database together(copy.Path(), Access::ReadWrite);
  if (!IsProved(copy.Path(), together) && !BringsUpToDate(path)) throw OpeningError(OpeningProblem::StrangeLog, path);
  DossierGegevens contents = ReadChecked(together, path).gegevens;
  if (look) {
    together.Run(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
    look(copy.Path());
  }
  return contents;
}

bool HasLog(const QString& path) {
  // Whether what a journal holds is to be played back is not to be told from it.
  if (QFileInfo(RollbackJournalOf(path)).size() > 0) throw OpeningError(OpeningProblem::StrangeLog, path);
  return QFileInfo(LogOf(path)).size() > 0;
}

}  // namespace

void CheckLeftOver(const QString& path) {
  if (HasLog(path)) static_cast<void>(ReadCopy(path));
}

DossierGegevens ReadUntouched(const QString& path, const std::function<void(const QString& whole)>& look) {
  if (HasLog(path)) return ReadCopy(path, look);
  Database database(path, Access::Immutable);
  DossierGegevens contents = ReadChecked(database, path).gegevens;
  look(path);
  return contents;
}

bool LeftOverStands(const QString& path) {
  return QFileInfo::exists(LogOf(path)) || QFileInfo::exists(RollbackJournalOf(path));
}

}  // namespace brivane::dossier
