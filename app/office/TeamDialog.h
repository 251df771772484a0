#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "dossier/office/Office.h"

class QWidget;

namespace brivane::app {

/// Which team of an office a client is brought into. A single one is not asked for; of more that of the last time is
/// offered, else the first. Nothing where it was put away. `teams` has one at least.
[[nodiscard]] std::optional<dossier::Team> AskTeam(QWidget* above, const QString& office,
                                                   const std::vector<dossier::Team>& teams, const QString& client);

}  // namespace brivane::app
