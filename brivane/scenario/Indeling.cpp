#include <cmath>

#include <brivane/frame/LayoutHelpers.h>
#include <brivane/scenario/Indeling.h>

namespace brivane::scenario {

namespace {

/// Columns of a grid of few and of many rows.
constexpr int kWeinigKolommen = 3;
constexpr int kVeelKolommen = 4;
constexpr int kVeelRijen = 31;

Rijplaats PlaatsRij(const Opzet& opzet, const Breedten& breedten, Twips links, Twips top, Twips& rechts) {
  Rijplaats rij;
  rij.labelTop = top;
  rij.vakTop = top - kVakHoger;
  rij.jaar = links;
  Twips einde = rij.jaar + breedten.jaar;
  const auto volgende = [&einde](Twips& plaats, Twips breedte) {
    plaats = einde + kTussen;
    einde = plaats + breedte;
  };
  if (opzet.MetBedrag()) volgende(rij.bedrag, breedten.bedrag);
  if (opzet.MetEenmalig()) {
    volgende(rij.eenmalig, breedten.eenmalig);
    volgende(rij.hint, breedten.hint);
  }
  if (opzet.MetPercentage()) {
    volgende(rij.percentage, breedten.percentage);
    volgende(rij.eenheid, breedten.eenheid);
  }
  if (opzet.MetKorting()) {
    volgende(rij.korting, breedten.korting);
    volgende(rij.kortingeenheid, breedten.kortingeenheid);
  }
  rechts = frame::Larger(rechts, einde);
  return rij;
}

Kopplaats PlaatsKop(const Opzet& opzet, const Breedten& breedten, Twips links, Twips& rechts) {
  Kopplaats kop;
  if (opzet.overbrugging == Overbrugging::Ja) {
    kop.maand = links;
    rechts = frame::Larger(rechts, kop.maand + breedten.maandkop);
  }
  kop.waarde = links + breedten.jaar + kTussen;
  rechts = frame::Larger(rechts, kop.waarde + breedten.waardekop);
  if (opzet.korting == Kortingkolom::Met) {
    kop.korting = kop.waarde + kNaarKortingkop;
    rechts = frame::Larger(rechts, kop.korting + breedten.kortingkop);
  }
  return kop;
}

/// From one column to the next. Behind the help icon no gap is left; it stands in the gap after the amount.
Twips Kolomafstand(const Opzet& opzet, const Breedten& breedten) {
  Twips afstand = breedten.jaar;
  if (opzet.MetBedrag()) afstand = afstand + kTussen + breedten.bedrag;
  if (opzet.MetPercentage()) afstand = afstand + kTussen + breedten.percentage + kTussen + breedten.eenheid;
  if (opzet.MetKorting()) afstand = afstand + kTussen + breedten.korting + kTussen + breedten.kortingeenheid;
  afstand = afstand + kNaKolom;
  if (opzet.MetEenmalig()) afstand = afstand + breedten.eenmalig + kTussen + breedten.hint;
  return afstand;
}

}  // namespace

int Rijaantal(int aantalJaar) { return frame::Larger(frame::Smaller(aantalJaar, kMeesteRijen), kMinsteRijen); }

int Kolomaantal(int rijen) { return rijen < kVeelRijen ? kWeinigKolommen : kVeelKolommen; }

int RijenPerKolom(int rijen) { return (rijen + Kolomaantal(rijen) - 1) / Kolomaantal(rijen); }

Indeling DeelIn(const Opzet& opzet, const Breedten& breedten) {
  Indeling indeling;
  indeling.rijen.reserve(static_cast<std::size_t>(opzet.rijen));
  const int perKolom = RijenPerKolom(opzet.rijen);
  const Twips afstand = Kolomafstand(opzet, breedten);
  Twips links = kMarge;
  Twips top = kEersteRij;
  for (int i = 0; i < opzet.rijen; ++i) {
    const bool eerste = i % perKolom == 0;
    if (eerste && i > 0) links = Twips{std::trunc((links + afstand).value)};
    top = eerste ? kEersteRij : top + kRijAfstand;
    if (eerste) indeling.koppen.push_back(PlaatsKop(opzet, breedten, links, indeling.rechts));
    // The help icon stands beside the first row of a column, so every column reaches as far.
    indeling.rijen.push_back(PlaatsRij(opzet, breedten, links, top, indeling.rechts));
    indeling.rijen.back().eersteInKolom = eerste;
  }
  const Twips laatsteVanEersteKolom = indeling.rijen[static_cast<std::size_t>(perKolom - 1)].labelTop;
  indeling.kaderHoogte = laatsteVanEersteKolom + kRijAfstand - kVakHoger + kTussen;
  return indeling;
}

}  // namespace brivane::scenario
