#include <QPainter>
#include <QPixmap>

#include <brivane/designer/Icon.h>

namespace brivane::designer {
namespace {

constexpr QColor kInk(0x1f, 0x4e, 0x79);
constexpr QColor kPaper(0xfa, 0xfa, 0xf5);
constexpr QColor kAccent(0xe0, 0x8a, 0x1e);

/// On a square of 24.
void Draw(QPainter& painter, Subject subject) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(kInk);
  painter.drawRoundedRect(QRectF(2, 2, 20, 20), 2, 2);
  painter.setBrush(kPaper);
  painter.drawRect(QRectF(3.5, 7, 17, 13.5));
  for (int line = 0; line < 3; ++line) {
    const double top = 8.5 + 4.0 * line;
    painter.setBrush(kInk);
    painter.drawRect(QRectF(5, top + 0.75, 5, 1.5));
    if (subject == Subject::Editor) {
      painter.setBrush(line == 0 ? kAccent : kInk.lighter(220));
      painter.drawRect(QRectF(11.5, top, 7.5, 3));
    } else {
      for (const bool yes : {true, false}) {
        painter.setBrush(yes == (line == 0) ? kAccent : kInk.lighter(220));
        painter.drawEllipse(QRectF(yes ? 12 : 16, top, 3, 3));
      }
    }
  }
}

}  // namespace

QIcon Icon(Subject subject) {
  QIcon icon;
  for (const int size : {16, 24, 32, 48}) {
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 24.0, size / 24.0);
    Draw(painter, subject);
    painter.end();
    icon.addPixmap(picture);
  }
  return icon;
}

}  // namespace brivane::designer
