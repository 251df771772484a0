#pragma once

#include <QString>

#include "app/desk/PassingDialog.h"

class QLineEdit;

namespace brivane::app {

/// Asks for the password of an office. It stands in this dialog alone until it is handed over: nothing is remembered of
/// it, also not where the program has to end.
class PasswordDialog final : public PassingDialog {
 public:
  /// Why it is asked for.
  enum class Because { Wanted, Wrong };

  PasswordDialog(const QString& words, Because because, QWidget* above);

  [[nodiscard]] QString Typed() const;

 private:
  QLineEdit* box_;
};

}  // namespace brivane::app
