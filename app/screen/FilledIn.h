#pragma once

#include <QString>

class QDialog;

namespace brivane::app {

/// What a person has filled in in a window in front and not confirmed there, as text to read and copy: the rows of a
/// form with tabs between, the answers of a dialog a line each. Empty where nothing was changed.
[[nodiscard]] QString FilledIn(const QDialog& dialog);

}  // namespace brivane::app
