#pragma once

#include <memory>
#include <vector>

#include "dossier/model/Environment.h"
#include <brivane/host/model/BedragObject.h>
#include <brivane/host/model/PeriodeFields.h>

namespace brivane::dossier {

/// One entry of a scenario.
class Periode : public host::PeriodeByField<Periode> {
 public:
  Periode(std::shared_ptr<Environment> omgeving, PeriodeGegevens gegevens);

  [[nodiscard]] const PeriodeGegevens& Gegevens() const { return gegevens_; }
  /// Takes over what is stored, telling nobody.
  void Herlaad(const PeriodeGegevens& gegevens) { gegevens_ = gegevens; }

 private:
  friend host::PeriodeByField<Periode>;
  template <class Field> auto ReadField(const Field& field) const { return gegevens_.*field.value; }
  template <class Field> void WriteField(const Field& field, const typename Field::Value& waarde) {
    omgeving_->Journal->SetField(gegevens_.Sleutel, PeriodeVeld{field.name}, AlsWaarde(waarde));
    gegevens_.*field.value = waarde;
  }

  std::shared_ptr<Environment> omgeving_;
  PeriodeGegevens gegevens_;
};

/// The amount of a free column with its period entries. It is part of its column and lives as long.
class BedragObject : public host::BedragObject {
 public:
  /// `kolom` holds the amount's name, kind and base value and outlives this object.
  BedragObject(std::shared_ptr<Environment> omgeving, KolomGegevens& kolom);

  [[nodiscard]] std::string Naam() const override;
  [[nodiscard]] std::int16_t Invoersoort() const override;
  [[nodiscard]] double Basisbedrag() const override;
  void SetBasisbedrag(double bedrag) override;
  [[nodiscard]] double Bedrag() const override;
  void SetBedrag(double bedrag) override;
  [[nodiscard]] std::shared_ptr<host::Periode> Periode(std::int16_t positie) override;
  std::int16_t NieuwePeriode() override;
  /// Fails with error 9 where there is no such entry.
  void VerwijderPeriode(std::int16_t positie) override;

  [[nodiscard]] const std::vector<std::shared_ptr<dossier::Periode>>& Perioden() const { return perioden_; }
  /// Takes over the entries that the column's data came with, telling nobody. An entry that is known keeps its object.
  void HerlaadPerioden();

 private:
  std::shared_ptr<Environment> omgeving_;
  KolomGegevens& kolom_;
  std::vector<std::shared_ptr<dossier::Periode>> perioden_;
};

}  // namespace brivane::dossier
