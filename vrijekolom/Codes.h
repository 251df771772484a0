#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "frame/Design.h"

/// The codes of a free column's record, as the host stores them.
namespace brivane::vrijekolom {

// Burden correction: index in optLast.
inline constexpr std::int16_t kLast = 1;
inline constexpr std::int16_t kBijdrage = 2;
inline constexpr std::int16_t kLastNeutraal = 3;

// Fiscal correction: index in optFiscaal.
inline constexpr std::int16_t kAftrekpost = 1;
inline constexpr std::int16_t kBijtelling = 2;
inline constexpr std::int16_t kFiscaalNeutraal = 3;

// Persons: index in optAanvrager.
inline constexpr std::int16_t kAanvrager = 1;
inline constexpr std::int16_t kPartner = 2;

/// Payment term of a one-off amount; the others are months per instalment.
inline constexpr std::int16_t kEenmalig = 99;
inline constexpr frame::ListEntry kTermijnen[] = {
    {"per maand", 1}, {"per kwartaal", 3}, {"per half jaar", 6}, {"per jaar", 12}, {"eenmalig", kEenmalig}};

// Kinds of product.
inline constexpr std::int16_t kGeenSoort = 0;
inline constexpr std::int16_t kAndereSoort = 99;
inline constexpr std::array<frame::ListEntry, 5> kProductsoorten{
    {{"Vereniging", 42}, {"Goed doel", 43}, {"Krant", 44}, {"Tijdschrift", 45}, {"Anders", kAndereSoort}}};
/// The kinds that run until a contract expiry date in place of a duration.
inline constexpr std::array<std::int16_t, 4> kContractsoorten{42, 43, 44, 45};
/// Duration in months that choosing a kind of product stores, whatever the kind.
inline constexpr std::int32_t kLooptijdProduct = 999;

/// Company code of a company that is named in text.
inline constexpr std::string_view kAndereMaatschappij = "ZZ";
inline constexpr std::string_view kMaatschappijTabel = "MaatschappijType";

inline constexpr std::int16_t kVoorstellen = 3;
inline constexpr std::string_view kInVoorstel = "J";
inline constexpr std::string_view kUitVoorstel = "N";

/// The loan of the current situation.
inline constexpr std::int16_t kHuidigeSituatie = 0;

// Which checks a Validation runs.
inline constexpr std::int32_t kControleVolledig = 0;
inline constexpr std::int32_t kControleAanvang = 1;
inline constexpr std::int32_t kControleEinde = 2;

}  // namespace brivane::vrijekolom
