#pragma once

#include <string>
#include <vector>

#include "dossier/model/Gegevens.h"
#include "dossier/sums/Overzicht.h"

/// The words for what a free column holds, as the editor says them.
namespace brivane::app::report {

/// What the column is called: its description, the name of its product, or "Vrije kolom".
[[nodiscard]] std::string NameOf(const dossier::KolomGegevens& kolom);
/// "M.C. van den Heuvel"; empty for a person that the case does not have.
[[nodiscard]] std::string NameOf(const std::vector<dossier::PersoonGegevens>& personen, std::int16_t persoon);

[[nodiscard]] std::string CorrectieLastText(const dossier::KolomGegevens& kolom);
[[nodiscard]] std::string CorrectieFiscaalText(const dossier::KolomGegevens& kolom);
/// "per maand"; empty for a code that has no words.
[[nodiscard]] std::string TermijnText(const dossier::KolomGegevens& kolom);
/// The kind of product, the text for another kind included; empty for what is no product.
[[nodiscard]] std::string ProductsoortText(const dossier::KolomGegevens& kolom);
/// "€ 1.234,56", "€ -1.234,56", and "€ ?" for what is no number.
[[nodiscard]] std::string EuroText(double bedrag);
/// What a year has: "€ 310,00", or "2,5 %" of a column of percentages.
[[nodiscard]] std::string ValueText(const dossier::KolomGegevens& kolom, double value);

/// Why a column does not count on the day; empty for one that does.
[[nodiscard]] std::string StandText(sums::Stand stand);
/// How it comes to be in its situation; empty for one of the current situation.
[[nodiscard]] std::string HerkomstText(sums::Herkomst herkomst);
[[nodiscard]] std::string ScenarioText(sums::Levensscenario scenario);

}  // namespace brivane::app::report
