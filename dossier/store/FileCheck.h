#pragma once

#include <QString>
#include <optional>

#include "dossier/model/Gegevens.h"
#include "dossier/store/Database.h"
#include "dossier/store/Reader.h"

namespace brivane::dossier {

/// What a name stands for, before the file is opened. Throws OpeningError where it can be no loan file.
void CheckName(const QString& pad);

/// Whether a file begins as a loan file does, whole or not.
[[nodiscard]] bool LooksLikeALoanFile(const QString& pad);

/// The version of its layout that such a file names; nothing where it is no loan file.
[[nodiscard]] std::optional<int> LoanFileVersion(const QString& pad);

/// Neither the file nor its folder is marked or given to be read only.
[[nodiscard]] bool IsWritable(const QString& pad);

/// Looks at the first page of a file, and at its length where no log stands beside it. Throws OpeningError where it is
/// no loan file that this program can work in. The caller holds the file.
void CheckHeader(const QString& pad);

/// The bytes of a page of a loan file; 0 where it names none.
[[nodiscard]] qint64 PageSize(const QString& pad);

/// Gives the copy of a file the length that its first page speaks of. Where a program was killed at working off its
/// log, the pages after it may not have come into the file, and SQLite reads none of one that is too short. Throws
/// OpeningError where there is no room.
void LengthenAsItsHeaderSays(const QString& copy);

/// Throws OpeningError with the place of a value that no edit writes.
void CheckPossible(const DossierGegevens& contents, const QString& pad);

/// Reads what an open file holds, and checks its layout, the whole of the case and, where that is short, of its
/// history; a long history is looked at when it is used. Reads only. Throws OpeningError for a file that is newer,
/// damaged or larger than a case may be, and DatabaseError where it cannot be read; which of them does not hang on
/// whether the check or the reading is done first.
[[nodiscard]] StoredDossier ReadChecked(Database& database, const QString& pad);

}  // namespace brivane::dossier
