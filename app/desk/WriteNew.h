#pragma once

#include <QByteArray>
#include <QString>

namespace brivane::app {

/// Writes a file under a name that nothing has, complete or not at all, for its owner alone. Answers nothing where it
/// stands, else why not, in Dutch with the name.
[[nodiscard]] QString WriteNew(const QString& path, const QByteArray& bytes);

/// What the system's number for a failure means, and what to do about it: "de schijf is vol. Maak ruimte en probeer het
/// opnieuw."
[[nodiscard]] QString ReasonFor(int error);

/// A name in the folder that nothing has: the one asked for, else with a number after it: "Heuvel (2).pdf".
[[nodiscard]] QString FreeName(const QString& folder, const QString& name, const QString& suffix);

}  // namespace brivane::app
