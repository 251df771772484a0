#include <memory>
#include <utility>

#include <brivane/frame/Conversions.h>
#include <brivane/host/Error.h>
#include <brivane/scenario/Scenariolijst.h>

namespace brivane::scenario {

namespace {

constexpr std::int16_t kEerste = 1;

/// Walks the list and reads the entries that fall in the grid.
template <class Lees> auto LeesPosten(host::BedragObject& scenario, int rijen, Lees&& lees) {
  std::vector<decltype(lees(std::int16_t{}, std::declval<host::Periode&>()))> posten;
  for (int positie = kEerste;; ++positie) {
    const auto periode = scenario.Periode(frame::ToInteger16(positie));
    if (!periode) return posten;
    const std::int16_t maand = periode->Maand();
    if (RijVan(maand, rijen)) posten.push_back(lees(maand, *periode));
  }
}

/// Appends an entry and hands it out to be filled.
std::shared_ptr<host::Periode> Nieuw(host::BedragObject& scenario, std::int16_t maand) {
  std::shared_ptr<host::Periode> periode = scenario.Periode(scenario.NieuwePeriode());
  host::Need(periode).SetMaand(maand);
  return periode;
}

}  // namespace

std::vector<Bedragpost> LeesBedragen(host::BedragObject& scenario, int rijen, Overbrugging overbrugging) {
  return LeesPosten(scenario, rijen, [&](std::int16_t maand, host::Periode& periode) {
    const double bedrag = periode.Bedrag();
    return Bedragpost{maand, bedrag, overbrugging == Overbrugging::Nee && periode.Eenmalig()};
  });
}

std::vector<RelatievePost> LeesPercentages(host::BedragObject& scenario, int rijen, Kortingkolom kolom) {
  return LeesPosten(scenario, rijen, [&](std::int16_t maand, host::Periode& periode) {
    const double percentage = periode.Percentage();
    return RelatievePost{maand, percentage, kolom == Kortingkolom::Met ? periode.Korting() : 0};
  });
}

std::vector<Groeipost> LeesGroei(host::BedragObject& scenario, int rijen) {
  return LeesPosten(scenario, rijen, [](std::int16_t maand, host::Periode& periode) {
    return Groeipost{maand, periode.Percentage()};
  });
}

void MaakLeeg(host::BedragObject& scenario) {
  while (scenario.Periode(kEerste)) scenario.VerwijderPeriode(kEerste);
}

void Schrijf(host::BedragObject& scenario, const Bedragpost& post, Overbrugging overbrugging) {
  const auto periode = Nieuw(scenario, post.maand);
  periode->SetBedrag(post.bedrag);
  if (overbrugging == Overbrugging::Nee) periode->SetEenmalig(post.eenmalig);
}

void Schrijf(host::BedragObject& scenario, std::int16_t maand, const std::function<Rentepost()>& lees,
             Kortingkolom kolom) {
  const auto periode = Nieuw(scenario, maand);
  const Rentepost post = lees();
  // Row 1 is the base value itself; its entry is there for the discount alone.
  const double verschil = RijVan(post.maand, 1) ? 0 : post.netto - scenario.Bedrag();
  periode->SetPercentage(frame::ToSingle(verschil));
  if (kolom == Kortingkolom::Met) periode->SetKorting(post.korting);
}

void Schrijf(host::BedragObject& scenario, const Groeipost& post) {
  Nieuw(scenario, post.maand)->SetPercentage(frame::ToSingle(post.percentage));
}

}  // namespace brivane::scenario
