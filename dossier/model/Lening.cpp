#include "dossier/model/Lening.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include <brivane/host/Error.h>

namespace brivane::dossier {

Lening::Lening(std::shared_ptr<Environment> omgeving, LeningGegevens gegevens) : omgeving_(std::move(omgeving)) {
  Herlaad(std::move(gegevens));
}

std::shared_ptr<host::VrijeKolomItem> Lening::VrijeKolommen(std::int16_t Vrij_Id) { return Zoek(Vrij_Id); }
std::shared_ptr<host::VrijeKolomItem> Lening::VrijeKolom(std::int16_t Vrij_Id) { return Zoek(Vrij_Id); }

std::shared_ptr<host::VrijeKolomItem> Lening::VrijeKolomOp(std::int16_t positie) {
  if (positie < 1 || static_cast<std::size_t>(positie) > kolommen_.size()) return nullptr;
  return kolommen_[static_cast<std::size_t>(positie - 1)];
}

void Lening::VerwijderVrijeKolom(std::int16_t positie) {
  if (!VrijeKolomOp(positie)) throw host::Error(host::ErrorNumber::SubscriptOutOfRange);
  const auto plaats = kolommen_.begin() + (positie - 1);
  omgeving_->Journal->RemoveColumn((*plaats)->Sleutel());
  kolommen_.erase(plaats);
}

std::shared_ptr<dossier::VrijeKolom> Lening::Zoek(std::int16_t Vrij_Id) const {
  const auto plaats =
      std::find_if(kolommen_.begin(), kolommen_.end(), [&](const auto& kolom) { return kolom->Id() == Vrij_Id; });
  return plaats == kolommen_.end() ? nullptr : *plaats;
}

std::shared_ptr<dossier::VrijeKolom> Lening::VoegToe(KolomGegevens gegevens) {
  omgeving_->Journal->AddColumn(sleutel_, gegevens);
  return kolommen_.emplace_back(std::make_shared<dossier::VrijeKolom>(omgeving_, std::move(gegevens)));
}

void Lening::Verplaats(std::int16_t Vrij_Id, dossier::Lening& naar, std::int16_t nieuwId) {
  const std::shared_ptr<dossier::VrijeKolom> kolom = Zoek(Vrij_Id);
  omgeving_->Journal->MoveColumn(host::Need(kolom).Sleutel(), naar.sleutel_, nieuwId);
  kolom->Hernummer(nieuwId);
  std::erase(kolommen_, kolom);
  naar.kolommen_.push_back(kolom);
}

void Lening::Hernoem(const std::string& naam) {
  omgeving_->Journal->RenameLoan(sleutel_, naam);
  naam_ = naam;
}

LeningGegevens Lening::Gegevens() const {
  LeningGegevens gegevens{.Sleutel = sleutel_, .Naam = naam_, .VrijeKolommen = {}};
  for (const auto& kolom : kolommen_) gegevens.VrijeKolommen.push_back(kolom->Gegevens());
  return gegevens;
}

void Lening::Herlaad(LeningGegevens gegevens) {
  sleutel_ = gegevens.Sleutel;
  naam_ = std::move(gegevens.Naam);
  std::unordered_map<dossier::Sleutel, std::shared_ptr<dossier::VrijeKolom>> bekend;
  for (const auto& kolom : std::exchange(kolommen_, {})) bekend.emplace(kolom->Sleutel(), kolom);
  kolommen_.reserve(gegevens.VrijeKolommen.size());
  for (KolomGegevens& kolom : gegevens.VrijeKolommen) {
    const auto oud = bekend.find(kolom.Sleutel);
    if (oud == bekend.end()) {
      kolommen_.push_back(std::make_shared<dossier::VrijeKolom>(omgeving_, std::move(kolom)));
    } else {
      oud->second->Herlaad(std::move(kolom));
      kolommen_.push_back(oud->second);
    }
  }
}

}  // namespace brivane::dossier
