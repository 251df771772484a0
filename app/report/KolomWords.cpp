#include "app/report/KolomWords.h"

#include <brivane/frame/Numbers.h>
#include <brivane/host/model/Codes.h>

namespace brivane::app::report {

namespace codes = host::codes;

std::string NameOf(const dossier::KolomGegevens& kolom) {
  if (!kolom.Omschrijving.empty()) return kolom.Omschrijving;
  if (kolom.IsProduct && !kolom.Productnaam.empty()) return kolom.Productnaam;
  return "Vrije kolom";
}

std::string NameOf(const std::vector<dossier::PersoonGegevens>& personen, std::int16_t persoon) {
  if (persoon < 1 || static_cast<std::size_t>(persoon) > personen.size()) return {};
  std::string name;
  for (const std::string& part : personen[static_cast<std::size_t>(persoon - 1)].Naam) {
    if (part.empty()) continue;
    if (!name.empty()) name += ' ';
    name += part;
  }
  return name;
}

std::string CorrectieLastText(const dossier::KolomGegevens& kolom) {
  switch (kolom.CorrectieLast) {
    case codes::kLast: return "Last";
    case codes::kBijdrage: return "Bijdrage";
    case codes::kLastNeutraal: return "Neutraal";
    default: return {};
  }
}

std::string CorrectieFiscaalText(const dossier::KolomGegevens& kolom) {
  switch (kolom.CorrectieFiscaal) {
    case codes::kAftrekpost: return "Aftrekpost";
    case codes::kBijtelling: return "Bijtelling";
    case codes::kFiscaalNeutraal: return "Neutraal";
    default: return {};
  }
}

std::string TermijnText(const dossier::KolomGegevens& kolom) {
  return std::string(codes::WordsFor(kolom.Termijn, codes::kTermijnen));
}

std::string ProductsoortText(const dossier::KolomGegevens& kolom) {
  if (!kolom.IsProduct) return {};
  return kolom.ProductsoortOmschrijving.empty()
             ? std::string(codes::WordsFor(kolom.Productsoort, codes::kProductsoorten))
             : kolom.ProductsoortOmschrijving;
}

std::string EuroText(double bedrag) {
  const std::string amount = frame::ShowAmount(bedrag);
  return "€ " + (amount.empty() ? "?" : amount);
}

std::string ValueText(const dossier::KolomGegevens& kolom, double value) {
  if (sums::EenheidVan(kolom.Bedrag) == sums::Eenheid::Procent) return frame::ShowNumber(value) + " %";
  return EuroText(value);
}

std::string StandText(sums::Stand stand) {
  switch (stand) {
    case sums::Stand::Telt: return {};
    case sums::Stand::GeenAanvang: return "geen aanvangsdatum";
    case sums::Stand::GeenTermijn: return "geen termijn";
    case sums::Stand::NogNiet: return "nog niet";
    case sums::Stand::Afgelopen: return "afgelopen";
    case sums::Stand::Percentage: return "percentage";
    case sums::Stand::NietInScenario: return "niet in scenario";
  }
  return {};
}

std::string HerkomstText(sums::Herkomst herkomst) {
  switch (herkomst) {
    case sums::Herkomst::Huidig: return {};
    case sums::Herkomst::Volgt: return "Volgt de huidige situatie";
    case sums::Herkomst::Afwijking: return "Afwijking van de huidige situatie";
    case sums::Herkomst::AlleenNieuw: return "Alleen in de nieuwe situatie";
  }
  return {};
}

std::string ScenarioText(sums::Levensscenario scenario) {
  switch (scenario) {
    case sums::Levensscenario::ZoalsNu: return "zoals nu";
    case sums::Levensscenario::Arbeidsongeschikt: return "arbeidsongeschiktheid";
    case sums::Levensscenario::Werkloos: return "werkloosheid";
    case sums::Levensscenario::Langleven: return "langleven";
    case sums::Levensscenario::OverlijdenAanvrager: return "overlijden van de aanvrager";
    case sums::Levensscenario::OverlijdenPartner: return "overlijden van de partner";
  }
  return {};
}

}  // namespace brivane::app::report
