#include "app/overview/YearFigures.h"

#include <algorithm>
#include <utility>

#include "app/overview/Words.h"
#include "dossier/model/Kopteksten.h"
#include <brivane/host/model/Codes.h>

namespace brivane::app {
namespace {

std::vector<QStringList> AgesIn(const dossier::DossierGegevens& dossier, const sums::Jaren& jaren) {
  std::vector<QStringList> ages;
  for (const dossier::PersoonGegevens& persoon : dossier.Personen) {
    QStringList& own = ages.emplace_back();
    for (std::int32_t jaar = jaren.van; jaar <= jaren.tot; ++jaar) {
      const auto age = sums::LeeftijdIn(jaar, persoon.Geboortedatum);
      own << (age ? QString::number(*age) : QString());
    }
  }
  return ages;
}

/// One figure of each of the years.
template <class Year> std::vector<std::optional<double>> Values(const std::vector<Year>& years, double Year::*value) {
  std::vector<std::optional<double>> values;
  values.reserve(years.size());
  for (const Year& year : years) values.emplace_back(year.*value);
  return values;
}

/// One-off amounts stand in the years that have one.
template <class Year>
void AddPoints(YearData& data, const QString& name, const std::vector<Year>& years, double Year::*value) {
  YearSeries points{name, YearSeries::Shape::Points, {}};
  for (const Year& year : years) points.values.push_back(year.*value == 0 ? std::nullopt : std::optional(year.*value));
  if (std::any_of(points.values.begin(), points.values.end(), [](const auto& point) { return point.has_value(); }))
    data.series.push_back(std::move(points));
}

}  // namespace

YearData SituationYears(const dossier::DossierGegevens& dossier, std::int16_t situatie,
                        const sums::Uitgangspunt& uitgangspunt, YearFigure figure) {
  const sums::Jaren jaren = sums::JarenVan(uitgangspunt.peildatum, dossier.Personen, dossier.Leeftijd);
  const sums::Verloop verloop(dossier, uitgangspunt.scenario, jaren);
  const bool last = figure == YearFigure::Last;
  const auto each = last ? &sums::Situatiejaar::last : &sums::Situatiejaar::inkomen;
  const auto once = last ? &sums::Situatiejaar::lastEenmalig : &sums::Situatiejaar::inkomenEenmalig;
  YearData data{.title = last ? QStringLiteral("Lasten per jaar") : QStringLiteral("Belastbaar inkomen per jaar"),
                .unit = QStringLiteral("€"),
                .firstYear = jaren.van,
                .series = {},
                .ages = AgesIn(dossier, jaren)};
  if (uitgangspunt.scenario != sums::Levensscenario::ZoalsNu)
    data.title += QStringLiteral(" · ") + ScenarioText(uitgangspunt.scenario);
  std::vector<std::int16_t> situaties{0};
  if (situatie != 0) situaties.push_back(situatie);
  for (const std::int16_t which : situaties)
    data.series.push_back(
        {SituatieText(dossier, which), YearSeries::Shape::Line, Values(verloop.Situatie(which), each)});
  for (const std::int16_t which : situaties)
    AddPoints(data, SituatieText(dossier, which) + QStringLiteral(", eenmalig"), verloop.Situatie(which), once);
  return data;
}

YearData ColumnYears(const dossier::DossierGegevens& dossier, const dossier::KolomGegevens& kolom,
                     const sums::Uitgangspunt& uitgangspunt) {
  const sums::Jaren jaren =
      sums::JarenVan(kolom, sums::JarenVan(uitgangspunt.peildatum, dossier.Personen, dossier.Leeftijd).tot);
  const bool percentage = sums::EenheidVan(kolom.Bedrag) == sums::Eenheid::Procent;
  const QString name = QString::fromStdString(dossier::Onderwerp(kolom));
  YearData data{.title = percentage ? name : name + QStringLiteral(" · bedrag per jaar"),
                .unit = percentage ? QStringLiteral("%") : QStringLiteral("€"),
                .firstYear = jaren.van,
                .series = {},
                .ages = AgesIn(dossier, jaren)};
  if (jaren.Aantal() == 0) return data;
  const auto years = sums::KolomInJaren(kolom, dossier.Personen, uitgangspunt.scenario, jaren);
  YearSeries series{name, YearSeries::Shape::Line, {}};
  if (percentage)
    for (const sums::Kolomjaar& year : years) series.values.push_back(year.percentage);
  else
    series.values = Values(years, &sums::Kolomjaar::doorlopend);
  if (kolom.Termijn == host::codes::kEenmalig) {
    series.shape = YearSeries::Shape::Points;
    series.values = Values(years, &sums::Kolomjaar::eenmalig);
  }
  data.series.push_back(std::move(series));
  return data;
}

}  // namespace brivane::app
