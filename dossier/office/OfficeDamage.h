#pragma once

#include <utility>

#include "dossier/model/Gegevens.h"
#include "dossier/office/OfficeError.h"
#include "dossier/store/Database.h"

/// What the office has of a client may be none that a case can be: whoever may edit can store it by another program.
namespace brivane::dossier {

/// What is told of it, with the place where that is known.
[[nodiscard]] OfficeError DamageInOffice(const DatabaseError& error);
/// The same of a loan file that is brought to the office.
[[nodiscard]] OfficeError DamageInFile(const DatabaseError& error);

/// Throws ContentsError with the place of a value that no edit writes.
void MustBePossible(const DossierGegevens& contents);

/// Runs what reads a client of the office, which throws OfficeError alone then.
template <class Read> auto Readable(Read&& read) -> decltype(read()) {
  try {
    return std::forward<Read>(read)();
  } catch (const DatabaseError& error) {
    throw DamageInOffice(error);
  }
}

}  // namespace brivane::dossier
