#pragma once

#include <string_view>

namespace brivane::scenario {

inline constexpr std::string_view kFormuliernaam = "frmScenario";
inline constexpr std::string_view kTitel = "Scenario";

// Names of scenarios that change the form.
inline constexpr std::string_view kOverbruggingskrediet = "Overbruggingskrediet";
inline constexpr std::string_view kRente = "Rente";

inline constexpr std::string_view kAanvullen = "Vervolgjaren automatisch invullen";
inline constexpr std::string_view kVervolgjaren = "Vervolgjaren";
inline constexpr std::string_view kVervolgmaanden = "Vervolgmaanden";

// Headers over the value column.
inline constexpr std::string_view kKopBedrag = "Bedrag";
inline constexpr std::string_view kKopPercentage = "Percentage";
inline constexpr std::string_view kKopBeide = "Bedrag/Percentage";

// What a screen reader calls a box: its role, the unit of its row, the row number.
inline constexpr std::string_view kRolBedrag = "Bedrag";
inline constexpr std::string_view kRolJaarbasis = "Op jaarbasis";
inline constexpr std::string_view kRolHulpJaarbasis = "Hulp bij op jaarbasis";
inline constexpr std::string_view kRolPercentage = "Percentage";
inline constexpr std::string_view kRolKorting = "Korting";
inline constexpr std::string_view kJaar = "jaar";
inline constexpr std::string_view kMaand = "maand";

inline constexpr std::string_view kHintJaarbasis =
    "Indien het ingevulde bedrag op jaarbasis in de berekening van het rendement meegenomen moet worden vinkt u dit "
    "aan. Standaard wordt er op maandbasis gerekend.";
inline constexpr std::string_view kHintRentescenario =
    "Het rentescenario vanaf jaar 2 heeft geen invloed op verzekeringspremies of spaarinleg. Alleen de waarde in jaar "
    "1 wordt gebruikt voor de berekening van de premie of inleg gedurende de looptijd.";

// The withdrawal check.
inline constexpr std::string_view kOnjuisteInvoer = "Onjuiste invoer:";
inline constexpr std::string_view kMaximaalVoor = "- De som van alle opnames bedraagt maximaal € ";
inline constexpr std::string_view kMaximaalNa = ",-.";

inline constexpr std::string_view kRegeleinde = "\r\n";

}  // namespace brivane::scenario
