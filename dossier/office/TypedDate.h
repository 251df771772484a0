#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

/// A day as the words that a client is found by, and as somebody types it.
namespace brivane::dossier {

/// The words of a day: the day first, and the year first.
[[nodiscard]] QStringList DayWords(const QDate& day);

/// Takes the days out of what was typed, in any way of writing one and also where it is not finished ("12-3",
/// "12/03/78", "1978-03"), and answers for each the beginning of its word. What may still become several ("12-1":
/// January, or October) is left to the part before it, so that the one that is meant is found at every key.
[[nodiscard]] QStringList TakeDays(QString& typed);

}  // namespace brivane::dossier
