#pragma once

#include <array>
#include <string>

#include <brivane/host/model/Field.h>
#include <brivane/host/model/VrijeKolomItem.h>

/// The fields of a free column, told once. A new field is a getter and a setter in VrijeKolomItem, and here a value, a
/// line of the table and the two that lead to it.
namespace brivane::host {

/// The fields of a free column as plain values. The defaults are a valid recurring cost of the applicant.
struct VrijeKolomValues {
  /// As the function of this name in VrijeKolomItem.
  /// @{
  std::int16_t Id = 1;
  std::int16_t CorrectieLast = 1;
  std::int16_t CorrectieFiscaal = 1;
  std::string Omschrijving;
  std::int16_t Termijn = 1;
  bool InkomenUitArbeid = false;
  bool InDagloon = false;
  std::int16_t HeffingBij = 1;
  std::int16_t Productsoort = 0;
  std::string ProductsoortOmschrijving;
  std::string Productnaam;
  bool IsProduct = false;
  std::string Maatschappij;
  std::string MaatschappijNaam;
  bool UwBemiddeling = false;
  Date DatumAanvang;
  std::int32_t Looptijd = 0;
  Date Contractvervaldatum;
  std::array<std::string, 3> Voorstel;
  std::string Weergave;
  std::string Kopregel;
  bool UitsluitenAO = false;
  bool UitsluitenWW = false;
  bool UitsluitenLangleven = false;
  bool ScenarioOverlijden = false;
  float PercentageOvergang = 0;
  Date EinddatumOvergang;
  std::int16_t EindleeftijdOvergang = 0;
  /// @}

  friend bool operator==(const VrijeKolomValues&, const VrijeKolomValues&) = default;
};

/// The fields of a free column but its amount, in the order in which they are shown to a reader.
inline constexpr auto kVrijeKolomFields = FieldTable(
    ReadOnlyField("Id", &VrijeKolomValues::Id, &VrijeKolomItem::Id),
    Field("CorrectieLast", &VrijeKolomValues::CorrectieLast, &VrijeKolomItem::CorrectieLast,
          &VrijeKolomItem::SetCorrectieLast),
    Field("CorrectieFiscaal", &VrijeKolomValues::CorrectieFiscaal, &VrijeKolomItem::CorrectieFiscaal,
          &VrijeKolomItem::SetCorrectieFiscaal),
    Field("Omschrijving", &VrijeKolomValues::Omschrijving, &VrijeKolomItem::Omschrijving,
          &VrijeKolomItem::SetOmschrijving),
    Field("Termijn", &VrijeKolomValues::Termijn, &VrijeKolomItem::Termijn, &VrijeKolomItem::SetTermijn),
    Field("InkomenUitArbeid", &VrijeKolomValues::InkomenUitArbeid, &VrijeKolomItem::InkomenUitArbeid,
          &VrijeKolomItem::SetInkomenUitArbeid),
    Field("InDagloon", &VrijeKolomValues::InDagloon, &VrijeKolomItem::InDagloon, &VrijeKolomItem::SetInDagloon),
    Field("HeffingBij", &VrijeKolomValues::HeffingBij, &VrijeKolomItem::HeffingBij, &VrijeKolomItem::SetHeffingBij),
    Field("Productsoort", &VrijeKolomValues::Productsoort, &VrijeKolomItem::Productsoort,
          &VrijeKolomItem::SetProductsoort),
    Field("ProductsoortOmschrijving", &VrijeKolomValues::ProductsoortOmschrijving,
          &VrijeKolomItem::ProductsoortOmschrijving, &VrijeKolomItem::SetProductsoortOmschrijving),
    Field("Productnaam", &VrijeKolomValues::Productnaam, &VrijeKolomItem::Productnaam, &VrijeKolomItem::SetProductnaam),
    Field("IsProduct", &VrijeKolomValues::IsProduct, &VrijeKolomItem::IsProduct, &VrijeKolomItem::SetIsProduct),
    Field("Maatschappij", &VrijeKolomValues::Maatschappij, &VrijeKolomItem::Maatschappij,
          &VrijeKolomItem::SetMaatschappij),
    Field("MaatschappijNaam", &VrijeKolomValues::MaatschappijNaam, &VrijeKolomItem::MaatschappijNaam,
          &VrijeKolomItem::SetMaatschappijNaam),
    Field("UwBemiddeling", &VrijeKolomValues::UwBemiddeling, &VrijeKolomItem::UwBemiddeling,
          &VrijeKolomItem::SetUwBemiddeling),
    Field("DatumAanvang", &VrijeKolomValues::DatumAanvang, &VrijeKolomItem::DatumAanvang,
          &VrijeKolomItem::SetDatumAanvang),
    Field("Looptijd", &VrijeKolomValues::Looptijd, &VrijeKolomItem::Looptijd, &VrijeKolomItem::SetLooptijd),
    Field("Contractvervaldatum", &VrijeKolomValues::Contractvervaldatum, &VrijeKolomItem::Contractvervaldatum,
          &VrijeKolomItem::SetContractvervaldatum),
    NumberedField("Voorstel", &VrijeKolomValues::Voorstel, &VrijeKolomItem::Voorstel, &VrijeKolomItem::SetVoorstel),
    ReadOnlyField("Weergave", &VrijeKolomValues::Weergave, &VrijeKolomItem::Weergave),
    ReadOnlyField("Kopregel", &VrijeKolomValues::Kopregel, &VrijeKolomItem::Kopregel),
    Field("UitsluitenAO", &VrijeKolomValues::UitsluitenAO, &VrijeKolomItem::UitsluitenAO,
          &VrijeKolomItem::SetUitsluitenAO),
    Field("UitsluitenWW", &VrijeKolomValues::UitsluitenWW, &VrijeKolomItem::UitsluitenWW,
          &VrijeKolomItem::SetUitsluitenWW),
    Field("UitsluitenLangleven", &VrijeKolomValues::UitsluitenLangleven, &VrijeKolomItem::UitsluitenLangleven,
          &VrijeKolomItem::SetUitsluitenLangleven),
    Field("ScenarioOverlijden", &VrijeKolomValues::ScenarioOverlijden, &VrijeKolomItem::ScenarioOverlijden,
          &VrijeKolomItem::SetScenarioOverlijden),
    Field("PercentageOvergang", &VrijeKolomValues::PercentageOvergang, &VrijeKolomItem::PercentageOvergang,
          &VrijeKolomItem::SetPercentageOvergang),
    Field("EinddatumOvergang", &VrijeKolomValues::EinddatumOvergang, &VrijeKolomItem::EinddatumOvergang,
          &VrijeKolomItem::SetEinddatumOvergang),
    Field("EindleeftijdOvergang", &VrijeKolomValues::EindleeftijdOvergang, &VrijeKolomItem::EindleeftijdOvergang,
          &VrijeKolomItem::SetEindleeftijdOvergang));

/// A free column that treats all its fields alike: it keeps them as values, or stands before another column.
///
/// `Self` derives from it and has `ReadField(field)`, which answers the field's value, and `WriteField(field, value)`.
/// The amount object and the proposals stay its own to answer.
///
///     class Kept final : public VrijeKolomByField<Kept> {
///       friend VrijeKolomByField<Kept>;
///       template <class Field> auto ReadField(const Field& field) const { return values_.*field.value; }
///       template <class Field, class T> void WriteField(const Field& field, const T& value) {
///         values_.*field.value = value;
///       }
///       ...
template <class Self> class VrijeKolomByField : public VrijeKolomItem {
 public:
  [[nodiscard]] std::int16_t Id() const override { return Read<&VrijeKolomValues::Id>(); }
  [[nodiscard]] std::int16_t CorrectieLast() const override { return Read<&VrijeKolomValues::CorrectieLast>(); }
  void SetCorrectieLast(std::int16_t code) override { Write<&VrijeKolomValues::CorrectieLast>(code); }
  [[nodiscard]] std::int16_t CorrectieFiscaal() const override { return Read<&VrijeKolomValues::CorrectieFiscaal>(); }
  void SetCorrectieFiscaal(std::int16_t code) override { Write<&VrijeKolomValues::CorrectieFiscaal>(code); }
  [[nodiscard]] std::string Omschrijving() const override { return Read<&VrijeKolomValues::Omschrijving>(); }
  void SetOmschrijving(const std::string& tekst) override { Write<&VrijeKolomValues::Omschrijving>(tekst); }
  [[nodiscard]] std::int16_t Termijn() const override { return Read<&VrijeKolomValues::Termijn>(); }
  void SetTermijn(std::int16_t code) override { Write<&VrijeKolomValues::Termijn>(code); }
  [[nodiscard]] bool InkomenUitArbeid() const override { return Read<&VrijeKolomValues::InkomenUitArbeid>(); }
  void SetInkomenUitArbeid(bool ja) override { Write<&VrijeKolomValues::InkomenUitArbeid>(ja); }
  [[nodiscard]] bool InDagloon() const override { return Read<&VrijeKolomValues::InDagloon>(); }
  void SetInDagloon(bool ja) override { Write<&VrijeKolomValues::InDagloon>(ja); }
  [[nodiscard]] std::int16_t HeffingBij() const override { return Read<&VrijeKolomValues::HeffingBij>(); }
  void SetHeffingBij(std::int16_t code) override { Write<&VrijeKolomValues::HeffingBij>(code); }
  [[nodiscard]] std::int16_t Productsoort() const override { return Read<&VrijeKolomValues::Productsoort>(); }
  void SetProductsoort(std::int16_t code) override { Write<&VrijeKolomValues::Productsoort>(code); }
  [[nodiscard]] std::string ProductsoortOmschrijving() const override {
    return Read<&VrijeKolomValues::ProductsoortOmschrijving>();
  }
  void SetProductsoortOmschrijving(const std::string& tekst) override {
    Write<&VrijeKolomValues::ProductsoortOmschrijving>(tekst);
  }
  [[nodiscard]] std::string Productnaam() const override { return Read<&VrijeKolomValues::Productnaam>(); }
  void SetProductnaam(const std::string& naam) override { Write<&VrijeKolomValues::Productnaam>(naam); }
  [[nodiscard]] bool IsProduct() const override { return Read<&VrijeKolomValues::IsProduct>(); }
  void SetIsProduct(bool ja) override { Write<&VrijeKolomValues::IsProduct>(ja); }
  [[nodiscard]] std::string Maatschappij() const override { return Read<&VrijeKolomValues::Maatschappij>(); }
  void SetMaatschappij(const std::string& code) override { Write<&VrijeKolomValues::Maatschappij>(code); }
  [[nodiscard]] std::string MaatschappijNaam() const override { return Read<&VrijeKolomValues::MaatschappijNaam>(); }
  void SetMaatschappijNaam(const std::string& naam) override { Write<&VrijeKolomValues::MaatschappijNaam>(naam); }
  [[nodiscard]] bool UwBemiddeling() const override { return Read<&VrijeKolomValues::UwBemiddeling>(); }
  void SetUwBemiddeling(bool ja) override { Write<&VrijeKolomValues::UwBemiddeling>(ja); }
  [[nodiscard]] Date DatumAanvang() const override { return Read<&VrijeKolomValues::DatumAanvang>(); }
  void SetDatumAanvang(Date datum) override { Write<&VrijeKolomValues::DatumAanvang>(datum); }
  [[nodiscard]] std::int32_t Looptijd() const override { return Read<&VrijeKolomValues::Looptijd>(); }
  void SetLooptijd(std::int32_t maanden) override { Write<&VrijeKolomValues::Looptijd>(maanden); }
  [[nodiscard]] Date Contractvervaldatum() const override { return Read<&VrijeKolomValues::Contractvervaldatum>(); }
  void SetContractvervaldatum(Date datum) override { Write<&VrijeKolomValues::Contractvervaldatum>(datum); }
  [[nodiscard]] std::string Weergave() const override { return Read<&VrijeKolomValues::Weergave>(); }
  [[nodiscard]] std::string Kopregel() const override { return Read<&VrijeKolomValues::Kopregel>(); }
  [[nodiscard]] bool UitsluitenAO() const override { return Read<&VrijeKolomValues::UitsluitenAO>(); }
  void SetUitsluitenAO(bool uitsluiten) override { Write<&VrijeKolomValues::UitsluitenAO>(uitsluiten); }
  [[nodiscard]] bool UitsluitenWW() const override { return Read<&VrijeKolomValues::UitsluitenWW>(); }
  void SetUitsluitenWW(bool uitsluiten) override { Write<&VrijeKolomValues::UitsluitenWW>(uitsluiten); }
  [[nodiscard]] bool UitsluitenLangleven() const override { return Read<&VrijeKolomValues::UitsluitenLangleven>(); }
  void SetUitsluitenLangleven(bool uitsluiten) override { Write<&VrijeKolomValues::UitsluitenLangleven>(uitsluiten); }
  [[nodiscard]] bool ScenarioOverlijden() const override { return Read<&VrijeKolomValues::ScenarioOverlijden>(); }
  void SetScenarioOverlijden(bool opnemen) override { Write<&VrijeKolomValues::ScenarioOverlijden>(opnemen); }
  [[nodiscard]] float PercentageOvergang() const override { return Read<&VrijeKolomValues::PercentageOvergang>(); }
  void SetPercentageOvergang(float percentage) override { Write<&VrijeKolomValues::PercentageOvergang>(percentage); }
  [[nodiscard]] Date EinddatumOvergang() const override { return Read<&VrijeKolomValues::EinddatumOvergang>(); }
  void SetEinddatumOvergang(Date datum) override { Write<&VrijeKolomValues::EinddatumOvergang>(datum); }
  [[nodiscard]] std::int16_t EindleeftijdOvergang() const override {
    return Read<&VrijeKolomValues::EindleeftijdOvergang>();
  }
  void SetEindleeftijdOvergang(std::int16_t jaren) override { Write<&VrijeKolomValues::EindleeftijdOvergang>(jaren); }

 private:
  template <auto value> [[nodiscard]] auto Read() const {
    return static_cast<const Self&>(*this).ReadField(kFieldOf<kVrijeKolomFields, value>);
  }
  template <auto value, class T> void Write(const T& given) {
    static_cast<Self&>(*this).WriteField(kFieldOf<kVrijeKolomFields, value>, given);
  }
};

}  // namespace brivane::host
