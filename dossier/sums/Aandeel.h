#pragma once

#include <cstdint>
#include <span>

#include "dossier/model/Gegevens.h"

/// Which part of a column counts in a life scenario.
namespace brivane::sums {

/// What happens to the persons, from the first day that is looked at.
enum class Levensscenario : std::uint8_t {
  ZoalsNu,
  Arbeidsongeschikt,
  Werkloos,
  Langleven,
  OverlijdenAanvrager,
  OverlijdenPartner
};

struct Aandeel {
  double procent = 100;   ///< of the amount; 0 where the column is left out
  std::int16_t persoon;   ///< whose income it counts in
  host::Date einde = {};  ///< the first day on which it counts no longer; no date where the scenario ends nothing
  friend bool operator==(const Aandeel&, const Aandeel&) = default;
};

/// Disability, unemployment and a long life leave out what is excluded from them. On the death of the one who holds it,
/// a column that counts then passes to the other for its percentage until its end date, else until its end age; without
/// another person, or where it does not count then, it is left out. The one who lives on keeps what he holds.
[[nodiscard]] Aandeel AandeelIn(const host::VrijeKolomValues& kolom, Levensscenario scenario,
                                std::span<const dossier::PersoonGegevens> personen);

}  // namespace brivane::sums
