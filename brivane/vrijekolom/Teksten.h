#pragma once

#include <string_view>

namespace brivane::vrijekolom {

inline constexpr std::string_view kNaam = "VrijeKolom";
inline constexpr std::string_view kOmschrijving = "Vrije kolom";

inline constexpr std::string_view kOvernemenTitel = "Wijzigingen overnemen";
inline constexpr std::string_view kOvernemenVraag = "Wilt u de wijzigingen overnemen in de nieuwe situatie?";
inline constexpr std::string_view kOntbrekendeInvoer = "Ontbrekende invoer";
inline constexpr std::string_view kAanvangOntbreekt = "Voer s.v.p. een aanvangsdatum in.";
inline constexpr std::string_view kOnjuisteInvoer = "Onjuiste invoer";
inline constexpr std::string_view kEindeVoorAanvang = "De einddatum dient na de aanvangsdatum te liggen.";

inline constexpr std::string_view kHeffingBij = "Heffing bij";
inline constexpr std::string_view kContractant = "Contractant";

}  // namespace brivane::vrijekolom
