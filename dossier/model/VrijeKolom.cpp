#include "dossier/model/VrijeKolom.h"

#include <concepts>
#include <utility>

#include "host/Error.h"

namespace brivane::dossier {
namespace {

Waarde AlsWaarde(std::integral auto getal) { return std::int64_t{getal}; }
Waarde AlsWaarde(float getal) { return double{getal}; }
Waarde AlsWaarde(host::Date datum) { return std::int64_t{datum.Days()}; }
Waarde AlsWaarde(const std::string& tekst) { return std::string_view(tekst); }

std::size_t Plaats(std::int16_t voorstel) {
  if (voorstel < 1 || voorstel > 3) throw host::Error(host::ErrorNumber::SubscriptOutOfRange);
  return static_cast<std::size_t>(voorstel - 1);
}

}  // namespace

VrijeKolom::VrijeKolom(std::shared_ptr<Environment> omgeving, KolomGegevens&& gegevens)
    : omgeving_(std::move(omgeving)), gegevens_(std::move(gegevens)), bedrag_(omgeving_, gegevens_) {}

template <class Value> void VrijeKolom::Schrijf(KolomVeld veld, Value& plaats, const Value& waarde) {
  omgeving_->Journal->SetField(gegevens_.Sleutel, veld, AlsWaarde(waarde));
  plaats = waarde;
}

void VrijeKolom::SetCorrectieLast(std::int16_t code) {
  Schrijf(KolomVeld::CorrectieLast, gegevens_.CorrectieLast, code);
}
void VrijeKolom::SetCorrectieFiscaal(std::int16_t code) {
  Schrijf(KolomVeld::CorrectieFiscaal, gegevens_.CorrectieFiscaal, code);
}
void VrijeKolom::SetHeffingBij(std::int16_t code) { Schrijf(KolomVeld::HeffingBij, gegevens_.HeffingBij, code); }
void VrijeKolom::SetOmschrijving(const std::string& tekst) {
  Schrijf(KolomVeld::Omschrijving, gegevens_.Omschrijving, tekst);
}
void VrijeKolom::SetTermijn(std::int16_t code) { Schrijf(KolomVeld::Termijn, gegevens_.Termijn, code); }
void VrijeKolom::SetInkomenUitArbeid(bool ja) { Schrijf(KolomVeld::InkomenUitArbeid, gegevens_.InkomenUitArbeid, ja); }
void VrijeKolom::SetInDagloon(bool ja) { Schrijf(KolomVeld::InDagloon, gegevens_.InDagloon, ja); }
void VrijeKolom::SetDatumAanvang(host::Date datum) { Schrijf(KolomVeld::DatumAanvang, gegevens_.DatumAanvang, datum); }
void VrijeKolom::SetLooptijd(std::int32_t maanden) { Schrijf(KolomVeld::Looptijd, gegevens_.Looptijd, maanden); }
void VrijeKolom::SetContractvervaldatum(host::Date datum) {
  Schrijf(KolomVeld::Contractvervaldatum, gegevens_.Contractvervaldatum, datum);
}
void VrijeKolom::SetIsProduct(bool ja) { Schrijf(KolomVeld::IsProduct, gegevens_.IsProduct, ja); }
void VrijeKolom::SetMaatschappij(const std::string& code) {
  Schrijf(KolomVeld::Maatschappij, gegevens_.Maatschappij, code);
}
void VrijeKolom::SetMaatschappijNaam(const std::string& naam) {
  Schrijf(KolomVeld::MaatschappijNaam, gegevens_.MaatschappijNaam, naam);
}
void VrijeKolom::SetProductsoort(std::int16_t code) { Schrijf(KolomVeld::Productsoort, gegevens_.Productsoort, code); }
void VrijeKolom::SetProductsoortOmschrijving(const std::string& tekst) {
  Schrijf(KolomVeld::ProductsoortOmschrijving, gegevens_.ProductsoortOmschrijving, tekst);
}
void VrijeKolom::SetProductnaam(const std::string& naam) {
  Schrijf(KolomVeld::Productnaam, gegevens_.Productnaam, naam);
}
void VrijeKolom::SetUwBemiddeling(bool ja) { Schrijf(KolomVeld::UwBemiddeling, gegevens_.UwBemiddeling, ja); }
void VrijeKolom::SetUitsluitenAO(bool uitsluiten) {
  Schrijf(KolomVeld::UitsluitenAO, gegevens_.UitsluitenAO, uitsluiten);
}
void VrijeKolom::SetUitsluitenWW(bool uitsluiten) {
  Schrijf(KolomVeld::UitsluitenWW, gegevens_.UitsluitenWW, uitsluiten);
}
void VrijeKolom::SetUitsluitenLangleven(bool uitsluiten) {
  Schrijf(KolomVeld::UitsluitenLangleven, gegevens_.UitsluitenLangleven, uitsluiten);
}
void VrijeKolom::SetScenarioOverlijden(bool opnemen) {
  Schrijf(KolomVeld::ScenarioOverlijden, gegevens_.ScenarioOverlijden, opnemen);
}
void VrijeKolom::SetPercentageOvergang(float percentage) {
  Schrijf(KolomVeld::PercentageOvergang, gegevens_.PercentageOvergang, percentage);
}
void VrijeKolom::SetEinddatumOvergang(host::Date datum) {
  Schrijf(KolomVeld::EinddatumOvergang, gegevens_.EinddatumOvergang, datum);
}
void VrijeKolom::SetEindleeftijdOvergang(std::int16_t jaren) {
  Schrijf(KolomVeld::EindleeftijdOvergang, gegevens_.EindleeftijdOvergang, jaren);
}

std::string VrijeKolom::Voorstel(std::int16_t nummer) const { return gegevens_.Voorstel[Plaats(nummer)]; }

void VrijeKolom::SetVoorstel(std::int16_t nummer, const std::string& lidmaatschap) {
  constexpr KolomVeld kVelden[] = {KolomVeld::Voorstel1, KolomVeld::Voorstel2, KolomVeld::Voorstel3};
  const std::size_t plaats = Plaats(nummer);
  Schrijf(kVelden[plaats], gegevens_.Voorstel[plaats], lidmaatschap);
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
