#pragma once

#include <vector>

#include "dossier/model/DossierControle.h"

namespace brivane::app {

/// Runs the complete checks of both controls and of the host over every column of a case, in the order of the
/// loans and columns, and answers what they find.
///
/// The case is not touched: a copy in memory is checked on controls without a screen, so nothing is written,
/// nobody is asked whether changes are to be taken over, and no box appears.
[[nodiscard]] std::vector<dossier::Finding> CheckAll(const dossier::Dossier& dossier, host::Date today);

}  // namespace brivane::app
