#pragma once

#include <QString>

#include "dossier/store/Database.h"

namespace brivane::dossier {

/// Looks at a file before it is opened to work in, without changing it or leaving anything beside it. Throws
/// OpeningError where it is no loan file that this program can work in. The contents are only looked at where a
/// log stands beside the file; otherwise opening can do that without changing it.
///
/// Not to be called for a file that this process has open: reading it would let go of the lock on it.
void ControleerBestand(const QString& pad);

/// Checks the layout and the whole of an open file, reading only. Throws OpeningError for a file that is newer or
/// damaged, and DatabaseError where it cannot be read. A connection that cannot write passes over the constraints of
/// the rows; LeesDossier keeps to those itself.
void ControleerInhoud(Database& database, const QString& pad);

}  // namespace brivane::dossier
