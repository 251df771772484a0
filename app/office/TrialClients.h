#pragma once

#include "dossier/model/Gegevens.h"

namespace brivane::app {

/// A made-up client of a trial office, the same for a number each time: one or two persons, and some columns with
/// companies that are none.
[[nodiscard]] dossier::DossierGegevens TrialClient(int number);

}  // namespace brivane::app
