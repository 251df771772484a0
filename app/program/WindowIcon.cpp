#include "app/program/WindowIcon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace brivane::app {
namespace {

/// On a square of 64.
void Draw(QPainter& painter) {
  const QColor cover(0x1f, 0x4e, 0x79);
  const QColor paper(0xfa, 0xfa, 0xf5);
  const QColor columns[] = {{0x5b, 0x9b, 0xd5}, {0x2e, 0x75, 0xb6}, {0xe0, 0x8a, 0x1e}};
  painter.setPen(Qt::NoPen);

  QPainterPath folder;
  folder.addRoundedRect(QRectF(4, 12, 56, 46), 5, 5);
  folder.addRoundedRect(QRectF(4, 6, 26, 14), 4, 4);
  painter.setBrush(cover);
  painter.drawPath(folder.simplified());

  painter.setBrush(paper);
  painter.drawRoundedRect(QRectF(10, 18, 44, 34), 2, 2);

  for (int number = 0; number < 3; ++number) {
    const double height = 10.0 + 8.0 * number;
    painter.setBrush(columns[number]);
    painter.drawRect(QRectF(15 + 13.0 * number, 48 - height, 9, height));
  }
}

}  // namespace

QIcon WindowIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 64.0, size / 64.0);
    Draw(painter);
    painter.end();
    icon.addPixmap(picture);
  }
  return icon;
}

}  // namespace brivane::app
