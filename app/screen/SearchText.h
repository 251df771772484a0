#pragma once

#include <QString>
#include <QStringList>

#include "dossier/model/Gegevens.h"

/// What a column is found by.
namespace brivane::app {

/// A text as it is compared: in small letters, without accents.
[[nodiscard]] QString Folded(const QString& text);

/// The words of what was typed, as they are compared.
[[nodiscard]] QStringList SearchWords(const QString& typed);

/// Everything of a column that can be read, as it is compared: its texts, the kind of product and of input, the
/// company, the amount with and without points, the term, and the day it starts. `company` is the text of its code.
[[nodiscard]] QString SearchText(const dossier::KolomGegevens& kolom, const QString& company);

/// A column is found where each word stands somewhere in its text.
[[nodiscard]] bool IsFound(const QString& text, const QStringList& words);

}  // namespace brivane::app
