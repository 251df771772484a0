#pragma once

#include <cstdint>

#include <brivane/scenario/Invoersoort.h>
#include <brivane/scenario/Maanden.h>

/// Which rows become entries of a scenario's list: the change points.
///
/// The rules work on any `Rijen` with `Aantal()`, `Bedrag(r)`, `Eenmalig(r)`, `Percentage(r)` and `Korting(r)` for
/// rows from 1, and hand each entry to `schrijf` as soon as its row has been read.
namespace brivane::scenario {

struct Bedragpost {
  std::int16_t maand = 0;
  double bedrag = 0;
  bool eenmalig = false;
  friend bool operator==(const Bedragpost&, const Bedragpost&) = default;
};

/// An entry of percentages as the rows have it; the list keeps its difference to the base value.
struct Rentepost {
  std::int16_t maand = 0;
  double netto = 0;  ///< percentage less discount
  double korting = 0;
  friend bool operator==(const Rentepost&, const Rentepost&) = default;
};

struct Groeipost {
  std::int16_t maand = 0;
  double percentage = 0;
  friend bool operator==(const Groeipost&, const Groeipost&) = default;
};

/// Amounts: each later row whose amount or tick differs from the row above; of a bridging loan each row
/// whose amount is not 0.
template <class Rijen, class Schrijf>
void BewaarBedragen(const Rijen& rijen, Overbrugging overbrugging, std::int16_t soortScenario, Maandbasis& basis,
                    Schrijf&& schrijf) {
  const bool krediet = overbrugging == Overbrugging::Ja;
  for (int r = krediet ? 1 : 2; r <= rijen.Aantal(); ++r) {
    const double bedrag = rijen.Bedrag(r);
    const bool eenmalig = !krediet && rijen.Eenmalig(r);
    const bool wisselt = krediet ? bedrag != 0 : bedrag != rijen.Bedrag(r - 1) || eenmalig != rijen.Eenmalig(r - 1);
    if (!wisselt) continue;
    basis = BasisVoor(soortScenario, eenmalig, basis);
    schrijf(Bedragpost{MaandVan(r, basis), bedrag, eenmalig});
  }
}

/// Percentages: each later row whose percentage differs from the row above. With the discount column a
/// differing discount counts too, and row 1 is one where it has a discount, which the base value cannot hold.
/// `schrijf` is given the month, and what reads the rest of the row when the entry stands.
template <class Rijen, class Schrijf>
void BewaarPercentages(const Rijen& rijen, Kortingkolom kolom, Schrijf&& schrijf) {
  const bool metKorting = kolom == Kortingkolom::Met;
  const auto post = [&](int r) {
    const std::int16_t maand = MaandVan(r, Maandbasis::Maand);
    schrijf(maand, [&] {
      const double percentage = rijen.Percentage(r);
      const double korting = metKorting ? rijen.Korting(r) : 0;
      return Rentepost{maand, percentage - korting, korting};
    });
  };
  if (metKorting && rijen.Korting(1) != 0) post(1);
  for (int r = 2; r <= rijen.Aantal(); ++r)
    if (rijen.Percentage(r) != rijen.Percentage(r - 1) || (metKorting && rijen.Korting(r) != rijen.Korting(r - 1)))
      post(r);
}

/// Growth percentages: each row whose percentage differs from the row above; above row 1 stands 0.
template <class Rijen, class Schrijf> void BewaarGroei(const Rijen& rijen, Schrijf&& schrijf) {
  double vorige = 0;
  for (int r = 1; r <= rijen.Aantal(); ++r) {
    const double percentage = rijen.Percentage(r);
    if (percentage != vorige) schrijf(Groeipost{MaandVan(r, Maandbasis::Maand), percentage});
    vorige = percentage;
  }
}

}  // namespace brivane::scenario
