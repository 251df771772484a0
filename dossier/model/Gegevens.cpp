#include "dossier/model/Gegevens.h"

namespace brivane::dossier {

bool IsContract(const KolomGegevens& kolom) { return kolom.Productsoort >= 42 && kolom.Productsoort <= 45; }

std::string Productsoortnaam(std::int16_t productsoort) {
  switch (productsoort) {
    case 42: return "Vereniging";
    case 43: return "Goed doel";
    case 44: return "Krant";
    case 45: return "Tijdschrift";
    default: return {};
  }
}

}  // namespace brivane::dossier
