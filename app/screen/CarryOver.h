#pragma once

#include <cstdint>
#include <string>

#include "dossier/model/Dossier.h"

namespace brivane::app {

/// What "Ja" to the question of carrying over removes from a case, a line each; empty where that is nothing. `Vrij_Id`
/// is the column that was changed.
///
///     "Ja" verwijdert:
///     • 1 afwijkende kolom in Nieuwe lening 1: Kinderopvang, € 310,00 per maand
[[nodiscard]] std::string RemovedByCarryOver(const dossier::Dossier& dossier, std::int16_t Vrij_Id);

}  // namespace brivane::app
