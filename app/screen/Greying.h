#pragma once

#include <QString>

class QAction;

namespace brivane::app {

/// Enables an action, or makes it grey and has its tip say why. `why` is empty for an action that can be done now.
void SetGrey(QAction& action, const QString& why);

}  // namespace brivane::app
