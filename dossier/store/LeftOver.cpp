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
  explicit Copy(const QString& pad) {
    Take(pad, Path());
    Take(LogOf(pad), LogOf(Path()));
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
  if (before.empty()) return LeesDossier(file).gegevens == LeesDossier(together).gegevens;
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

/// Checks and reads all of it.
DossierGegevens ReadChecked(Database& database, const QString& pad) {
  ControleerInhoud(database, pad);
  DossierGegevens contents = LeesDossier(database).gegevens;
  CheckPossible(contents, pad);
  return contents;
}

/// The file with its log, in a copy.
DossierGegevens ReadCopy(const QString& pad) {
  const Copy copy(pad);
  Database together(copy.Path(), Access::ReadWrite);
  if (!IsProved(copy.Path(), together)) throw OpeningError(OpeningProblem::StrangeLog, pad);
  return ReadChecked(together, pad);
}

bool HasLog(const QString& pad) {
  // Whether what a journal holds is to be played back is not to be told from it.
  if (QFileInfo(RollbackJournalOf(pad)).size() > 0) throw OpeningError(OpeningProblem::StrangeLog, pad);
  return QFileInfo(LogOf(pad)).size() > 0;
}

}  // namespace

void CheckLeftOver(const QString& pad) {
  if (HasLog(pad)) static_cast<void>(ReadCopy(pad));
}

DossierGegevens ReadUntouched(const QString& pad) {
  if (HasLog(pad)) return ReadCopy(pad);
  Database database(pad, Access::Immutable);
  return ReadChecked(database, pad);
}

bool LeftOverStands(const QString& pad) {
  return QFileInfo::exists(LogOf(pad)) || QFileInfo::exists(RollbackJournalOf(pad));
}

}  // namespace brivane::dossier
