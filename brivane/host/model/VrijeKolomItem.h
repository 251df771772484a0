#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include <brivane/host/Date.h>
#include <brivane/host/model/BedragObject.h>

namespace brivane::host {

/// The host's record of one free column. Every accepted edit is written here at once; a record may
/// adjust what it is given, and the controls show what they read back.
class VrijeKolomItem {
 public:
  virtual ~VrijeKolomItem() = default;

  /// Identifier of the column within its loan.
  [[nodiscard]] virtual std::int16_t Id() const = 0;

  /// Burden correction: 1 "Last", 2 "Bijdrage", 3 "Neutraal".
  [[nodiscard]] virtual std::int16_t CorrectieLast() const = 0;
  virtual void SetCorrectieLast(std::int16_t code) = 0;
  /// Fiscal correction: 1 "Aftrekpost", 2 "Bijtelling", 3 "Neutraal".
  [[nodiscard]] virtual std::int16_t CorrectieFiscaal() const = 0;
  virtual void SetCorrectieFiscaal(std::int16_t code) = 0;
  /// Whose tax the column counts in: 1 applicant, 2 partner.
  [[nodiscard]] virtual std::int16_t HeffingBij() const = 0;
  virtual void SetHeffingBij(std::int16_t code) = 0;

  [[nodiscard]] virtual std::string Omschrijving() const = 0;
  virtual void SetOmschrijving(const std::string& tekst) = 0;
  /// The amount object; it lives as long as the record.
  [[nodiscard]] virtual std::shared_ptr<BedragObject> Bedrag() = 0;
  /// Months per instalment: 1, 3, 6, 12; 99 for one-off.
  [[nodiscard]] virtual std::int16_t Termijn() const = 0;
  virtual void SetTermijn(std::int16_t code) = 0;

  /// Income from work.
  [[nodiscard]] virtual bool InkomenUitArbeid() const = 0;
  virtual void SetInkomenUitArbeid(bool ja) = 0;
  /// Part of the day wage.
  [[nodiscard]] virtual bool InDagloon() const = 0;
  virtual void SetInDagloon(bool ja) = 0;

  /// Start date; no date when not set.
  [[nodiscard]] virtual Date DatumAanvang() const = 0;
  virtual void SetDatumAanvang(Date datum) = 0;
  /// Duration in months; 0 when not set.
  [[nodiscard]] virtual std::int32_t Looptijd() const = 0;
  virtual void SetLooptijd(std::int32_t maanden) = 0;
  /// Contract expiry date, used in place of the duration for the contract kinds.
  [[nodiscard]] virtual Date Contractvervaldatum() const = 0;
  virtual void SetContractvervaldatum(Date datum) = 0;

  [[nodiscard]] virtual bool IsProduct() const = 0;
  virtual void SetIsProduct(bool ja) = 0;
  /// Company code of the code table "MaatschappijType"; "ZZ" for a company named in text.
  [[nodiscard]] virtual std::string Maatschappij() const = 0;
  virtual void SetMaatschappij(const std::string& code) = 0;
  [[nodiscard]] virtual std::string MaatschappijNaam() const = 0;
  virtual void SetMaatschappijNaam(const std::string& naam) = 0;
  /// Kind of product: 42 to 45 the contract kinds, 99 "Anders", 0 not yet chosen.
  [[nodiscard]] virtual std::int16_t Productsoort() const = 0;
  virtual void SetProductsoort(std::int16_t code) = 0;
  [[nodiscard]] virtual std::string ProductsoortOmschrijving() const = 0;
  virtual void SetProductsoortOmschrijving(const std::string& tekst) = 0;
  [[nodiscard]] virtual std::string Productnaam() const = 0;
  virtual void SetProductnaam(const std::string& naam) = 0;
  /// Brokered by the user's own office.
  [[nodiscard]] virtual bool UwBemiddeling() const = 0;
  virtual void SetUwBemiddeling(bool ja) = 0;

  /// Membership of proposal 1 to 3: "J", "N", or empty when never set.
  [[nodiscard]] virtual std::string Voorstel(std::int16_t nummer) const = 0;
  virtual void SetVoorstel(std::int16_t nummer, const std::string& lidmaatschap) = 0;

  /// Text for the top display after a change of term or scenario.
  [[nodiscard]] virtual std::string Weergave() const = 0;
  /// Header text after any other change.
  [[nodiscard]] virtual std::string Kopregel() const = 0;

  /// True when the column is left out of the disability scenario.
  [[nodiscard]] virtual bool UitsluitenAO() const = 0;
  virtual void SetUitsluitenAO(bool uitsluiten) = 0;
  /// True when the column is left out of the unemployment scenario.
  [[nodiscard]] virtual bool UitsluitenWW() const = 0;
  virtual void SetUitsluitenWW(bool uitsluiten) = 0;
  /// True when the column is left out of the longevity scenario.
  [[nodiscard]] virtual bool UitsluitenLangleven() const = 0;
  virtual void SetUitsluitenLangleven(bool uitsluiten) = 0;
  /// True when the column counts in the death scenario: the one flag that includes.
  [[nodiscard]] virtual bool ScenarioOverlijden() const = 0;
  virtual void SetScenarioOverlijden(bool opnemen) = 0;
  /// Percentage of the amount that passes to the partner: above 0 and at most 100 when set, else 0.
  [[nodiscard]] virtual float PercentageOvergang() const = 0;
  virtual void SetPercentageOvergang(float percentage) = 0;
  /// Date on which the transition to the partner ends; no date when none.
  [[nodiscard]] virtual Date EinddatumOvergang() const = 0;
  virtual void SetEinddatumOvergang(Date datum) = 0;
  /// Age in years at which the transition to the partner ends; 0 when none.
  [[nodiscard]] virtual std::int16_t EindleeftijdOvergang() const = 0;
  virtual void SetEindleeftijdOvergang(std::int16_t jaren) = 0;
};

}  // namespace brivane::host
