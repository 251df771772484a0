#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include <brivane/host/Date.h>
#include <brivane/host/model/BedragObject.h>

namespace brivane::host {

/// The host's record of one free column. Every accepted edit is written here at once; a record may
/// adjust what it is given, and the controls show what they read back.
///
/// The fields are read when a control is bound, and written one by one when an edit is accepted; a field that the
/// host's case does not know keeps what it is given as long as the control is bound. What a setter throws is reported,
/// and the procedure ends there. Texts are UTF-8 of any length, the empty one included; dates are days without time.
///
/// What holds for all of it: \ref threads, \ref ownership, \ref callbacks, \ref failures.
class VrijeKolomItem {
 public:
  virtual ~VrijeKolomItem() = default;

  /// Identifier of the column within its loan: what a control is bound by. Never written.
  [[nodiscard]] virtual std::int16_t Id() const = 0;

  /// Burden correction, what the column does to the monthly burden: 1 "Last", 2 "Bijdrage", 3 "Neutraal". Another code
  /// fails the binding with error 340.
  [[nodiscard]] virtual std::int16_t CorrectieLast() const = 0;
  virtual void SetCorrectieLast(std::int16_t code) = 0;
  /// Fiscal correction, what the column does to taxed income: 1 "Aftrekpost", 2 "Bijtelling", 3 "Neutraal". Another
  /// code fails the binding with error 340. Choosing a burden correction writes the one that goes with it.
  [[nodiscard]] virtual std::int16_t CorrectieFiscaal() const = 0;
  virtual void SetCorrectieFiscaal(std::int16_t code) = 0;
  /// Whose tax the column counts in: 1 applicant, 2 partner. Another code fails the binding with error 340.
  [[nodiscard]] virtual std::int16_t HeffingBij() const = 0;
  virtual void SetHeffingBij(std::int16_t code) = 0;

  /// What the adviser calls the column.
  [[nodiscard]] virtual std::string Omschrijving() const = 0;
  virtual void SetOmschrijving(const std::string& tekst) = 0;
  /// The amount object; it lives as long as the record. Nothing fails what asks with error 91: the binding, the box
  /// "Bedrag", "Scenario invullen" and a term that becomes one-off.
  [[nodiscard]] virtual std::shared_ptr<BedragObject> Bedrag() = 0;
  /// Months per instalment: 1, 3, 6, 12; 99 for one-off. Another code selects no term. Choosing 99 empties the duration
  /// and the scenario of the amount.
  [[nodiscard]] virtual std::int16_t Termijn() const = 0;
  virtual void SetTermijn(std::int16_t code) = 0;

  /// Whether the amount is income from work. Only a contribution that is taxed ("Bijdrage" with "Bijtelling") can be;
  /// the editor writes false when a change of the corrections ends that.
  [[nodiscard]] virtual bool InkomenUitArbeid() const = 0;
  virtual void SetInkomenUitArbeid(bool ja) = 0;
  /// Whether the income is part of the wage that benefits are based on. The editor writes false when it becomes income
  /// from work no more.
  [[nodiscard]] virtual bool InDagloon() const = 0;
  virtual void SetInDagloon(bool ja) = 0;

  /// Start date; no date when not set. The editor writes only a date: an empty box is refused.
  [[nodiscard]] virtual Date DatumAanvang() const = 0;
  virtual void SetDatumAanvang(Date datum) = 0;
  /// Duration in months; 0 when not set. What the editor works out fits in 16 bits; more is read well. 999 comes with
  /// each kind of product but "Anders", which makes it 0.
  [[nodiscard]] virtual std::int32_t Looptijd() const = 0;
  virtual void SetLooptijd(std::int32_t maanden) = 0;
  /// Contract expiry date, used in place of the duration for the contract kinds; no date when not set.
  [[nodiscard]] virtual Date Contractvervaldatum() const = 0;
  virtual void SetContractvervaldatum(Date datum) = 0;

  /// Whether the column is a product, with a company, a kind and a name. When it is made one, `UwBemiddeling` is
  /// written true; when it is made none, all of the fields below are emptied, up to and including that one.
  [[nodiscard]] virtual bool IsProduct() const = 0;
  virtual void SetIsProduct(bool ja) = 0;
  /// Company code of the code table "MaatschappijType"; "ZZ" for a company named in text, empty for none. A code that
  /// the table lacks selects none.
  [[nodiscard]] virtual std::string Maatschappij() const = 0;
  virtual void SetMaatschappij(const std::string& code) = 0;
  /// Name of the company: as the list shows it, or for "ZZ" as the adviser types it.
  [[nodiscard]] virtual std::string MaatschappijNaam() const = 0;
  virtual void SetMaatschappijNaam(const std::string& naam) = 0;
  /// Kind of product: 42 to 45 the contract kinds, 99 "Anders", 0 not yet chosen. Another code selects none. Showing a
  /// product of kind 0 writes 99: the one write that no edit of a person goes before.
  [[nodiscard]] virtual std::int16_t Productsoort() const = 0;
  virtual void SetProductsoort(std::int16_t code) = 0;
  /// Name of the kind: as the list shows it, or for "Anders" as the adviser types it.
  [[nodiscard]] virtual std::string ProductsoortOmschrijving() const = 0;
  virtual void SetProductsoortOmschrijving(const std::string& tekst) = 0;
  /// Name of the product itself.
  [[nodiscard]] virtual std::string Productnaam() const = 0;
  virtual void SetProductnaam(const std::string& naam) = 0;
  /// Whether the product is brokered by the adviser's own office.
  [[nodiscard]] virtual bool UwBemiddeling() const = 0;
  virtual void SetUwBemiddeling(bool ja) = 0;

  /// Membership of proposal 1 to 3: "J", "N", or empty when never set. A box that is ticked or unticked writes its own.
  [[nodiscard]] virtual std::string Voorstel(std::int16_t nummer) const = 0;
  virtual void SetVoorstel(std::int16_t nummer, const std::string& lidmaatschap) = 0;

  /// Text for the top display after a change of term or scenario; the host's own words, and it may be empty.
  [[nodiscard]] virtual std::string Weergave() const = 0;
  /// Header text after any other change; it may be the same text.
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
  /// True when the column counts in the death scenario: the one flag that includes. Writing it writes the three fields
  /// below as well, and false makes them 0, no date and 0.
  [[nodiscard]] virtual bool ScenarioOverlijden() const = 0;
  virtual void SetScenarioOverlijden(bool opnemen) = 0;
  /// Percentage of the amount that passes to the partner at death: above 0 and at most 100 when set, else 0.
  [[nodiscard]] virtual float PercentageOvergang() const = 0;
  virtual void SetPercentageOvergang(float percentage) = 0;
  /// Date on which the transition to the partner ends; no date when none, and a date before 1900 is shown as none. An
  /// adviser may enter a day after today alone.
  [[nodiscard]] virtual Date EinddatumOvergang() const = 0;
  virtual void SetEinddatumOvergang(Date datum) = 0;
  /// Age in years at which the transition to the partner ends; 0 when none. It and the end date are one moment: editing
  /// either writes both, by the birth date of the person that `HeffingBij` names.
  [[nodiscard]] virtual std::int16_t EindleeftijdOvergang() const = 0;
  virtual void SetEindleeftijdOvergang(std::int16_t jaren) = 0;
};

}  // namespace brivane::host
