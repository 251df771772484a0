#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include <brivane/scenario/Invoersoort.h>
#include <brivane/scenario/Opslag.h>

/// The rows that a scenario's base value and list of entries stand for. Entries fill in list order; one whose
/// month falls in no row is passed over. The result has one element for each row.
namespace brivane::scenario {

struct Bedragrij {
  double bedrag = 0;
  bool eenmalig = false;
  friend bool operator==(const Bedragrij&, const Bedragrij&) = default;
};

struct Renterij {
  double percentage = 0;
  double korting = 0;
  friend bool operator==(const Renterij&, const Renterij&) = default;
};

/// An entry of percentages as the list has it.
struct RelatievePost {
  std::int16_t maand = 0;
  double percentage = 0;  ///< relative to the base value, without the discount
  double korting = 0;
};

/// Amounts: every row starts with the base value, and an entry's amount goes to its row and the later ones;
/// its tick to its row alone. In a bridging loan rows start with 0 and an entry fills its row alone.
[[nodiscard]] std::vector<Bedragrij> LaadBedragen(int rijen, Overbrugging overbrugging, double basis,
                                                  std::span<const Bedragpost> posten);

/// Percentages: every row starts with the base value and no discount; an entry sets its row and the later
/// ones. Without the discount column the discounts of the list are left out: rows show net percentages.
[[nodiscard]] std::vector<Renterij> LaadPercentages(int rijen, Kortingkolom kolom, double basis,
                                                    std::span<const RelatievePost> posten);

/// Growth percentages: rows start with 0; an entry sets its row and the later ones.
[[nodiscard]] std::vector<double> LaadGroei(int rijen, std::span<const Groeipost> posten);

}  // namespace brivane::scenario
