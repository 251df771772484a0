#pragma once

#include "dossier/model/Gegevens.h"

namespace brivane::sums {

/// The case of docs/overview-worked-out.md: twelve columns that use every field, in the current loan (1 to 8), a new
/// loan with versions of 1 and 3 and a column 9 of its own, and a second new loan with a column 10 of its own.
[[nodiscard]] dossier::DossierGegevens WorkedOutCase();

}  // namespace brivane::sums
