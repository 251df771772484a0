#pragma once

#include <QString>

namespace brivane::dossier {

/// Looks at a file before it is opened to work in, without changing it or leaving anything beside it. Throws
/// OpeningError where it is no loan file that this program can work in. Whether it is in use is only seen where
/// a write-ahead log stands beside it; opening decides that.
///
/// Not to be called for a file that this process has open: reading it would let go of the lock on it.
void ControleerBestand(const QString& pad);

}  // namespace brivane::dossier
