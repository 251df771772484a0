#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include <brivane/host/controls/ListBox.h>

/// The codes of a free column's record, as the host stores them, and the words that an adviser reads for them.
namespace brivane::host::codes {

/// The words for a code; none for a code that the list lacks.
[[nodiscard]] constexpr std::string_view WordsFor(std::int16_t code, std::span<const ListEntry> list) {
  for (const ListEntry& entry : list)
    if (entry.itemData == code) return entry.text;
  return {};
}

// Burden correction.
inline constexpr std::int16_t kLast = 1;
inline constexpr std::int16_t kBijdrage = 2;
inline constexpr std::int16_t kLastNeutraal = 3;

// Fiscal correction.
inline constexpr std::int16_t kAftrekpost = 1;
inline constexpr std::int16_t kBijtelling = 2;
inline constexpr std::int16_t kFiscaalNeutraal = 3;

// Persons.
inline constexpr std::int16_t kAanvrager = 1;
inline constexpr std::int16_t kPartner = 2;

/// Payment term of a one-off amount; the others are months per instalment.
inline constexpr std::int16_t kEenmalig = 99;
inline constexpr std::array<ListEntry, 5> kTermijnen{
    {{"per maand", 1}, {"per kwartaal", 3}, {"per half jaar", 6}, {"per jaar", 12}, {"eenmalig", kEenmalig}}};

// Kinds of product.
inline constexpr std::int16_t kGeenSoort = 0;
inline constexpr std::int16_t kVereniging = 42;
inline constexpr std::int16_t kGoedDoel = 43;
inline constexpr std::int16_t kKrant = 44;
inline constexpr std::int16_t kTijdschrift = 45;
inline constexpr std::int16_t kAndereSoort = 99;
inline constexpr std::array<ListEntry, 5> kProductsoorten{{{"Vereniging", kVereniging},
                                                           {"Goed doel", kGoedDoel},
                                                           {"Krant", kKrant},
                                                           {"Tijdschrift", kTijdschrift},
                                                           {"Anders", kAndereSoort}}};
/// A kind of product that runs until a contract expiry date in place of a duration.
[[nodiscard]] constexpr bool IsContractsoort(std::int16_t soort) {
  return soort >= kVereniging && soort <= kTijdschrift;
}
/// Duration in months that choosing a kind of product stores, whatever the kind.
inline constexpr std::int32_t kLooptijdProduct = 999;

/// Company code of a company that is named in text.
inline constexpr std::string_view kAndereMaatschappij = "ZZ";
/// The code table of the companies.
inline constexpr std::string_view kMaatschappijTabel = "MaatschappijType";

inline constexpr std::int16_t kVoorstellen = 3;
inline constexpr std::string_view kInVoorstel = "J";
inline constexpr std::string_view kUitVoorstel = "N";

/// The loan of the current situation.
inline constexpr std::int16_t kHuidigeSituatie = 0;

}  // namespace brivane::host::codes
