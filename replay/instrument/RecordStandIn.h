#pragma once

#include "replay/instrument/AmountStandIn.h"

namespace brivane::replay {

/// A free column.
class RecordStandIn : public StandIn<host::VrijeKolomItem> {
 public:
  using StandIn::StandIn;

  std::int16_t Id() const override { return Get(Member::VrijeKolomItem_Id, {}, &host::VrijeKolomItem::Id); }
  std::int16_t CorrectieLast() const override {
    return Get(Member::VrijeKolomItem_CorrectieLast, {}, &host::VrijeKolomItem::CorrectieLast);
  }
  void SetCorrectieLast(std::int16_t code) override {
    Set(Member::VrijeKolomItem_CorrectieLast, {}, &host::VrijeKolomItem::SetCorrectieLast, code,
        &host::VrijeKolomItem::CorrectieLast);
  }
  std::int16_t CorrectieFiscaal() const override {
    return Get(Member::VrijeKolomItem_CorrectieFiscaal, {}, &host::VrijeKolomItem::CorrectieFiscaal);
  }
  void SetCorrectieFiscaal(std::int16_t code) override {
    Set(Member::VrijeKolomItem_CorrectieFiscaal, {}, &host::VrijeKolomItem::SetCorrectieFiscaal, code,
        &host::VrijeKolomItem::CorrectieFiscaal);
  }
  std::int16_t HeffingBij() const override {
    return Get(Member::VrijeKolomItem_HeffingBij, {}, &host::VrijeKolomItem::HeffingBij);
  }
  void SetHeffingBij(std::int16_t code) override {
    Set(Member::VrijeKolomItem_HeffingBij, {}, &host::VrijeKolomItem::SetHeffingBij, code,
        &host::VrijeKolomItem::HeffingBij);
  }
  std::string Omschrijving() const override {
    return Get(Member::VrijeKolomItem_Omschrijving, {}, &host::VrijeKolomItem::Omschrijving);
  }
  void SetOmschrijving(const std::string& tekst) override {
    Set(Member::VrijeKolomItem_Omschrijving, {}, &host::VrijeKolomItem::SetOmschrijving, tekst,
        &host::VrijeKolomItem::Omschrijving);
  }
  std::shared_ptr<host::BedragObject> Bedrag() override {
    return StandInOf<AmountStandIn>(shared_, Object(Member::VrijeKolomItem_Bedrag, &host::VrijeKolomItem::Bedrag));
  }
  std::int16_t Termijn() const override {
    return Get(Member::VrijeKolomItem_Termijn, {}, &host::VrijeKolomItem::Termijn);
  }
  void SetTermijn(std::int16_t code) override {
    Set(Member::VrijeKolomItem_Termijn, {}, &host::VrijeKolomItem::SetTermijn, code, &host::VrijeKolomItem::Termijn);
  }
  bool InkomenUitArbeid() const override {
    return Get(Member::VrijeKolomItem_InkomenUitArbeid, {}, &host::VrijeKolomItem::InkomenUitArbeid);
  }
  void SetInkomenUitArbeid(bool ja) override {
    Set(Member::VrijeKolomItem_InkomenUitArbeid, {}, &host::VrijeKolomItem::SetInkomenUitArbeid, ja,
        &host::VrijeKolomItem::InkomenUitArbeid);
  }
  bool InDagloon() const override {
    return Get(Member::VrijeKolomItem_InDagloon, {}, &host::VrijeKolomItem::InDagloon);
  }
  void SetInDagloon(bool ja) override {
    Set(Member::VrijeKolomItem_InDagloon, {}, &host::VrijeKolomItem::SetInDagloon, ja,
        &host::VrijeKolomItem::InDagloon);
  }
  host::Date DatumAanvang() const override {
    return Get(Member::VrijeKolomItem_DatumAanvang, {}, &host::VrijeKolomItem::DatumAanvang);
  }
  void SetDatumAanvang(host::Date datum) override {
    Set(Member::VrijeKolomItem_DatumAanvang, {}, &host::VrijeKolomItem::SetDatumAanvang, datum,
        &host::VrijeKolomItem::DatumAanvang);
  }
  std::int32_t Looptijd() const override {
    return Get(Member::VrijeKolomItem_Looptijd, {}, &host::VrijeKolomItem::Looptijd);
  }
  void SetLooptijd(std::int32_t maanden) override {
    Set(Member::VrijeKolomItem_Looptijd, {}, &host::VrijeKolomItem::SetLooptijd, maanden,
        &host::VrijeKolomItem::Looptijd);
  }
  host::Date Contractvervaldatum() const override {
    return Get(Member::VrijeKolomItem_Contractvervaldatum, {}, &host::VrijeKolomItem::Contractvervaldatum);
  }
  void SetContractvervaldatum(host::Date datum) override {
    Set(Member::VrijeKolomItem_Contractvervaldatum, {}, &host::VrijeKolomItem::SetContractvervaldatum, datum,
        &host::VrijeKolomItem::Contractvervaldatum);
  }
  bool IsProduct() const override {
    return Get(Member::VrijeKolomItem_IsProduct, {}, &host::VrijeKolomItem::IsProduct);
  }
  void SetIsProduct(bool ja) override {
    Set(Member::VrijeKolomItem_IsProduct, {}, &host::VrijeKolomItem::SetIsProduct, ja,
        &host::VrijeKolomItem::IsProduct);
  }
  std::string Maatschappij() const override {
    return Get(Member::VrijeKolomItem_Maatschappij, {}, &host::VrijeKolomItem::Maatschappij);
  }
  void SetMaatschappij(const std::string& code) override {
    Set(Member::VrijeKolomItem_Maatschappij, {}, &host::VrijeKolomItem::SetMaatschappij, code,
        &host::VrijeKolomItem::Maatschappij);
  }
  std::string MaatschappijNaam() const override {
    return Get(Member::VrijeKolomItem_MaatschappijNaam, {}, &host::VrijeKolomItem::MaatschappijNaam);
  }
  void SetMaatschappijNaam(const std::string& naam) override {
    Set(Member::VrijeKolomItem_MaatschappijNaam, {}, &host::VrijeKolomItem::SetMaatschappijNaam, naam,
        &host::VrijeKolomItem::MaatschappijNaam);
  }
  std::int16_t Productsoort() const override {
    return Get(Member::VrijeKolomItem_Productsoort, {}, &host::VrijeKolomItem::Productsoort);
  }
  void SetProductsoort(std::int16_t code) override {
    Set(Member::VrijeKolomItem_Productsoort, {}, &host::VrijeKolomItem::SetProductsoort, code,
        &host::VrijeKolomItem::Productsoort);
  }
  std::string ProductsoortOmschrijving() const override {
    return Get(Member::VrijeKolomItem_ProductsoortOmschrijving, {}, &host::VrijeKolomItem::ProductsoortOmschrijving);
  }
  void SetProductsoortOmschrijving(const std::string& tekst) override {
    Set(Member::VrijeKolomItem_ProductsoortOmschrijving, {}, &host::VrijeKolomItem::SetProductsoortOmschrijving, tekst,
        &host::VrijeKolomItem::ProductsoortOmschrijving);
  }
  std::string Productnaam() const override {
    return Get(Member::VrijeKolomItem_Productnaam, {}, &host::VrijeKolomItem::Productnaam);
  }
  void SetProductnaam(const std::string& naam) override {
    Set(Member::VrijeKolomItem_Productnaam, {}, &host::VrijeKolomItem::SetProductnaam, naam,
        &host::VrijeKolomItem::Productnaam);
  }
  bool UwBemiddeling() const override {
    return Get(Member::VrijeKolomItem_UwBemiddeling, {}, &host::VrijeKolomItem::UwBemiddeling);
  }
  void SetUwBemiddeling(bool ja) override {
    Set(Member::VrijeKolomItem_UwBemiddeling, {}, &host::VrijeKolomItem::SetUwBemiddeling, ja,
        &host::VrijeKolomItem::UwBemiddeling);
  }
  std::string Voorstel(std::int16_t nummer) const override {
    return Get(Member::VrijeKolomItem_Voorstel, nummer, &host::VrijeKolomItem::Voorstel, nummer);
  }
  void SetVoorstel(std::int16_t nummer, const std::string& lidmaatschap) override {
    Set(
        Member::VrijeKolomItem_Voorstel, nummer,
        [&](host::VrijeKolomItem& item) { item.SetVoorstel(nummer, lidmaatschap); },
        [&](const host::VrijeKolomItem& item) { return item.Voorstel(nummer); });
  }
  std::string Weergave() const override {
    return Get(Member::VrijeKolomItem_Weergave, {}, &host::VrijeKolomItem::Weergave);
  }
  std::string Kopregel() const override {
    return Get(Member::VrijeKolomItem_Kopregel, {}, &host::VrijeKolomItem::Kopregel);
  }
  bool UitsluitenAO() const override {
    return Get(Member::VrijeKolomItem_UitsluitenAO, {}, &host::VrijeKolomItem::UitsluitenAO);
  }
  void SetUitsluitenAO(bool uitsluiten) override {
    Set(Member::VrijeKolomItem_UitsluitenAO, {}, &host::VrijeKolomItem::SetUitsluitenAO, uitsluiten,
        &host::VrijeKolomItem::UitsluitenAO);
  }
  bool UitsluitenWW() const override {
    return Get(Member::VrijeKolomItem_UitsluitenWW, {}, &host::VrijeKolomItem::UitsluitenWW);
  }
  void SetUitsluitenWW(bool uitsluiten) override {
    Set(Member::VrijeKolomItem_UitsluitenWW, {}, &host::VrijeKolomItem::SetUitsluitenWW, uitsluiten,
        &host::VrijeKolomItem::UitsluitenWW);
  }
  bool UitsluitenLangleven() const override {
    return Get(Member::VrijeKolomItem_UitsluitenLangleven, {}, &host::VrijeKolomItem::UitsluitenLangleven);
  }
  void SetUitsluitenLangleven(bool uitsluiten) override {
    Set(Member::VrijeKolomItem_UitsluitenLangleven, {}, &host::VrijeKolomItem::SetUitsluitenLangleven, uitsluiten,
        &host::VrijeKolomItem::UitsluitenLangleven);
  }
  bool ScenarioOverlijden() const override {
    return Get(Member::VrijeKolomItem_ScenarioOverlijden, {}, &host::VrijeKolomItem::ScenarioOverlijden);
  }
  void SetScenarioOverlijden(bool opnemen) override {
    Set(Member::VrijeKolomItem_ScenarioOverlijden, {}, &host::VrijeKolomItem::SetScenarioOverlijden, opnemen,
        &host::VrijeKolomItem::ScenarioOverlijden);
  }
  float PercentageOvergang() const override {
    return Get(Member::VrijeKolomItem_PercentageOvergang, {}, &host::VrijeKolomItem::PercentageOvergang);
  }
  void SetPercentageOvergang(float percentage) override {
    Set(Member::VrijeKolomItem_PercentageOvergang, {}, &host::VrijeKolomItem::SetPercentageOvergang, percentage,
        &host::VrijeKolomItem::PercentageOvergang);
  }
  host::Date EinddatumOvergang() const override {
    return Get(Member::VrijeKolomItem_EinddatumOvergang, {}, &host::VrijeKolomItem::EinddatumOvergang);
  }
  void SetEinddatumOvergang(host::Date datum) override {
    Set(Member::VrijeKolomItem_EinddatumOvergang, {}, &host::VrijeKolomItem::SetEinddatumOvergang, datum,
        &host::VrijeKolomItem::EinddatumOvergang);
  }
  std::int16_t EindleeftijdOvergang() const override {
    return Get(Member::VrijeKolomItem_EindleeftijdOvergang, {}, &host::VrijeKolomItem::EindleeftijdOvergang);
  }
  void SetEindleeftijdOvergang(std::int16_t jaren) override {
    Set(Member::VrijeKolomItem_EindleeftijdOvergang, {}, &host::VrijeKolomItem::SetEindleeftijdOvergang, jaren,
        &host::VrijeKolomItem::EindleeftijdOvergang);
  }
};

}  // namespace brivane::replay
