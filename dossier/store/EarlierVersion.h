#pragma once

#include <QString>

namespace brivane::dossier {

/// A file of an older layout is brought up to date when it is opened. Until the first change is stored, a copy of it as
/// it was stands beside it, so that the older program can still be gone back to.

/// The name of that copy: "klant.dossier.vorige-versie".
[[nodiscard]] QString EarlierVersionOf(const QString& path);

/// Copies a file that the caller holds, and whose log is worked off, for its owner alone; a name that is taken by
/// something else gets a number. Answers the name of the copy. Throws OpeningError where it cannot be made.
[[nodiscard]] QString KeepEarlierVersion(const QString& path);

/// Whether a file is a loan file of a layout before this program's: such a copy.
[[nodiscard]] bool IsEarlierVersion(const QString& copy);

}  // namespace brivane::dossier
