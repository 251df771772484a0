#pragma once

#include <memory>

#include "dossier/model/Bedrag.h"
#include "dossier/model/Environment.h"
#include <brivane/host/model/VrijeKolomFields.h>

namespace brivane::dossier {

/// A free column of a case. The file keeps a change before the memory shows it.
///
/// Made by its loan and kept by it; whoever holds it after it was removed holds a column of no loan.
class VrijeKolom : public host::VrijeKolomByField<VrijeKolom>, public std::enable_shared_from_this<VrijeKolom> {
 public:
  VrijeKolom(std::shared_ptr<Environment> omgeving, KolomGegevens&& gegevens);
  VrijeKolom(const VrijeKolom&) = delete;
  VrijeKolom& operator=(const VrijeKolom&) = delete;

  [[nodiscard]] std::shared_ptr<host::BedragObject> Bedrag() override;
  /// A number other than 1, 2, 3 fails with error 9, reading and writing.
  [[nodiscard]] std::string Voorstel(std::int16_t nummer) const override;
  void SetVoorstel(std::int16_t nummer, const std::string& lidmaatschap) override;
  [[nodiscard]] std::string Weergave() const override;
  [[nodiscard]] std::string Kopregel() const override;

  [[nodiscard]] dossier::Sleutel Sleutel() const { return gegevens_.Sleutel; }
  /// What the column holds but its periods.
  [[nodiscard]] const KolomGegevens& Velden() const { return gegevens_; }
  /// Everything the column holds, its periods included.
  [[nodiscard]] KolomGegevens Gegevens() const;
  /// Takes over what is stored, telling nobody; the amount object and known periods stay the same objects.
  void Herlaad(KolomGegevens gegevens);
  /// The file has given the column another identifier.
  void Hernummer(std::int16_t Id) { gegevens_.Id = Id; }

 private:
  friend host::VrijeKolomByField<VrijeKolom>;
  template <class Field> auto ReadField(const Field& field) const { return gegevens_.*field.value; }
  template <class Field> void WriteField(const Field& field, const typename Field::Value& waarde) {
    Schrijf({field.name}, gegevens_.*field.value, waarde);
  }
  template <class Value> void Schrijf(KolomVeld veld, Value& plaats, const Value& waarde) {
    omgeving_->Journal->SetField(gegevens_.Sleutel, veld, AlsWaarde(waarde));
    plaats = waarde;
  }

  std::shared_ptr<Environment> omgeving_;
  /// All but the periods, which stand in the amount object.
  KolomGegevens gegevens_;
  BedragObject bedrag_;
};

}  // namespace brivane::dossier
