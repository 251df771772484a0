#pragma once

#include "replay/document/Document.h"

namespace brivane::replay {

/// Reads `dossier`; what is left out has its default. Throws BadInput.
[[nodiscard]] dossier::DossierGegevens ReadDossier(const Value& value);

}  // namespace brivane::replay
