#pragma once

#include <QString>
#include <optional>

#include "app/desk/PassingDialog.h"

class QLineEdit;

namespace brivane::app {

/// Asks for the password of an office. It stands in this dialog alone until it is handed over: nothing is remembered of
/// it, also not where the program has to end.
class PasswordDialog final : public PassingDialog {
 public:
  /// Why it is asked for.
  enum class Because {
    Wanted,
    Wrong,
    Outdated  ///< the one that was given before was good then
  };

  PasswordDialog(const QString& words, Because because, QWidget* above);

  [[nodiscard]] QString Typed() const;

 private:
  QLineEdit* box_;
};

/// Asks; nothing where it was put away.
[[nodiscard]] std::optional<QString> AskPassword(QWidget* above, const QString& words, PasswordDialog::Because because);

}  // namespace brivane::app
