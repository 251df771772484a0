#include "dossier/model/Kopteksten.h"

#include <cmath>
#include <cstdio>
#include <cstring>
#include <string_view>

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
  std::string tekst = Onderwerp(kolom) + " · € " + BedragTekst(kolom.Bedrag.Bedrag);
  if (const std::string termijn = TermijnTekst(kolom.Termijn); !termijn.empty()) tekst += " " + termijn;
  return tekst;
}

std::string BedragTekst(double bedrag) {
  if (!std::isfinite(bedrag)) return "?";
  // Rounding in cents first: printing alone would round a half to even.
  const double centen = std::round(std::fabs(bedrag) * 100);
  char cijfers[400];
  std::snprintf(cijfers, sizeof cijfers, "%03.0f", centen);
  const std::string_view geheel(cijfers, std::strlen(cijfers) - 2);
  std::string tekst = bedrag < 0 && centen > 0 ? "-" : "";
  for (std::size_t plaats = 0; plaats < geheel.size(); ++plaats) {
    if (plaats > 0 && (geheel.size() - plaats) % 3 == 0) tekst += '.';
    tekst += geheel[plaats];
  }
  tekst += ',';
  return tekst += cijfers + geheel.size();
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
