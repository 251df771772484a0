#include "dossier/model/Kopteksten.h"

#include <string_view>

#include <brivane/frame/Numbers.h>
#include <brivane/host/model/Codes.h>

namespace brivane::dossier {
namespace {

constexpr std::int16_t kPercentages = 2;  ///< kind of input

}  // namespace

std::string Onderwerp(const KolomGegevens& kolom) {
  const std::string soort = kolom.IsProduct ? kolom.ProductsoortOmschrijving : std::string();
  const std::string& naam = kolom.Omschrijving.empty() && kolom.IsProduct ? kolom.Productnaam : kolom.Omschrijving;
  if (soort.empty() && naam.empty()) return "Vrije kolom";
  if (soort.empty() || soort == naam) return naam;
  return naam.empty() ? soort : soort + " · " + naam;
}

std::string Basisbedrag(const KolomGegevens& kolom) {
  const std::string getal = frame::ShowAmount(kolom.Bedrag.Bedrag);
  // An amount that is no number has no text; there is something to read all the same.
  const std::string leesbaar = getal.empty() ? "?" : getal;
  return kolom.Bedrag.Invoersoort == kPercentages ? leesbaar + " %" : "€ " + leesbaar;
}

std::string Kopteksten::Weergave(const KolomGegevens& kolom) const { return kolom.Weergave; }
std::string Kopteksten::Kopregel(const KolomGegevens& kolom) const { return kolom.Kopregel; }

std::string BerekendeKopteksten::Weergave(const KolomGegevens& kolom) const { return Kopregel(kolom); }

std::string BerekendeKopteksten::Kopregel(const KolomGegevens& kolom) const {
  std::string tekst = Onderwerp(kolom) + " · " + Basisbedrag(kolom);
  const std::string_view termijn = host::codes::WordsFor(kolom.Termijn, host::codes::kTermijnen);
  if (!termijn.empty()) tekst.append(" ").append(termijn);
  return tekst;
}

}  // namespace brivane::dossier
