#pragma once

#include <QColor>
#include <QPalette>
#include <QRectF>
#include <QString>
#include <optional>
#include <vector>

class QFontMetricsF;
class QPainter;

namespace brivane::app {

/// One line through the years, or single points where a year has something of its own.
struct YearSeries {
  enum class Shape : std::uint8_t { Line, Points };
  QString name;
  Shape shape = Shape::Line;
  std::vector<std::optional<double>> values;  ///< one for each year; nothing leaves a gap
};

/// What a picture of years shows.
struct YearData {
  QString title;
  QString unit;  ///< "€" or "%"
  int firstYear = 0;
  std::vector<YearSeries> series;
  std::vector<QStringList> ages;  ///< of each person, one for each year
  [[nodiscard]] int Years() const { return series.empty() ? 0 : static_cast<int>(series.front().values.size()); }
};

/// Colours that a colour-blind reader tells apart, for a light ground or a dark one. Each series has a line and a
/// marker of its own besides.
struct YearColors {
  QColor ground, text, grid, cursor;
  std::vector<QColor> series;
  [[nodiscard]] static YearColors For(const QPalette& palette);
  /// For paper.
  [[nodiscard]] static YearColors OnWhite();
};

/// Steps of an axis: round numbers that hold the values and zero between them.
struct Axis {
  double from = 0;
  double to = 0;
  double step = 1;
  friend bool operator==(const Axis&, const Axis&) = default;
};
[[nodiscard]] Axis AxisFor(double least, double most);

/// The part of the picture that the years stand in, with text of this font.
[[nodiscard]] QRectF PlotArea(const QFontMetricsF& font, const QRectF& area, const YearData& data);
/// Where a year stands between the left and the right of the plot.
[[nodiscard]] double YearPlace(const QRectF& plot, int years, int year);

/// Paints axes, years, ages and every series, on screen or on paper; `cursor` is the year that is pointed at, from 0.
void PaintYears(QPainter& painter, const QRectF& area, const YearData& data, const YearColors& colors,
                std::optional<int> cursor = std::nullopt);

}  // namespace brivane::app
