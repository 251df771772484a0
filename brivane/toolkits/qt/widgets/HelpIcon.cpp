#include <QFocusEvent>
#include <QPainter>
#include <QToolTip>

#include <brivane/toolkits/qt/Texts.h>
#include <brivane/toolkits/qt/widgets/HelpIcon.h>

namespace brivane::qt {

QString WrappedToolTip(const QString& help) { return "<qt>" + help.toHtmlEscaped() + "</qt>"; }

void PaintHelpIcon(QPainter& painter, const QRect& rect, const QPalette& palette, bool focused) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const qreal diameter = qMin(rect.width(), rect.height()) - 2.0;
  const QRectF circle(rect.left() + (rect.width() - diameter) / 2, rect.top() + (rect.height() - diameter) / 2,
                      diameter, diameter);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette.color(QPalette::Highlight));
  painter.drawEllipse(circle);
  QFont font = painter.font();
  font.setBold(true);
  font.setPixelSize(qMax(8, static_cast<int>(diameter * 0.75)));
  painter.setFont(font);
  painter.setPen(palette.color(QPalette::HighlightedText));
  painter.drawText(circle, Qt::AlignCenter, "?");
  if (focused) {
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette.color(QPalette::WindowText), 1, Qt::DotLine));
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
  }
  painter.restore();
}

HelpIcon::HelpIcon(const QString& help, QWidget* parent) : QAbstractButton(parent), help_(help) {
  setFocusPolicy(Qt::StrongFocus);
  setToolTip(WrappedToolTip(help));
  setAccessibleName(Translated(frame::TextId::Help));
  setAccessibleDescription(help);
  QObject::connect(this, &QAbstractButton::clicked, this, [this] { ShowHelp(); });
}

void HelpIcon::ShowHelp() { QToolTip::showText(mapToGlobal(QPoint(width() / 2, height())), toolTip(), this); }

void HelpIcon::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintHelpIcon(painter, rect(), palette(), hasFocus());
}

void HelpIcon::focusInEvent(QFocusEvent* event) {
  QAbstractButton::focusInEvent(event);
  const Qt::FocusReason reason = event->reason();
  // A moving focus takes tool tips away, so the help comes after it.
  if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason)
    QMetaObject::invokeMethod(
        this,
        [this] {
          if (hasFocus()) ShowHelp();
        },
        Qt::QueuedConnection);
}

void HelpIcon::focusOutEvent(QFocusEvent* event) {
  QAbstractButton::focusOutEvent(event);
  QToolTip::hideText();
}

}  // namespace brivane::qt
