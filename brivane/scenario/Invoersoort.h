#pragma once

#include <cstdint>

namespace brivane::scenario {

/// How a scenario is entered.
enum class Invoersoort : std::uint8_t {
  Onbekend,            ///< none that the form knows: rows without boxes
  Bedrag,              ///< amounts, in euros
  Percentage,          ///< percentages
  BedragEnPercentage,  ///< an amount, and the percentage by which it grows to the next row
};

/// Whether the scenario is a bridging loan: rows of months in place of years, and a total.
enum class Overbrugging : bool {
  Nee,  ///< years
  Ja,   ///< months, and a total
};

/// Whether the rows have a discount beside their percentage.
enum class Kortingkolom : bool {
  Zonder,  ///< the percentage alone, as the editor asks for
  Met,     ///< a box for a discount as well
};

/// The entry kind behind the host's code; a code that is none of 1, 2, 3 shows no boxes.
[[nodiscard]] constexpr Invoersoort SoortVan(std::int16_t code) {
  switch (code) {
    case 1: return Invoersoort::Bedrag;
    case 2: return Invoersoort::Percentage;
    case 3: return Invoersoort::BedragEnPercentage;
    default: return Invoersoort::Onbekend;
  }
}

/// Whether its rows have an amount.
[[nodiscard]] constexpr bool HeeftBedrag(Invoersoort soort) {
  return soort == Invoersoort::Bedrag || soort == Invoersoort::BedragEnPercentage;
}

/// Whether its rows have a percentage.
[[nodiscard]] constexpr bool HeeftPercentage(Invoersoort soort) {
  return soort == Invoersoort::Percentage || soort == Invoersoort::BedragEnPercentage;
}

}  // namespace brivane::scenario
