#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include <brivane/host/controls/ListBox.h>

/// The codes of a free column's record, as the host stores them, and the words that an adviser reads for them, in Dutch
/// and UTF-8.
namespace brivane::host::codes {

/// The words for a code; none for a code that the list lacks.
[[nodiscard]] constexpr std::string_view WordsFor(std::int16_t code, std::span<const ListEntry> list) {
  for (const ListEntry& entry : list)
    if (entry.itemData == code) return entry.text;
  return {};
}

/// \name Burden correction
/// What the column does to the monthly burden: VrijeKolomItem::CorrectieLast.
/// @{
inline constexpr std::int16_t kLast = 1;          ///< "Last": it adds to what the client pays
inline constexpr std::int16_t kBijdrage = 2;      ///< "Bijdrage": it brings in
inline constexpr std::int16_t kLastNeutraal = 3;  ///< "Neutraal": neither
/// @}

/// \name Fiscal correction
/// What the column does to the income that is taxed: VrijeKolomItem::CorrectieFiscaal.
/// @{
inline constexpr std::int16_t kAftrekpost = 1;       ///< "Aftrekpost": deducted
inline constexpr std::int16_t kBijtelling = 2;       ///< "Bijtelling": added
inline constexpr std::int16_t kFiscaalNeutraal = 3;  ///< "Neutraal": neither
/// @}

/// \name Persons
/// Of VrijeKolomItem::HeffingBij and Dossier::Persoon.
/// @{
inline constexpr std::int16_t kAanvrager = 1;  ///< the applicant, whom every case has
inline constexpr std::int16_t kPartner = 2;    ///< the partner
/// @}

/// Payment term of a one-off amount; the others are months per instalment.
inline constexpr std::int16_t kEenmalig = 99;
/// The payment terms that the list offers, in its order.
inline constexpr std::array<ListEntry, 5> kTermijnen{
    {{"per maand", 1}, {"per kwartaal", 3}, {"per half jaar", 6}, {"per jaar", 12}, {"eenmalig", kEenmalig}}};

/// \name Kinds of product
/// Of VrijeKolomItem::Productsoort.
/// @{
inline constexpr std::int16_t kGeenSoort = 0;     ///< not chosen yet; what is shown as a product becomes kAndereSoort
inline constexpr std::int16_t kVereniging = 42;   ///< an association
inline constexpr std::int16_t kGoedDoel = 43;     ///< a charity
inline constexpr std::int16_t kKrant = 44;        ///< a newspaper
inline constexpr std::int16_t kTijdschrift = 45;  ///< a magazine
inline constexpr std::int16_t kAndereSoort = 99;  ///< "Anders": one that is named in text
/// @}
/// The kinds that the list offers, in its order.
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

inline constexpr std::int16_t kVoorstellen = 3;        ///< how many proposals a case has
inline constexpr std::string_view kInVoorstel = "J";   ///< of VrijeKolomItem::Voorstel: it is in the proposal
inline constexpr std::string_view kUitVoorstel = "N";  ///< of VrijeKolomItem::Voorstel: it was taken out of it

/// The loan of the current situation.
inline constexpr std::int16_t kHuidigeSituatie = 0;

}  // namespace brivane::host::codes
