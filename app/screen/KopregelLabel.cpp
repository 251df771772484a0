#include "app/screen/KopregelLabel.h"

#include <QPainter>
#include <QStyle>
#include <QTextDocument>

namespace brivane::dossier {

Kopregel::Kopregel(QWidget* parent) : QLabel(parent) {
  QFont letter = font();
  letter.setPointSizeF(letter.pointSizeF() * 1.3);
  letter.setBold(true);
  setFont(letter);
  setTextFormat(Qt::PlainText);
}

void Kopregel::Toon(const QString& tekst) {
  setText(tekst);
  // A tip that looks like mark-up is taken for it.
  setToolTip(Qt::mightBeRichText(tekst) ? QStringLiteral("<qt>%1</qt>").arg(tekst.toHtmlEscaped()) : tekst);
}

QSize Kopregel::minimumSizeHint() const { return {0, QLabel::minimumSizeHint().height()}; }

void Kopregel::paintEvent(QPaintEvent*) {
  QPainter schilder(this);
  const QRect vlak = contentsRect();
  style()->drawItemText(&schilder, vlak, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                        fontMetrics().elidedText(text(), Qt::ElideRight, vlak.width()), foregroundRole());
}

}  // namespace brivane::dossier
