#include "dossier/model/Kopteksten.h"

#include "frame/Numbers.h"

namespace brivane::dossier {
namespace {

/// What the column is, in at most two parts: the kind of product, and the description or the product's name.
std::string Onderwerp(const KolomGegevens& kolom) {
  const std::string soort = kolom.IsProduct ? kolom.ProductsoortOmschrijving : std::string();
  const std::string& naam = kolom.Omschrijving.empty() && kolom.IsProduct ? kolom.Productnaam : kolom.Omschrijving;
  if (soort.empty() && naam.empty()) return "Vrije kolom";
  if (soort.empty() || soort == naam) return naam;
  return naam.empty() ? soort : soort + " · " + naam;
}

}  // namespace

std::string Kopteksten::Weergave(const KolomGegevens& kolom) const { return kolom.Weergave; }
std::string Kopteksten::Kopregel(const KolomGegevens& kolom) const { return kolom.Kopregel; }

std::string BerekendeKopteksten::Weergave(const KolomGegevens& kolom) const { return Kopregel(kolom); }

std::string BerekendeKopteksten::Kopregel(const KolomGegevens& kolom) const {
  // An amount that is no number has no text; there is something to read all the same.
  const std::string bedrag = frame::ShowAmount(kolom.Bedrag.Bedrag);
  std::string tekst = Onderwerp(kolom) + " · € " + (bedrag.empty() ? "?" : bedrag);
  if (const std::string termijn = TermijnTekst(kolom.Termijn); !termijn.empty()) tekst += " " + termijn;
  return tekst;
}

std::string TermijnTekst(std::int16_t termijn) {
  switch (termijn) {
    case 1: return "per maand";
    case 3: return "per kwartaal";
    case 6: return "per half jaar";
    case 12: return "per jaar";
    case kEenmalig: return "eenmalig";
    default: return {};
  }
}

}  // namespace brivane::dossier
