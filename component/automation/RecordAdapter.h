#pragma once

#include "component/automation/HostSession.h"
#include "host/model/VrijeKolomItem.h"

namespace brivane::component {

/// A period entry of the host.
class PeriodeAdapter final : public AdapterOf<host::Periode> {
 public:
  using AdapterOf::AdapterOf;

  std::int16_t Maand() const override { return Get<std::int16_t>(L"Maand"); }
  void SetMaand(std::int16_t maand) override { Put(L"Maand", maand); }
  double Bedrag() const override { return Get<double>(L"Bedrag"); }
  void SetBedrag(double bedrag) override { Put(L"Bedrag", bedrag); }
  double Percentage() const override { return Get<double>(L"Percentage"); }
  void SetPercentage(double percentage) override { Put(L"Percentage", percentage); }
  double Korting() const override { return Get<double>(L"Korting"); }
  void SetKorting(double korting) override { Put(L"Korting", korting); }
  bool Eenmalig() const override { return Get<bool>(L"Eenmalig"); }
  void SetEenmalig(bool eenmalig) override { Put(L"Eenmalig", eenmalig); }
};

/// An amount object of the host.
class BedragAdapter final : public AdapterOf<host::BedragObject> {
 public:
  using AdapterOf::AdapterOf;

  std::string Naam() const override { return Get<std::string>(L"Naam"); }
  std::int16_t Invoersoort() const override { return Get<std::int16_t>(L"Invoersoort"); }
  double Basisbedrag() const override { return Get<double>(L"Basisbedrag"); }
  void SetBasisbedrag(double bedrag) override { Put(L"Basisbedrag", bedrag); }
  double Bedrag() const override { return Get<double>(L"Bedrag"); }
  void SetBedrag(double bedrag) override { Put(L"Bedrag", bedrag); }
  std::shared_ptr<host::Periode> Periode(std::int16_t positie) override {
    return Session().Adapt<PeriodeAdapter>(Get<ComPtr<IDispatch>>(L"Periode", positie));
  }
  std::int16_t NieuwePeriode() override { return Get<std::int16_t>(L"NieuwePeriode"); }
  void VerwijderPeriode(std::int16_t positie) override { Call(L"VerwijderPeriode", positie); }
};

/// A free column of the host.
class RecordAdapter final : public AdapterOf<host::VrijeKolomItem> {
 public:
  using AdapterOf::AdapterOf;

  std::int16_t Id() const override { return Get<std::int16_t>(L"Id"); }

  std::int16_t CorrectieLast() const override { return Get<std::int16_t>(L"CorrectieLast"); }
  void SetCorrectieLast(std::int16_t code) override { Put(L"CorrectieLast", code); }
  std::int16_t CorrectieFiscaal() const override { return Get<std::int16_t>(L"CorrectieFiscaal"); }
  void SetCorrectieFiscaal(std::int16_t code) override { Put(L"CorrectieFiscaal", code); }
  std::int16_t HeffingBij() const override { return Get<std::int16_t>(L"HeffingBij"); }
  void SetHeffingBij(std::int16_t code) override { Put(L"HeffingBij", code); }

  std::string Omschrijving() const override { return Get<std::string>(L"Omschrijving"); }
  void SetOmschrijving(const std::string& tekst) override { Put(L"Omschrijving", tekst); }
  std::shared_ptr<host::BedragObject> Bedrag() override {
    return Session().Adapt<BedragAdapter>(Get<ComPtr<IDispatch>>(L"Bedrag"));
  }
  std::int16_t Termijn() const override { return Get<std::int16_t>(L"Termijn"); }
  void SetTermijn(std::int16_t code) override { Put(L"Termijn", code); }

  bool InkomenUitArbeid() const override { return Get<bool>(L"InkomenUitArbeid"); }
  void SetInkomenUitArbeid(bool ja) override { Put(L"InkomenUitArbeid", ja); }
  bool InDagloon() const override { return Get<bool>(L"InDagloon"); }
  void SetInDagloon(bool ja) override { Put(L"InDagloon", ja); }

  host::Date DatumAanvang() const override { return Get<host::Date>(L"DatumAanvang"); }
  void SetDatumAanvang(host::Date datum) override { Put(L"DatumAanvang", datum); }
  std::int32_t Looptijd() const override { return Get<std::int32_t>(L"Looptijd"); }
  void SetLooptijd(std::int32_t maanden) override { Put(L"Looptijd", maanden); }
  host::Date Contractvervaldatum() const override { return Get<host::Date>(L"Contractvervaldatum"); }
  void SetContractvervaldatum(host::Date datum) override { Put(L"Contractvervaldatum", datum); }

  bool IsProduct() const override { return Get<bool>(L"IsProduct"); }
  void SetIsProduct(bool ja) override { Put(L"IsProduct", ja); }
  std::string Maatschappij() const override { return Get<std::string>(L"Maatschappij"); }
  void SetMaatschappij(const std::string& code) override { Put(L"Maatschappij", code); }
  std::string MaatschappijNaam() const override { return Get<std::string>(L"MaatschappijNaam"); }
  void SetMaatschappijNaam(const std::string& naam) override { Put(L"MaatschappijNaam", naam); }
  std::int16_t Productsoort() const override { return Get<std::int16_t>(L"Productsoort"); }
  void SetProductsoort(std::int16_t code) override { Put(L"Productsoort", code); }
  std::string ProductsoortOmschrijving() const override { return Get<std::string>(L"ProductsoortOmschrijving"); }
  void SetProductsoortOmschrijving(const std::string& tekst) override { Put(L"ProductsoortOmschrijving", tekst); }
  std::string Productnaam() const override { return Get<std::string>(L"Productnaam"); }
  void SetProductnaam(const std::string& naam) override { Put(L"Productnaam", naam); }
  bool UwBemiddeling() const override { return Get<bool>(L"UwBemiddeling"); }
  void SetUwBemiddeling(bool ja) override { Put(L"UwBemiddeling", ja); }

  std::string Voorstel(std::int16_t nummer) const override { return Get<std::string>(L"Voorstel", nummer); }
  void SetVoorstel(std::int16_t nummer, const std::string& lidmaatschap) override {
    const Variant index[]{Variant(nummer)};
    Target().Put(L"Voorstel", Variant(lidmaatschap), index);
  }

  std::string Weergave() const override { return Get<std::string>(L"Weergave"); }
  std::string Kopregel() const override { return Get<std::string>(L"Kopregel"); }

  bool UitsluitenAO() const override { return Get<bool>(L"UitsluitenAO"); }
  void SetUitsluitenAO(bool uitsluiten) override { Put(L"UitsluitenAO", uitsluiten); }
  bool UitsluitenWW() const override { return Get<bool>(L"UitsluitenWW"); }
  void SetUitsluitenWW(bool uitsluiten) override { Put(L"UitsluitenWW", uitsluiten); }
  bool UitsluitenLangleven() const override { return Get<bool>(L"UitsluitenLangleven"); }
  void SetUitsluitenLangleven(bool uitsluiten) override { Put(L"UitsluitenLangleven", uitsluiten); }
  bool ScenarioOverlijden() const override { return Get<bool>(L"ScenarioOverlijden"); }
  void SetScenarioOverlijden(bool opnemen) override { Put(L"ScenarioOverlijden", opnemen); }
  float PercentageOvergang() const override { return Get<float>(L"PercentageOvergang"); }
  void SetPercentageOvergang(float percentage) override { Put(L"PercentageOvergang", percentage); }
  host::Date EinddatumOvergang() const override { return Get<host::Date>(L"EinddatumOvergang"); }
  void SetEinddatumOvergang(host::Date datum) override { Put(L"EinddatumOvergang", datum); }
  std::int16_t EindleeftijdOvergang() const override { return Get<std::int16_t>(L"EindleeftijdOvergang"); }
  void SetEindleeftijdOvergang(std::int16_t jaren) override { Put(L"EindleeftijdOvergang", jaren); }
};

}  // namespace brivane::component
