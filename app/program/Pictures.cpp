#include "app/program/Pictures.h"

#include <QApplication>

#include "app/program/DarkPalette.h"

namespace brivane::app {
namespace {

bool TakePicture(QWidget& window, const QString& file) {
  // Laid out and painted as it would be by now.
  QApplication::processEvents();
  return window.grab().save(file);
}

}  // namespace

bool TakePictures(QWidget& window, const QDir& folder, const QString& name) {
  const QPalette palette = QApplication::palette();
  const bool light = TakePicture(window, folder.filePath(name + QStringLiteral("-light.png")));
  QApplication::setPalette(DarkPalette());
  const bool dark = TakePicture(window, folder.filePath(name + QStringLiteral("-dark.png")));
  QApplication::setPalette(palette);
  return light && dark;
}

}  // namespace brivane::app
