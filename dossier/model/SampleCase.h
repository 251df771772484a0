#pragma once

#include "dossier/model/Gegevens.h"

namespace brivane::dossier {

/// The case that a first start shows: a couple with a current loan of six free columns and two loans of the
/// new situation, one of which deviates in one column.
[[nodiscard]] DossierGegevens VoorbeeldDossier();

/// A case to begin with: an unnamed applicant, an empty loan of the current situation and one of the new, and the
/// code table of companies.
[[nodiscard]] DossierGegevens LeegDossier();

}  // namespace brivane::dossier
