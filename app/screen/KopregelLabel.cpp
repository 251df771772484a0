#include "app/screen/KopregelLabel.h"

#include <QPainter>
#include <QStyle>

namespace brivane::app {

KopregelLabel::KopregelLabel(QWidget* parent) : QLabel(parent) {
  QFont headerFont = font();
  headerFont.setPointSizeF(headerFont.pointSizeF() * 1.3);
  headerFont.setBold(true);
  setFont(headerFont);
  setTextFormat(Qt::PlainText);
}

void KopregelLabel::Show(const QString& text) {
  setText(text);
  setToolTip(text);
}

QSize KopregelLabel::minimumSizeHint() const { return {0, QLabel::minimumSizeHint().height()}; }

void KopregelLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect area = contentsRect();
  style()->drawItemText(&painter, area, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                        fontMetrics().elidedText(text(), Qt::ElideRight, area.width()), foregroundRole());
}

}  // namespace brivane::app
