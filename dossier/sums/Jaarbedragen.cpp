#include "dossier/sums/Jaarbedragen.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <span>

#include <brivane/host/Error.h>
#include <brivane/scenario/Groei.h>
#include <brivane/scenario/Laden.h>
#include <brivane/scenario/Maanden.h>
#include <brivane/scenario/Teksten.h>

namespace brivane::sums {
namespace {

using scenario::Invoersoort;

template <class Post, class Lees> std::vector<Post> PostenVan(const dossier::BedragGegevens& bedrag, Lees&& lees) {
  std::vector<Post> posten;
  posten.reserve(bedrag.Perioden.size());
  std::transform(bedrag.Perioden.begin(), bedrag.Perioden.end(), std::back_inserter(posten), lees);
  return posten;
}

std::vector<Jaarbedrag> Bedragrijen(const dossier::BedragGegevens& bedrag, std::int32_t rijen) {
  const auto posten = PostenVan<scenario::Bedragpost>(bedrag, [](const dossier::PeriodeGegevens& periode) {
    return scenario::Bedragpost{periode.Maand, periode.Bedrag, periode.Eenmalig};
  });
  const auto overbrugging = HeeftMaandrijen(bedrag) ? scenario::Overbrugging::Ja : scenario::Overbrugging::Nee;
  std::vector<Jaarbedrag> resultaat;
  resultaat.reserve(static_cast<std::size_t>(rijen));
  for (const scenario::Bedragrij& rij : scenario::LaadBedragen(rijen, overbrugging, bedrag.Bedrag, posten))
    resultaat.push_back({rij.bedrag, rij.eenmalig});
  return resultaat;
}

std::vector<Jaarbedrag> Percentagerijen(const dossier::BedragGegevens& bedrag, std::int32_t rijen) {
  const auto posten = PostenVan<scenario::RelatievePost>(bedrag, [](const dossier::PeriodeGegevens& periode) {
    return scenario::RelatievePost{periode.Maand, periode.Percentage, periode.Korting};
  });
  std::vector<Jaarbedrag> resultaat;
  resultaat.reserve(static_cast<std::size_t>(rijen));
  // Without the discount column the rows are what is left when it has been taken off.
  for (const scenario::Renterij& rij :
       scenario::LaadPercentages(rijen, scenario::Kortingkolom::Zonder, bedrag.Bedrag, posten))
    resultaat.push_back({rij.percentage, false});
  return resultaat;
}

/// The rows that grow, as the growth rule reads and writes them.
struct Groeirijen {
  std::vector<Jaarbedrag> bedragen;
  std::vector<double> percentages;

  [[nodiscard]] static std::size_t Plaats(int rij) { return static_cast<std::size_t>(rij - 1); }
  [[nodiscard]] int Aantal() const { return static_cast<int>(bedragen.size()); }
  [[nodiscard]] double Bedrag(int rij) const { return bedragen[Plaats(rij)].waarde; }
  void ZetBedrag(int rij, double bedrag) { bedragen[Plaats(rij)].waarde = bedrag; }
  [[nodiscard]] double Percentage(int rij) const { return percentages[Plaats(rij)]; }
};

std::vector<Jaarbedrag> Groeiend(const dossier::BedragGegevens& bedrag, std::int32_t rijen) {
  const auto posten = PostenVan<scenario::Groeipost>(bedrag, [](const dossier::PeriodeGegevens& periode) {
    return scenario::Groeipost{periode.Maand, periode.Percentage};
  });
  constexpr Jaarbedrag kGeenGetal{std::numeric_limits<double>::quiet_NaN(), false};
  Groeirijen groei{std::vector<Jaarbedrag>(static_cast<std::size_t>(rijen), kGeenGetal),
                   scenario::LaadGroei(rijen, posten)};
  groei.ZetBedrag(1, bedrag.Bedrag);
  try {
    scenario::Groei(groei, 1);
  } catch (const host::Error&) {
    // The row that is too large, and those after it, are no number.
  }
  return std::move(groei.bedragen);
}

}  // namespace

Eenheid EenheidVan(const dossier::BedragGegevens& bedrag) {
  return scenario::SoortVan(bedrag.Invoersoort) == Invoersoort::Percentage ? Eenheid::Procent : Eenheid::Euro;
}

bool HeeftMaandrijen(const dossier::BedragGegevens& bedrag) {
  return scenario::SoortVan(bedrag.Invoersoort) == Invoersoort::Bedrag &&
         bedrag.Naam == scenario::kOverbruggingskrediet;
}

std::int32_t RijVan(const dossier::BedragGegevens& bedrag, std::int32_t maand) {
  if (HeeftMaandrijen(bedrag)) return maand;
  return (maand + scenario::kMaandenPerRij - 1) / scenario::kMaandenPerRij;
}

std::vector<Jaarbedrag> Rijen(const dossier::BedragGegevens& bedrag, std::int32_t rijen) {
  if (rijen < 1) return {};
  switch (scenario::SoortVan(bedrag.Invoersoort)) {
    case Invoersoort::Bedrag: return Bedragrijen(bedrag, rijen);
    case Invoersoort::Percentage: return Percentagerijen(bedrag, rijen);
    case Invoersoort::BedragEnPercentage: return Groeiend(bedrag, rijen);
    case Invoersoort::Onbekend: break;
  }
  return std::vector<Jaarbedrag>(static_cast<std::size_t>(rijen), Jaarbedrag{bedrag.Bedrag, false});
}

Omgerekend RekenOm(const Jaarbedrag& bedrag, std::int16_t termijn) {
  const double maanden = bedrag.opJaarbasis ? scenario::kMaandenPerRij : termijn;
  return {.perMaand = bedrag.waarde / maanden, .perJaar = bedrag.waarde * scenario::kMaandenPerRij / maanden};
}

}  // namespace brivane::sums
