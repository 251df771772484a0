#pragma once

#include <vector>

#include "dossier/store/CaseRows.h"
#include "dossier/store/History.h"

namespace brivane::dossier {

/// Brings rows from what each entry says was before to what it says is after, as a part of a transaction in which
/// foreign keys are looked at when it ends. Throws DatabaseError, with code Corrupt where a row is not as it was
/// before.
void BringOver(CaseRows& rows, std::vector<Entry> entries);

}  // namespace brivane::dossier
