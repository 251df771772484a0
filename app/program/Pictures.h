#pragma once

#include <QDir>
#include <QWidget>

namespace brivane::app {

/// Paints a window into NAME-light.png and NAME-dark.png, in the palette of the program and in a dark one. False
/// where a picture cannot be written.
[[nodiscard]] bool TakePictures(QWidget& window, const QDir& folder, const QString& name);

}  // namespace brivane::app
