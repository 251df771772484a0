#pragma once

#include <QtGlobal>
#include <vector>

#include "dossier/store/Database.h"

namespace brivane::dossier {

/// Table `stand` names states of a file, each by a random number, the newest last. The file alone names the one that it
/// stands in; with a log it must be among those that the log knows, or the log is of another file or of an earlier copy.
///
/// The log knows its newest state and those that the file itself may stand in: the one in which the log was last worked
/// off, and each in which that was tried since. The few rows stay on one page, so that they can be read in whatever
/// state a program that was killed at working off has left the other pages.

/// The states that a connection sees; none in a file of a version that has no such table. Throws DatabaseError, with
/// code Corrupt where no program wrote what stands there.
[[nodiscard]] std::vector<qint64> ReadStates(Database& database);

/// In which states the file itself may stand before the one that is added.
enum class FileStandsIn {
  Newest,       ///< the log is worked off: what was before counts no more
  NewestMaybe,  ///< working off was tried
  Earlier,      ///< the newest was in the log alone: the one that is added takes its place
};

/// Adds a state, as the last part of a transaction.
void AddState(Database& database, FileStandsIn before);

}  // namespace brivane::dossier
