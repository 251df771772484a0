#pragma once

#include <memory>

#include "dossier/model/Bedrag.h"
#include "dossier/model/Environment.h"
#include "host/model/VrijeKolomItem.h"

namespace brivane::dossier {

/// A free column of a case. The file keeps a change before the memory shows it.
///
/// Made by its loan and kept by it; whoever holds it after it was removed holds a column of no loan.
class VrijeKolom : public host::VrijeKolomItem, public std::enable_shared_from_this<VrijeKolom> {
 public:
  VrijeKolom(std::shared_ptr<Environment> omgeving, KolomGegevens&& gegevens);
  VrijeKolom(const VrijeKolom&) = delete;
  VrijeKolom& operator=(const VrijeKolom&) = delete;

  [[nodiscard]] std::int16_t Id() const override { return gegevens_.Id; }
  [[nodiscard]] std::int16_t CorrectieLast() const override { return gegevens_.CorrectieLast; }
  void SetCorrectieLast(std::int16_t code) override;
  [[nodiscard]] std::int16_t CorrectieFiscaal() const override { return gegevens_.CorrectieFiscaal; }
  void SetCorrectieFiscaal(std::int16_t code) override;
  [[nodiscard]] std::int16_t HeffingBij() const override { return gegevens_.HeffingBij; }
  void SetHeffingBij(std::int16_t code) override;
  [[nodiscard]] std::string Omschrijving() const override { return gegevens_.Omschrijving; }
  void SetOmschrijving(const std::string& tekst) override;
  [[nodiscard]] std::shared_ptr<host::BedragObject> Bedrag() override;
  [[nodiscard]] std::int16_t Termijn() const override { return gegevens_.Termijn; }
  void SetTermijn(std::int16_t code) override;
  [[nodiscard]] bool InkomenUitArbeid() const override { return gegevens_.InkomenUitArbeid; }
  void SetInkomenUitArbeid(bool ja) override;
  [[nodiscard]] bool InDagloon() const override { return gegevens_.InDagloon; }
  void SetInDagloon(bool ja) override;
  [[nodiscard]] host::Date DatumAanvang() const override { return gegevens_.DatumAanvang; }
  void SetDatumAanvang(host::Date datum) override;
  [[nodiscard]] std::int32_t Looptijd() const override { return gegevens_.Looptijd; }
  void SetLooptijd(std::int32_t maanden) override;
  [[nodiscard]] host::Date Contractvervaldatum() const override { return gegevens_.Contractvervaldatum; }
  void SetContractvervaldatum(host::Date datum) override;
  [[nodiscard]] bool IsProduct() const override { return gegevens_.IsProduct; }
  void SetIsProduct(bool ja) override;
  [[nodiscard]] std::string Maatschappij() const override { return gegevens_.Maatschappij; }
  void SetMaatschappij(const std::string& code) override;
  [[nodiscard]] std::string MaatschappijNaam() const override { return gegevens_.MaatschappijNaam; }
  void SetMaatschappijNaam(const std::string& naam) override;
  [[nodiscard]] std::int16_t Productsoort() const override { return gegevens_.Productsoort; }
  void SetProductsoort(std::int16_t code) override;
  [[nodiscard]] std::string ProductsoortOmschrijving() const override { return gegevens_.ProductsoortOmschrijving; }
  void SetProductsoortOmschrijving(const std::string& tekst) override;
  [[nodiscard]] std::string Productnaam() const override { return gegevens_.Productnaam; }
  void SetProductnaam(const std::string& naam) override;
  [[nodiscard]] bool UwBemiddeling() const override { return gegevens_.UwBemiddeling; }
  void SetUwBemiddeling(bool ja) override;
  /// A number other than 1, 2, 3 fails with error 9, reading and writing.
  [[nodiscard]] std::string Voorstel(std::int16_t nummer) const override;
  void SetVoorstel(std::int16_t nummer, const std::string& lidmaatschap) override;
  [[nodiscard]] std::string Weergave() const override;
  [[nodiscard]] std::string Kopregel() const override;
  [[nodiscard]] bool UitsluitenAO() const override { return gegevens_.UitsluitenAO; }
  void SetUitsluitenAO(bool uitsluiten) override;
  [[nodiscard]] bool UitsluitenWW() const override { return gegevens_.UitsluitenWW; }
  void SetUitsluitenWW(bool uitsluiten) override;
  [[nodiscard]] bool UitsluitenLangleven() const override { return gegevens_.UitsluitenLangleven; }
  void SetUitsluitenLangleven(bool uitsluiten) override;
  [[nodiscard]] bool ScenarioOverlijden() const override { return gegevens_.ScenarioOverlijden; }
  void SetScenarioOverlijden(bool opnemen) override;
  [[nodiscard]] float PercentageOvergang() const override { return gegevens_.PercentageOvergang; }
  void SetPercentageOvergang(float percentage) override;
  [[nodiscard]] host::Date EinddatumOvergang() const override { return gegevens_.EinddatumOvergang; }
  void SetEinddatumOvergang(host::Date datum) override;
  [[nodiscard]] std::int16_t EindleeftijdOvergang() const override { return gegevens_.EindleeftijdOvergang; }
  void SetEindleeftijdOvergang(std::int16_t jaren) override;

  [[nodiscard]] dossier::Sleutel Sleutel() const { return gegevens_.Sleutel; }
  /// Everything the column holds, its periods included.
  [[nodiscard]] KolomGegevens Gegevens() const;
  /// Takes over what is stored, telling nobody; the amount object and known periods stay the same objects.
  void Herlaad(KolomGegevens gegevens);
  /// The file has given the column another identifier.
  void Hernummer(std::int16_t Id) { gegevens_.Id = Id; }

 private:
  template <class Value> void Schrijf(KolomVeld veld, Value& plaats, const Value& waarde);

  std::shared_ptr<Environment> omgeving_;
  /// All but the periods, which stand in the amount object.
  KolomGegevens gegevens_;
  BedragObject bedrag_;
};

}  // namespace brivane::dossier
