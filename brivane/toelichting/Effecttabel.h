#pragma once

#include <array>
#include <cstdint>
#include <string_view>

/// What a free column does to the monthly burden and to income tax, for each supported pair of
/// corrections. Kept as data: the adviser reads these rows as they stand.
namespace brivane::toelichting {

struct Effect {
  std::string_view code;  ///< burden correction code, then fiscal correction code
  std::array<std::string_view, 4> teksten;
};

inline constexpr std::array<std::string_view, 4> kEffectkoppen{"Correctie last", "Correctie fiscaal",
                                                               "Effect maandlast", "Effect IB"};

inline constexpr std::array<Effect, 6> kEffecten{{
    {"11", {"Last", "Aftrekpost", "Verhoging", "Verlaging"}},
    {"13", {"Last", "Neutraal", "Verhoging", "Geen"}},
    {"22", {"Bijdrage", "Bijtelling", "Verlaging", "Verhoging"}},
    {"23", {"Bijdrage", "Neutraal", "Verlaging", "Geen"}},
    {"31", {"Neutraal", "Aftrekpost", "Geen", "Verlaging"}},
    {"32", {"Neutraal", "Bijtelling", "Geen", "Verhoging"}},
}};

/// Row of the table from 1 for a pair of correction codes; 0 where the pair has none.
[[nodiscard]] std::size_t EffectRij(std::int16_t correctieLast, std::int16_t correctieFiscaal);

}  // namespace brivane::toelichting
