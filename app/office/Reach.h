#pragma once

#include <QString>
#include <optional>

#include "dossier/office/OfficeError.h"

class QWidget;

namespace brivane::app {

/// What came of reaching an office.
struct Reached {
  /// A person did not want to wait for it.
  bool put_away = false;
  /// Why not; nothing where it lets one in.
  std::optional<dossier::OfficeError> failure{};
};

/// Finds out whether an office lets one in. Where that takes longer than a moment a window says what is going on, and
/// can be put away at once, whatever the server does.
[[nodiscard]] Reached Reach(QWidget* above, const QString& words, const QString& password);

}  // namespace brivane::app
