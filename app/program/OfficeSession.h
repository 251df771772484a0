#pragma once

#include <QString>

namespace brivane::app {

/// The offices of the session: two advisers of one office, and an account that may close its database to them,
/// connected to another.
struct OfficeSessionWords {
  QString first;
  QString second;
  QString manager;
};

/// Plays two advisers at one client of a trial office in two windows side by side: lease, reading along, asking,
/// handing over, the connection lost and back. Leaves a picture of each, light and dark. Answers what was not done as
/// it should; empty where all was.
[[nodiscard]] QString PlayOfficeSession(const QString& outputFolder, const OfficeSessionWords& words);

}  // namespace brivane::app
