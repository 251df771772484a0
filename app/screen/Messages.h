#pragma once

#include <QString>
#include <cstdint>

#include "host/model/ErrorRecord.h"

class QWidget;

namespace brivane::dossier {

/// What a question's buttons answer.
enum class Antwoord : std::uint8_t { Ja, Nee };

/// Shows one message with an OK button over `boven` and returns when it is closed.
void ToonMelding(QWidget* boven, const QString& titel, const QString& tekst);
/// Asks a question. "Ja" carries `jaTekst`; Escape and Enter answer no.
[[nodiscard]] Antwoord Vraag(QWidget* boven, const QString& titel, const QString& tekst, const QString& jaTekst);
/// What a failure did to the screen.
enum class Gevolg : std::uint8_t { Geen, Herladen };

/// The one box of an error report: what went wrong, and for support in which control, number and source.
void ToonFout(QWidget* boven, const host::ErrorRecord& fout, Gevolg gevolg);

}  // namespace brivane::dossier
