#pragma once

#include <string>
#include <vector>

#include "dossier/model/Gegevens.h"
#include "tests/faults/Workbench.h"

namespace brivane::random_sessions {

using Differences = std::vector<std::string>;

/// What the boxes show otherwise than the record has it, right after binding. Worked out from the record alone.
[[nodiscard]] Differences AfterBinding(faults::Workbench& bench, const dossier::KolomGegevens& record, bool partner);

/// What holds at every moment between two actions: which controls can be reached, and what choosing has written.
[[nodiscard]] Differences AtAnyMoment(faults::Workbench& bench, const dossier::KolomGegevens& record);

}  // namespace brivane::random_sessions
