#include "app/overview/YearPicture.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>

#include <brivane/frame/GroupedNumber.h>
#include <brivane/frame/Numbers.h>

namespace brivane::app {
namespace {

constexpr double kMarker = 4;  ///< half a marker, where a line of text is 16
constexpr std::array<Qt::PenStyle, 4> kPens{Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine};

/// Lines and gaps are as large as the text is, on screen and on paper.
double Scale(const QFontMetricsF& font) { return font.height() / 16.0; }
double Scale(const QPainter& painter) { return Scale(QFontMetricsF(painter.font(), painter.device())); }

QString AxisText(double value, const Axis& axis) {
  return axis.step >= 1 ? QString::fromStdString(frame::FormatGrouped(value, "."))
                        : QString::fromStdString(frame::ShowNumber(value));
}

QString PersonText(std::size_t person) { return person == 0 ? QStringLiteral("aanvrager") : QStringLiteral("partner"); }

Axis AxisOf(const YearData& data) {
  double least = 0;
  double most = 0;
  for (const YearSeries& series : data.series) {
    for (const auto& value : series.values) {
      if (!value || !std::isfinite(*value)) continue;
      least = std::min(least, *value);
      most = std::max(most, *value);
    }
  }
  return AxisFor(least, most);
}

double Height(const QRectF& plot, const Axis& axis, double value) {
  return plot.bottom() - (value - axis.from) / (axis.to - axis.from) * plot.height();
}

void PaintMarker(QPainter& painter, std::size_t series, QPointF at, double size) {
  switch (series % 4) {
    case 0: return painter.drawEllipse(at, size, size);
    case 1: return painter.drawRect(QRectF(at.x() - size, at.y() - size, 2 * size, 2 * size));
    case 2:
      return painter.drawPolygon(QPolygonF{
          {at.x(), at.y() - 1.4 * size}, {at.x() + 1.3 * size, at.y() + size}, {at.x() - 1.3 * size, at.y() + size}});
    default:
      return painter.drawPolygon(QPolygonF{{at.x(), at.y() - 1.5 * size},
                                           {at.x() + 1.5 * size, at.y()},
                                           {at.x(), at.y() + 1.5 * size},
                                           {at.x() - 1.5 * size, at.y()}});
  }
}

/// The pen and the brush of a series: every second one has markers that are filled with the ground.
void Take(QPainter& painter, std::size_t series, const YearColors& colors) {
  const QColor color = colors.series[series % colors.series.size()];
  painter.setPen(QPen(color, 1.6 * Scale(painter)));
  painter.setBrush(series % 2 == 0 ? color : colors.ground);
}

void PaintAxes(QPainter& painter, const QRectF& plot, const YearData& data, const Axis& axis,
               const YearColors& colors) {
  const double gap = 6 * Scale(painter);
  const double line = painter.fontMetrics().height();
  for (double value = axis.from; value < axis.to + axis.step / 2; value += axis.step) {
    const double y = Height(plot, axis, value);
    const bool zero = std::abs(value) < axis.step / 2;
    painter.setPen(QPen(zero ? colors.text : colors.grid, zero ? 1.4 : 0.8));
    painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
    painter.setPen(colors.text);
    painter.drawText(QRectF(0, y - line / 2, plot.left() - gap, line), Qt::AlignRight | Qt::AlignVCenter,
                     AxisText(zero ? 0 : value, axis));
  }
  const double widest = painter.fontMetrics().horizontalAdvance(QStringLiteral("2000")) * 1.5;
  const double pitch = plot.width() / std::max(1, data.Years());
  const int every = std::max(1, static_cast<int>(std::ceil(widest / pitch)));
  for (int year = 0; year < data.Years(); year += every) {
    const double x = YearPlace(plot, data.Years(), year);
    painter.setPen(QPen(colors.text, 0.8));
    painter.drawLine(QPointF(x, plot.bottom()), QPointF(x, plot.bottom() + gap / 2));
    double y = plot.bottom() + gap;
    const auto write = [&](const QString& text) {
      painter.drawText(QRectF(x - widest, y, 2 * widest, line), Qt::AlignHCenter | Qt::AlignTop, text);
      y += line;
    };
    write(QString::number(data.firstYear + year));
    for (const QStringList& ages : data.ages) write(ages.value(year));
  }
  double y = plot.bottom() + gap + line;
  for (std::size_t person = 0; person < data.ages.size(); ++person, y += line)
    painter.drawText(QRectF(0, y, plot.left() - gap, line), Qt::AlignRight | Qt::AlignTop, PersonText(person));
}

void PaintSeries(QPainter& painter, const QRectF& plot, const YearData& data, const Axis& axis, std::size_t number,
                 const YearColors& colors) {
  const YearSeries& series = data.series[number];
  Take(painter, number, colors);
  const auto shown = [&](std::size_t year) {
    return year < series.values.size() && series.values[year] && std::isfinite(*series.values[year]);
  };
  const auto at = [&](std::size_t year) {
    return QPointF(YearPlace(plot, data.Years(), static_cast<int>(year)), Height(plot, axis, *series.values[year]));
  };
  if (series.shape == YearSeries::Shape::Line) {
    QPainterPath path;
    for (std::size_t year = 0; year < series.values.size(); ++year) {
      if (!shown(year)) continue;
      year > 0 && shown(year - 1) ? path.lineTo(at(year)) : path.moveTo(at(year));
    }
    QPen pen = painter.pen();
    pen.setStyle(kPens[number % kPens.size()]);
    painter.strokePath(path, pen);
  }
  for (std::size_t year = 0; year < series.values.size(); ++year)
    if (shown(year)) PaintMarker(painter, number, at(year), kMarker * Scale(painter));
}

void PaintLegend(QPainter& painter, const QRectF& area, const YearData& data, const YearColors& colors) {
  const double line = painter.fontMetrics().height();
  const double scale = Scale(painter);
  const double sample = 34 * scale;
  double x = area.left();
  double y = area.top();
  for (std::size_t i = 0; i < data.series.size(); ++i) {
    const double width = painter.fontMetrics().horizontalAdvance(data.series[i].name);
    if (x > area.left() && x + sample + width > area.right()) {
      x = area.left();
      y += line * 1.2;
    }
    Take(painter, i, colors);
    const QPointF middle(x + sample / 2 - 3 * scale, y + line / 2);
    if (data.series[i].shape == YearSeries::Shape::Line) {
      QPen pen = painter.pen();
      pen.setStyle(kPens[i % kPens.size()]);
      QPainterPath path(QPointF(x, middle.y()));
      path.lineTo(x + sample - 6 * scale, middle.y());
      painter.strokePath(path, pen);
    }
    PaintMarker(painter, i, middle, kMarker * scale);
    painter.setPen(colors.text);
    painter.drawText(QRectF(x + sample, y, width + 4, line), Qt::AlignLeft | Qt::AlignVCenter, data.series[i].name);
    x += sample + width + 22 * scale;
  }
}

/// How many lines the names of the series take.
int LegendLines(const QFontMetricsF& font, double width, const YearData& data) {
  const double scale = Scale(font);
  int lines = 1;
  double x = 0;
  for (const YearSeries& series : data.series) {
    const double own = font.horizontalAdvance(series.name);
    if (x > 0 && x + 34 * scale + own > width) {
      x = 0;
      ++lines;
    }
    x += 56 * scale + own;
  }
  return lines;
}

}  // namespace

YearColors YearColors::For(const QPalette& palette) {
  const QColor ground = palette.color(QPalette::Base);
  const QColor text = palette.color(QPalette::Text);
  YearColors colors = OnWhite();
  colors.ground = ground;
  colors.text = text;
  colors.cursor = palette.color(QPalette::Highlight);
  const double part = 0.25;
  colors.grid = QColor::fromRgbF(static_cast<float>(ground.redF() * (1 - part) + text.redF() * part),
                                 static_cast<float>(ground.greenF() * (1 - part) + text.greenF() * part),
                                 static_cast<float>(ground.blueF() * (1 - part) + text.blueF() * part));
  if (ground.lightness() < 128) colors.series = {"#56b4e9", "#e69f00", "#2fc99a", "#e9a3cb"};
  return colors;
}

YearColors YearColors::OnWhite() {
  return {.ground = Qt::white,
          .text = Qt::black,
          .grid = QColor(0xd0, 0xd0, 0xd0),
          .cursor = QColor(0x30, 0x30, 0x30),
          .series = {"#0072b2", "#d55e00", "#00795a", "#a8447d"}};
}

Axis AxisFor(double least, double most) {
  constexpr double kSteps = 5;
  least = std::min(least, 0.0);
  most = std::max(most, 0.0);
  if (!(most > least) || !std::isfinite(most - least)) return {0, 1, 1};
  const double rough = (most - least) / kSteps;
  const double power = std::pow(10, std::floor(std::log10(rough)));
  double step = 10 * power;
  for (const double round : {5.0, 2.0, 1.0})
    if (round * power >= rough) step = round * power;
  return {std::floor(least / step) * step, std::ceil(most / step) * step, step};
}

QRectF PlotArea(const QFontMetricsF& font, const QRectF& area, const YearData& data) {
  const Axis axis = AxisOf(data);
  const double scale = Scale(font);
  const double line = font.height();
  double labels =
      std::max(font.horizontalAdvance(AxisText(axis.from, axis)), font.horizontalAdvance(AxisText(axis.to, axis)));
  for (std::size_t person = 0; person < data.ages.size(); ++person)
    labels = std::max(labels, font.horizontalAdvance(PersonText(person)));
  const double top = line * (1.4 + 1.2 * LegendLines(font, area.width() - 16 * scale, data)) + 10 * scale;
  const double bottom = line * (1.0 + static_cast<double>(data.ages.size())) + 12 * scale;
  return area.adjusted(labels + 14 * scale, top, -10 * scale, -bottom);
}

double YearPlace(const QRectF& plot, int years, int year) {
  return plot.left() + (year + 0.5) * plot.width() / std::max(1, years);
}

void PaintYears(QPainter& painter, const QRectF& area, const YearData& data, const YearColors& colors,
                std::optional<int> cursor) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(area, colors.ground);
  painter.translate(area.topLeft());
  const QRectF own(QPointF(), area.size());
  const QRectF plot = PlotArea(QFontMetricsF(painter.font(), painter.device()), own, data);
  const double scale = Scale(painter);
  const double line = painter.fontMetrics().height();

  QFont bold = painter.font();
  bold.setBold(true);
  painter.save();
  painter.setFont(bold);
  painter.setPen(colors.text);
  painter.drawText(QRectF(8 * scale, 4 * scale, own.width() - 16 * scale, line * 1.2), Qt::AlignLeft | Qt::AlignVCenter,
                   painter.fontMetrics().elidedText(QStringLiteral("%1 (%2)").arg(data.title, data.unit),
                                                    Qt::ElideRight, static_cast<int>(own.width() - 16 * scale)));
  painter.restore();
  PaintLegend(painter, QRectF(8 * scale, 4 * scale + line * 1.4, own.width() - 16 * scale, line), data, colors);

  const Axis axis = AxisOf(data);
  PaintAxes(painter, plot, data, axis, colors);
  if (cursor && *cursor < data.Years()) {
    const double x = YearPlace(plot, data.Years(), *cursor);
    painter.setPen(QPen(colors.cursor, 2 * scale));
    painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
  }
  for (std::size_t series = 0; series < data.series.size(); ++series)
    PaintSeries(painter, plot, data, axis, series, colors);
  painter.restore();
}

}  // namespace brivane::app
