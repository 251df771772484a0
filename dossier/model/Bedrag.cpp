#include "dossier/model/Bedrag.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <brivane/host/Error.h>

namespace brivane::dossier {

Periode::Periode(std::shared_ptr<Environment> omgeving, PeriodeGegevens gegevens)
    : omgeving_(std::move(omgeving)), gegevens_(gegevens) {}

BedragObject::BedragObject(std::shared_ptr<Environment> omgeving, KolomGegevens& kolom)
    : omgeving_(std::move(omgeving)), kolom_(kolom) {
  HerlaadPerioden();
}

std::string BedragObject::Naam() const { return kolom_.Bedrag.Naam; }
std::int16_t BedragObject::Invoersoort() const { return kolom_.Bedrag.Invoersoort; }
double BedragObject::Basisbedrag() const { return kolom_.Bedrag.Bedrag; }
void BedragObject::SetBasisbedrag(double bedrag) { SetBedrag(bedrag); }
double BedragObject::Bedrag() const { return kolom_.Bedrag.Bedrag; }

void BedragObject::SetBedrag(double bedrag) {
  omgeving_->Journal->SetField(kolom_.Sleutel, kBasisbedrag, bedrag);
  kolom_.Bedrag.Bedrag = bedrag;
}

std::shared_ptr<host::Periode> BedragObject::Periode(std::int16_t positie) {
  if (positie < 1 || static_cast<std::size_t>(positie) > perioden_.size()) return nullptr;
  return perioden_[static_cast<std::size_t>(positie - 1)];
}

std::int16_t BedragObject::NieuwePeriode() {
  if (perioden_.size() >= std::numeric_limits<std::int16_t>::max()) throw host::Error(host::ErrorNumber::Overflow);
  const Sleutel sleutel = omgeving_->Journal->AddPeriod(kolom_.Sleutel);
  perioden_.push_back(std::make_shared<dossier::Periode>(omgeving_, PeriodeGegevens{{}, sleutel}));
  return static_cast<std::int16_t>(perioden_.size());
}

void BedragObject::VerwijderPeriode(std::int16_t positie) {
  if (!Periode(positie)) throw host::Error(host::ErrorNumber::SubscriptOutOfRange);
  const auto plaats = perioden_.begin() + (positie - 1);
  omgeving_->Journal->RemovePeriod((*plaats)->Gegevens().Sleutel);
  perioden_.erase(plaats);
}

void BedragObject::HerlaadPerioden() {
  const auto bekend = std::exchange(perioden_, {});
  for (const PeriodeGegevens& gegevens : std::exchange(kolom_.Bedrag.Perioden, {})) {
    const auto oud = std::find_if(bekend.begin(), bekend.end(), [&](const auto& periode) {
      return gegevens.Sleutel != 0 && periode->Gegevens().Sleutel == gegevens.Sleutel;
    });
    if (oud == bekend.end()) {
      perioden_.push_back(std::make_shared<dossier::Periode>(omgeving_, gegevens));
    } else {
      (*oud)->Herlaad(gegevens);
      perioden_.push_back(*oud);
    }
  }
}

}  // namespace brivane::dossier
