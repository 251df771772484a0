#include "tests/app/access/Pictures.h"

#include <QApplication>
#include <QDir>

#include "app/program/DarkPalette.h"

namespace brivane::app {

QPalette ContrastPalette() {
  QPalette palette(Qt::white, Qt::black, Qt::white, Qt::black, Qt::black, Qt::white, Qt::white, Qt::black, Qt::black);
  palette.setColor(QPalette::Highlight, Qt::yellow);
  palette.setColor(QPalette::HighlightedText, Qt::black);
  palette.setColor(QPalette::Link, Qt::yellow);
  palette.setColor(QPalette::ToolTipBase, Qt::black);
  palette.setColor(QPalette::ToolTipText, Qt::white);
  for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, QColor(0x3f, 0xf2, 0x3f));
  return palette;
}

bool TakePictures(QWidget& window, const std::string& folder, const std::string& size, const std::string& name) {
  const QStringList sides = QString::fromStdString(size).split('x');
  if (sides.size() != 2) return false;
  // The frame around a window and a bar of the desktop take a little.
  const QSize room = QSize(sides[0].toInt(), sides[1].toInt()) / window.devicePixelRatioF();
  if (window.parentWidget() == nullptr) window.resize(room);
  bool done = true;
  const QPalette before = QApplication::palette();
  const std::pair<const char*, QPalette> palettes[] = {
      {"light", before}, {"dark", DarkPalette()}, {"contrast", ContrastPalette()}};
  for (const auto& [kind, palette] : palettes) {
    QApplication::setPalette(palette);
    QApplication::processEvents();
    done = window.grab().save(
               QDir(QString::fromStdString(folder)).filePath(QString::fromStdString(name + '-' + kind + ".png"))) &&
           done;
  }
  return done;
}

}  // namespace brivane::app
