#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <cmath>
#include <limits>
#include <ostream>

#include "app/overview/YearPicture.h"

namespace brivane::app {

void PrintTo(const Axis& axis, std::ostream* out) { *out << axis.from << " to " << axis.to << " by " << axis.step; }

namespace {

TEST(YearPicture, HasAnAxisOfRoundNumbersWithZeroAmongThem) {
  struct Case {
    double least, most;
    Axis axis;
  };
  const Case cases[] = {{0, 100, {0, 100, 20}},        {120, 480, {0, 500, 100}}, {-7452.55, 0, {-8000, 0, 2000}},
                        {-120, 480, {-200, 600, 200}}, {0, 0, {0, 1, 1}},         {4, 4.25, {0, 5, 1}},
                        {0, 0.4, {0, 0.4, 0.1}}};
  for (const Case& given : cases) {
    const Axis axis = AxisFor(given.least, given.most);
    EXPECT_NEAR(axis.from, given.axis.from, 1e-9) << given.least << " " << given.most;
    EXPECT_NEAR(axis.to, given.axis.to, 1e-9) << given.least << " " << given.most;
    EXPECT_NEAR(axis.step, given.axis.step, 1e-9) << given.least << " " << given.most;
  }
  EXPECT_EQ(AxisFor(0, std::numeric_limits<double>::infinity()), (Axis{0, 1, 1}));
}

double Linear(double part) { return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); }
double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) + 0.0722 * Linear(color.blueF());
}
double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one);
  const double b = Luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

TEST(YearPicture, HasLinesThatStandOutOnTheirGround) {
  QPalette dark;
  dark.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
  dark.setColor(QPalette::Text, Qt::white);
  for (const YearColors& colors : {YearColors::OnWhite(), YearColors::For(dark)})
    for (const QColor& series : colors.series)
      EXPECT_GE(Contrast(series, colors.ground), 3) << qPrintable(series.name());
}

YearData Two(double second) {
  return {.title = "Lasten",
          .unit = "€",
          .firstYear = 2027,
          .series = {{"Huidig", YearSeries::Shape::Line, {1.0, 2.0, 3.0}},
                     {"Nieuw", YearSeries::Shape::Line, {1.0, second, std::nullopt}}},
          .ages = {{"49", "50", "51"}}};
}

QImage Painted(const YearData& data, std::optional<int> cursor = std::nullopt) {
  QImage image(600, 300, QImage::Format_RGB32);
  QPainter painter(&image);
  PaintYears(painter, image.rect(), data, YearColors::OnWhite(), cursor);
  return image;
}

TEST(YearPicture, PaintsWhatItIsGiven) {
  EXPECT_EQ(Painted(Two(2)), Painted(Two(2)));
  EXPECT_NE(Painted(Two(2)), Painted(Two(0)));
  EXPECT_NE(Painted(Two(2)), Painted(Two(2), 1)) << "the year that is pointed at";
  // A series can be told from the other without its colour.
  YearData one = Two(2);
  YearData other = one;
  one.series.pop_back();
  other.series.erase(other.series.begin());
  other.series.front().values = one.series.front().values;
  other.series.front().name = one.series.front().name;
  other.series.insert(other.series.begin(), YearSeries{" ", YearSeries::Shape::Points, {{}, {}, {}}});
  EXPECT_NE(Painted(one).convertToFormat(QImage::Format_Mono), Painted(other).convertToFormat(QImage::Format_Mono));
  // What is no number is left out and nothing else.
  Painted(Two(std::numeric_limits<double>::quiet_NaN()));
}

}  // namespace
}  // namespace brivane::app
