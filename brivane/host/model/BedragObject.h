#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include <brivane/host/model/Periode.h>

namespace brivane::host {

/// The amount object of a free column: its base amount and its development over time.
///
/// The editor knows it as the column's `Bedrag` and writes its base amount; the year-by-year form
/// knows it as its `Scenario` and writes the base value and the period entries. Base amount and base
/// value are one number, reached under two names.
class BedragObject {
 public:
  virtual ~BedragObject() = default;

  /// Name of the scenario. "Overbruggingskrediet" and "Rente" change the form.
  [[nodiscard]] virtual std::string Naam() const = 0;
  /// Entry kind: 1 amount, 2 percentage, 3 amount and percentage.
  [[nodiscard]] virtual std::int16_t Invoersoort() const = 0;

  /// Base amount in euros, as the editor reads and writes it.
  [[nodiscard]] virtual double Basisbedrag() const = 0;
  virtual void SetBasisbedrag(double bedrag) = 0;

  /// Base value (the value of row 1), as the year-by-year form reads and writes it: euros, or percent for kind 2.
  [[nodiscard]] virtual double Bedrag() const = 0;
  virtual void SetBedrag(double bedrag) = 0;

  /// The entry at a position from 1; nothing past the last.
  [[nodiscard]] virtual std::shared_ptr<host::Periode> Periode(std::int16_t positie) = 0;
  /// Appends an empty entry and answers its position.
  virtual std::int16_t NieuwePeriode() = 0;
  /// Removes the entry at a position; the next ones move up.
  virtual void VerwijderPeriode(std::int16_t positie) = 0;
};

}  // namespace brivane::host
