#pragma once

#include <optional>
#include <utility>

#include "dossier/model/Gegevens.h"
#include <brivane/host/model/Persoon.h>

namespace brivane::dossier {

/// The applicant or the partner of a case.
class Persoon : public host::Persoon {
 public:
  explicit Persoon(PersoonGegevens gegevens) : gegevens_(std::move(gegevens)) {}
  [[nodiscard]] std::array<std::string, 3> Naam() const override { return gegevens_.Naam; }
  [[nodiscard]] host::Date Geboortedatum() const override { return gegevens_.Geboortedatum; }
  /// Marginal rate of the income tax in percent; none where it was not entered.
  [[nodiscard]] std::optional<double> Belastingtarief() const { return gegevens_.Belastingtarief; }
  [[nodiscard]] const PersoonGegevens& Gegevens() const { return gegevens_; }

 private:
  PersoonGegevens gegevens_;
};

}  // namespace brivane::dossier
