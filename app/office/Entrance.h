#pragma once

#include <QString>
#include <memory>
#include <optional>

#include "dossier/office/OfficeConnection.h"

class QWidget;

namespace brivane::app {

/// An office that this program is in.
struct Entrance {
  QString words;
  /// What was asked for; it stands nowhere else and goes with the program.
  QString password;
  std::shared_ptr<dossier::OfficeConnection> office;
};

/// Enters an office, without a window standing still while the server does not answer. Where it wants a password that
/// libpq does not find, that is asked for; `password` is one that was asked for before. Tells why it cannot be; nothing
/// then, or where it was put away.
[[nodiscard]] std::optional<Entrance> EnterOffice(QWidget* above, const QString& words, QString password = {});

/// Asks which office, those of late first, and enters it.
[[nodiscard]] std::optional<Entrance> AskOffice(QWidget* above);

}  // namespace brivane::app
