#pragma once

#include <QtGlobal>
#include <vector>

#include "dossier/store/Database.h"

namespace brivane::dossier {

/// Table `stand` names the states that a file went through since its log was last worked off, each by a random number,
/// the newest last. The file alone names the one that it stands in; with a log it must be among those that the log
/// leads through, or the log is of another file or of an earlier copy.

/// The states that a connection sees; none in a file of a version that has no such table. Throws DatabaseError, with
/// code Corrupt where no program wrote what stands there.
[[nodiscard]] std::vector<qint64> ReadStates(Database& database);

/// Whether the log is worked off: what was before it counts no more.
enum class LogState { WorkedOff, Holds };

/// Adds a state, as the last part of a transaction.
void AddState(Database& database, LogState log);

}  // namespace brivane::dossier
