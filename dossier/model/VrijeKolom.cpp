#include "dossier/model/VrijeKolom.h"

#include <utility>

namespace brivane::dossier {

VrijeKolom::VrijeKolom(std::shared_ptr<Environment> omgeving, KolomGegevens&& gegevens)
    : omgeving_(std::move(omgeving)), gegevens_(std::move(gegevens)), bedrag_(omgeving_, gegevens_) {}

std::string VrijeKolom::Voorstel(std::int16_t nummer) const { return gegevens_.Voorstel[Plaats(nummer)]; }

void VrijeKolom::SetVoorstel(std::int16_t nummer, const std::string& lidmaatschap) {
  const std::size_t plaats = Plaats(nummer);
  Schrijf(kVoorstelVelden[plaats], gegevens_.Voorstel[plaats], lidmaatschap);
}

std::shared_ptr<host::BedragObject> VrijeKolom::Bedrag() { return {shared_from_this(), &bedrag_}; }

std::string VrijeKolom::Weergave() const { return omgeving_->Kopteksten->Weergave(gegevens_); }
std::string VrijeKolom::Kopregel() const { return omgeving_->Kopteksten->Kopregel(gegevens_); }

KolomGegevens VrijeKolom::Gegevens() const {
  KolomGegevens gegevens = gegevens_;
  for (const auto& periode : bedrag_.Perioden()) gegevens.Bedrag.Perioden.push_back(periode->Gegevens());
  return gegevens;
}

void VrijeKolom::Herlaad(KolomGegevens gegevens) {
  gegevens_ = std::move(gegevens);
  bedrag_.HerlaadPerioden();
}

}  // namespace brivane::dossier
