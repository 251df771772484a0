#pragma once

#include <cstdint>

namespace brivane::scenario {

/// How a scenario is entered.
enum class Invoersoort : std::uint8_t { Onbekend, Bedrag, Percentage, BedragEnPercentage };

/// Whether the scenario is a bridging loan: rows of months in place of years, and a total.
enum class Overbrugging : bool { Nee, Ja };

/// Whether the rows have a discount beside their percentage.
enum class Kortingkolom : bool { Zonder, Met };

/// The entry kind behind the host's code; a code that is none of 1, 2, 3 shows no boxes.
[[nodiscard]] constexpr Invoersoort SoortVan(std::int16_t code) {
  switch (code) {
    case 1: return Invoersoort::Bedrag;
    case 2: return Invoersoort::Percentage;
    case 3: return Invoersoort::BedragEnPercentage;
    default: return Invoersoort::Onbekend;
  }
}

[[nodiscard]] constexpr bool HeeftBedrag(Invoersoort soort) {
  return soort == Invoersoort::Bedrag || soort == Invoersoort::BedragEnPercentage;
}

[[nodiscard]] constexpr bool HeeftPercentage(Invoersoort soort) {
  return soort == Invoersoort::Percentage || soort == Invoersoort::BedragEnPercentage;
}

}  // namespace brivane::scenario
