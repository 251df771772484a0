#pragma once

#include <QString>
#include <cstdint>

#include <brivane/host/model/ErrorRecord.h>

class QWidget;

namespace brivane::app {

/// What a question's buttons answer.
enum class Answer : std::uint8_t { Yes, No };

/// What stands in front of a window: a dialog over it, or the window itself. What comes up next stands above that.
[[nodiscard]] QWidget* InFront(QWidget* window);

/// Shows one message with an OK button over what is in front of `above`, and returns when it is closed.
void ShowMessage(QWidget* above, const QString& title, const QString& text);
/// Asks a question. "Ja" carries `yesText`; Escape and Enter answer no.
[[nodiscard]] Answer Ask(QWidget* above, const QString& title, const QString& text, const QString& yesText);
/// What a change that failed did to the screen.
enum class Consequence : std::uint8_t {
  None,
  Reloaded,  ///< it shows what is stored
  Kept       ///< the dialog that asked for the change is there, with what was filled in
};

/// The one box of an error report: what went wrong, and for support in which control, number and source.
void ShowFailure(QWidget* above, const host::ErrorRecord& error, Consequence consequence);

}  // namespace brivane::app
