#pragma once

#include <QString>
#include <functional>

#include "dossier/model/Gegevens.h"

namespace brivane::dossier {

/// Looks at what a killed program left beside a file, without changing any of it. Throws OpeningError where a log or
/// journal is not proved to belong to this very file, or where the file with its log is not whole. The caller holds
/// the file.
void CheckLeftOver(const QString& path);

/// What a file holds with the log that was left beside it, proved and whole, read without changing any of it. Throws
/// OpeningError and DatabaseError. The caller holds the file. `look` is handed the name of a file that alone holds all
/// of it, as long as it is there.
[[nodiscard]] DossierGegevens ReadUntouched(const QString& path, const std::function<void(const QString& whole)>& look);

/// Whether a log or journal stands under the name that a new file would have.
[[nodiscard]] bool LeftOverStands(const QString& path);

}  // namespace brivane::dossier
