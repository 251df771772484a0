#include "dossier/store/LeftOver.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>

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
  explicit Copy(const QString& path) {
    Take(path, Path());
    Take(LogOf(path), LogOf(Path()));
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

/// The file with its log, in a copy.
DossierGegevens ReadCopy(const QString& path, const std::function<void(const QString&)>& look = nullptr) {
  const Copy copy(path);
  Database together(copy.Path(), Access::ReadWrite);
  if (!IsProved(copy.Path(), together)) throw OpeningError(OpeningProblem::StrangeLog, path);
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
