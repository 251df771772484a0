#include "dossier/sums/Effect.h"

#include <cstddef>

#include "dossier/sums/Centen.h"
#include <brivane/host/model/Codes.h>

namespace brivane::sums {
namespace {

using namespace host::codes;

double Richting(std::int16_t correctie, std::int16_t omhoog, std::int16_t omlaag) {
  if (correctie == omhoog) return 1;
  return correctie == omlaag ? -1 : 0;
}

/// A correction that is neutral has no effect of an amount that is no number either.
double Gericht(double richting, double bedrag) { return richting == 0 ? 0 : OpCenten(richting * bedrag); }

std::optional<double> Tarief(std::int16_t persoon, const Tarieven& tarieven) {
  if (persoon < kAanvrager || persoon > kPartner) return std::nullopt;
  return tarieven[static_cast<std::size_t>(persoon - kAanvrager)];
}

}  // namespace

Effect EffectVan(const host::VrijeKolomValues& kolom, double lastbedrag, double inkomensbedrag, std::int16_t persoon,
                 const Tarieven& tarieven) {
  constexpr double kHonderd = 100;
  Effect effect{.last = Gericht(Richting(kolom.CorrectieLast, kLast, kBijdrage), lastbedrag),
                .inkomen = Gericht(Richting(kolom.CorrectieFiscaal, kBijtelling, kAftrekpost), inkomensbedrag),
                .belasting = std::nullopt};
  if (effect.inkomen == 0)
    effect.belasting = 0;
  else if (const std::optional<double> tarief = Tarief(persoon, tarieven))
    effect.belasting = OpCenten(effect.inkomen * *tarief / kHonderd);
  return effect;
}

Effect Som(const Effect& een, const Effect& ander) {
  Effect som{OpCenten(een.last + ander.last), OpCenten(een.inkomen + ander.inkomen), std::nullopt};
  if (een.belasting && ander.belasting) som.belasting = OpCenten(*een.belasting + *ander.belasting);
  return som;
}

Effect Verschil(const Effect& huidig, const Effect& nieuw) {
  Effect verschil{OpCenten(nieuw.last - huidig.last), OpCenten(nieuw.inkomen - huidig.inkomen), std::nullopt};
  if (huidig.belasting && nieuw.belasting) verschil.belasting = OpCenten(*nieuw.belasting - *huidig.belasting);
  return verschil;
}

}  // namespace brivane::sums
