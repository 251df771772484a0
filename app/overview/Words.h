#pragma once

#include <QString>

#include "dossier/sums/Overzicht.h"

/// The words and numbers of the overviews.
namespace brivane::app {

/// "1.234,56"; "?" for what is no number.
[[nodiscard]] QString Euros(double amount);
/// The same with its sign: "+12,50", "-12,50", "0,00".
[[nodiscard]] QString SignedEuros(double amount);
/// Nothing known is "onbekend".
[[nodiscard]] QString SignedEuros(const std::optional<double>& amount);
[[nodiscard]] QString DateText(host::Date date);

[[nodiscard]] QString HerkomstText(sums::Herkomst herkomst);
/// Why a column does not count; empty where it does.
[[nodiscard]] QString StandText(const sums::Post& post);
[[nodiscard]] QString PersoonText(std::int16_t persoon);
/// The amount as it was entered: "485,50", "4 %".
[[nodiscard]] QString BedragText(const sums::Post& post);
[[nodiscard]] QString ScenarioText(sums::Levensscenario scenario);
/// The loan's name, else what it is.
[[nodiscard]] QString SituatieText(const dossier::DossierGegevens& dossier, std::int16_t situatie);

}  // namespace brivane::app
