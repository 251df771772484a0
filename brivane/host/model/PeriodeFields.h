#pragma once

#include <brivane/host/model/Field.h>
#include <brivane/host/model/Periode.h>

namespace brivane::host {

/// The fields of a period entry as plain values.
struct PeriodeValues {
  /// As the function of this name in Periode.
  /// @{
  std::int16_t Maand = 0;
  double Bedrag = 0;
  double Percentage = 0;
  double Korting = 0;
  bool Eenmalig = false;
  /// @}

  friend bool operator==(const PeriodeValues&, const PeriodeValues&) = default;
};

/// The fields of a period entry, in the order in which they are shown to a reader.
inline constexpr auto kPeriodeFields =
    FieldTable(Field("Maand", &PeriodeValues::Maand, &Periode::Maand, &Periode::SetMaand),
               Field("Bedrag", &PeriodeValues::Bedrag, &Periode::Bedrag, &Periode::SetBedrag),
               Field("Percentage", &PeriodeValues::Percentage, &Periode::Percentage, &Periode::SetPercentage),
               Field("Korting", &PeriodeValues::Korting, &Periode::Korting, &Periode::SetKorting),
               Field("Eenmalig", &PeriodeValues::Eenmalig, &Periode::Eenmalig, &Periode::SetEenmalig));

/// A period entry that treats all its fields alike; see VrijeKolomByField.
template <class Self> class PeriodeByField : public Periode {
 public:
  [[nodiscard]] std::int16_t Maand() const override { return Read<&PeriodeValues::Maand>(); }
  void SetMaand(std::int16_t maand) override { Write<&PeriodeValues::Maand>(maand); }
  [[nodiscard]] double Bedrag() const override { return Read<&PeriodeValues::Bedrag>(); }
  void SetBedrag(double bedrag) override { Write<&PeriodeValues::Bedrag>(bedrag); }
  [[nodiscard]] double Percentage() const override { return Read<&PeriodeValues::Percentage>(); }
  void SetPercentage(double percentage) override { Write<&PeriodeValues::Percentage>(percentage); }
  [[nodiscard]] double Korting() const override { return Read<&PeriodeValues::Korting>(); }
  void SetKorting(double korting) override { Write<&PeriodeValues::Korting>(korting); }
  [[nodiscard]] bool Eenmalig() const override { return Read<&PeriodeValues::Eenmalig>(); }
  void SetEenmalig(bool eenmalig) override { Write<&PeriodeValues::Eenmalig>(eenmalig); }

 private:
  template <auto value> [[nodiscard]] auto Read() const {
    return static_cast<const Self&>(*this).ReadField(kFieldOf<kPeriodeFields, value>);
  }
  template <auto value, class T> void Write(const T& given) {
    static_cast<Self&>(*this).WriteField(kFieldOf<kPeriodeFields, value>, given);
  }
};

}  // namespace brivane::host
