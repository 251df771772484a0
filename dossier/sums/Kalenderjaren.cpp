#include "dossier/sums/Kalenderjaren.h"

#include <algorithm>

#include "dossier/sums/Looptijd.h"
#include <brivane/frame/Calendar.h>
#include <brivane/host/model/Codes.h>

namespace brivane::sums {

Jaren JarenVan(host::Date peildatum, std::span<const dossier::PersoonGegevens> personen, std::int16_t leeftijdsgrens) {
  constexpr std::int32_t kMinste = 10;
  const std::int32_t van = frame::Split(peildatum).year;
  std::int32_t tot = van + kMinste - 1;
  for (const dossier::PersoonGegevens& persoon : personen)
    tot = std::max(tot, frame::Split(persoon.Geboortedatum).year + leeftijdsgrens);
  return {van, std::min(tot, van + kMeesteJaren - 1)};
}

Jaren JarenVan(const host::VrijeKolomValues& kolom, std::int32_t einde) {
  const Looptijd looptijd = LooptijdVan(kolom);
  if (looptijd.aanvang.IsNone()) return {0, -1};
  const std::int32_t van = frame::Split(looptijd.aanvang).year;
  std::int32_t tot = std::max(van, einde);
  if (kolom.Termijn == host::codes::kEenmalig) tot = van;
  if (!looptijd.einde.IsNone()) tot = frame::Split(host::Date(looptijd.einde.Days() - 1)).year;
  return {van, std::min(tot, van + kMeesteJaren - 1)};
}

std::optional<std::int32_t> LeeftijdIn(std::int32_t jaar, host::Date geboortedatum) {
  const std::int32_t leeftijd = jaar - frame::Split(geboortedatum).year;
  if (leeftijd < 0) return std::nullopt;
  return leeftijd;
}

}  // namespace brivane::sums
