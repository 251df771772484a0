#include "app/overview/YearChart.h"

#include <QAccessible>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <optional>

#include "app/overview/Words.h"

namespace brivane::app {

YearChart::YearChart(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("verloopbeeld"));
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setAccessibleName(QStringLiteral("Beeld van de jaren"));
}

QSize YearChart::minimumSizeHint() const { return {320, fontMetrics().height() * 12}; }
QSize YearChart::sizeHint() const { return {900, fontMetrics().height() * 24}; }

void YearChart::Show(YearData years) {
  const int calendarYear = year_ < 0 ? 0 : data_.firstYear + year_;
  data_ = std::move(years);
  const int last = data_.Years() - 1;
  year_ = last < 0 ? -1 : std::clamp(calendarYear - data_.firstYear, 0, last);
  update();
  Announce();
}

void YearChart::GoTo(int year) {
  const int years = data_.Years();
  if (years == 0) return;
  year = std::clamp(year, 0, years - 1);
  if (year == year_) return;
  year_ = year;
  update();
  Announce();
  if (yearChanged) yearChanged(year_);
}

QString YearChart::YearText() const {
  if (year_ < 0) return QStringLiteral("Er is niets om te laten zien.");
  QStringList parts{QString::number(data_.firstYear + year_)};
  for (std::size_t person = 0; person < data_.ages.size(); ++person) {
    const QString age = data_.ages[person].value(year_);
    if (!age.isEmpty())
      parts << QStringLiteral("%1 %2 jaar")
                   .arg(person == 0 ? QStringLiteral("aanvrager") : QStringLiteral("partner"), age);
  }
  for (const YearSeries& series : data_.series) {
    const std::optional<double>& value = series.values[static_cast<std::size_t>(year_)];
    if (!value) continue;
    parts << (data_.unit == QStringLiteral("%") ? QStringLiteral("%1: %2 %").arg(series.name, Euros(*value))
                                                : QStringLiteral("%1: € %2").arg(series.name, Euros(*value)));
  }
  return parts.join(QStringLiteral(" · "));
}

void YearChart::Announce() {
  setAccessibleDescription(YearText());
  QAccessibleEvent event(this, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&event);
}

void YearChart::PointAt(double x) {
  if (data_.Years() == 0) return;
  const QRectF plot = PlotArea(QFontMetricsF(font(), this), rect(), data_);
  GoTo(static_cast<int>(std::floor((x - plot.left()) / plot.width() * data_.Years())));
}

void YearChart::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const YearColors colors = YearColors::For(palette());
  if (data_.Years() == 0) {
    painter.fillRect(rect(), colors.ground);
    painter.setPen(colors.text);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, YearText());
  } else {
    PaintYears(painter, rect(), data_, colors, year_ < 0 ? std::nullopt : std::optional(year_));
  }
  if (!hasFocus()) return;
  painter.setPen(QPen(colors.cursor, 2));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void YearChart::keyPressEvent(QKeyEvent* event) {
  constexpr int kPage = 5;
  switch (event->key()) {
    case Qt::Key_Left: return GoTo(year_ - 1);
    case Qt::Key_Right: return GoTo(year_ + 1);
    case Qt::Key_PageUp: return GoTo(year_ - kPage);
    case Qt::Key_PageDown: return GoTo(year_ + kPage);
    case Qt::Key_Home: return GoTo(0);
    case Qt::Key_End: return GoTo(data_.Years() - 1);
    default: QWidget::keyPressEvent(event);
  }
}

void YearChart::mouseMoveEvent(QMouseEvent* event) { PointAt(event->position().x()); }
void YearChart::mousePressEvent(QMouseEvent* event) { PointAt(event->position().x()); }

void YearChart::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  update();
}
void YearChart::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  update();
}

}  // namespace brivane::app
