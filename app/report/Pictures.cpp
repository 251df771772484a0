#include "app/report/Pictures.h"

#include <algorithm>
#include <utility>

#include "app/overview/YearFigures.h"

namespace brivane::app::report {
namespace {

bool IsFlat(const YearSeries& series) {
  return std::all_of(series.values.begin(), series.values.end(),
                     [](const auto& value) { return value.value_or(0) == 0; });
}

}  // namespace

void AddPictures(Report& report, const Source& source, std::int16_t situatie) {
  const bool follows =
      situatie > 0 && source.gegevens.Leningen.at(static_cast<std::size_t>(situatie - 1)).VrijeKolommen.empty();
  if (follows) return;
  for (const YearFigure figure : {YearFigure::Last, YearFigure::Inkomen}) {
    YearData years = SituationYears(source.gegevens, situatie, source.uitgangspunt, figure);
    if (std::all_of(years.series.begin(), years.series.end(), IsFlat)) continue;
    report.blocks.emplace_back(Picture{std::make_shared<const YearData>(std::move(years))});
  }
}

}  // namespace brivane::app::report
