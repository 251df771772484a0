#pragma once

#include "dossier/model/Gegevens.h"
#include "dossier/store/Database.h"

namespace brivane::dossier {

/// Everything a loan file holds, and the highest of its keys and places.
struct StoredDossier {
  DossierGegevens gegevens;
  Sleutel hoogste = 0;
};

/// Reads a loan file. Throws DatabaseError where the file cannot be read, and with code Corrupt where
/// it holds what no program of this version wrote: a number out of its range, a part that is missing.
[[nodiscard]] StoredDossier LeesDossier(Database& database);

}  // namespace brivane::dossier
