#pragma once

#include <string_view>

namespace brivane::toelichting {

inline constexpr std::string_view kNaam = "Toelichting";
inline constexpr std::string_view kOmschrijving = "Overige post toelichting";
inline constexpr std::string_view kOnjuisteInvoer = "Onjuiste invoer";
inline constexpr std::string_view kPercentageFout = "Overgangspercentage partner van 1% t/m 100% invullen.";
inline constexpr std::string_view kEinddatumFout = "Einddatum overgang partner moet in de toekomst liggen.";
inline constexpr std::string_view kEindleeftijdFout = "Eindleeftijd overgang partner moet in de toekomst liggen.";

}  // namespace brivane::toelichting
