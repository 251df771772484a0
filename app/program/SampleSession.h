#pragma once

#include <QString>

namespace brivane::dossier {

/// Plays a sample session on a loan file in the real window: fills in columns, leaves one, opens the
/// year-by-year form. Leaves pictures (light and dark) and `transcript.jsonl` in a folder.
///
/// Answers what went wrong, in English; empty when nothing did. The user's settings and log stay untouched.
[[nodiscard]] QString SpeelSessie(const QString& uitvoermap, const QString& bestand);

}  // namespace brivane::dossier
