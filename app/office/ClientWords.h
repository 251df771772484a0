#pragma once

#include <QDateTime>
#include <QString>

#include "dossier/office/Office.h"

/// A client of an office in the words of a list.
namespace brivane::app {

/// "17-5-1980"; empty where it is not known.
[[nodiscard]] QString BirthText(qint64 days);
/// "10:32" of today, "21 november 10:32" of another day, with its year where that is another.
[[nodiscard]] QString MomentText(const QDateTime& moment, const QDateTime& now);
/// "Anna Aalders, sinds 10:32"; empty where nobody works in it.
[[nodiscard]] QString EditorText(const dossier::ClientLine& line, const QDateTime& now);
/// "10:32 door Anna Aalders"; empty where nothing was changed.
[[nodiscard]] QString ChangeText(const dossier::ClientLine& line, const QDateTime& now);
/// All of it, as a screen reader tells the row.
[[nodiscard]] QString LineText(const dossier::ClientLine& line, const QDateTime& now);

}  // namespace brivane::app
