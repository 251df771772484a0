#pragma once

#include <cstdint>

namespace brivane::host {

/// One entry of a scenario: from its month on, a value differs.
class Periode {
 public:
  virtual ~Periode() = default;

  /// Month number counted from the start, from 1.
  [[nodiscard]] virtual std::int16_t Maand() const = 0;
  virtual void SetMaand(std::int16_t maand) = 0;
  /// Amount in euros.
  [[nodiscard]] virtual double Bedrag() const = 0;
  virtual void SetBedrag(double bedrag) = 0;
  /// Percentage; for a scenario of kind 2 relative to the base value.
  [[nodiscard]] virtual double Percentage() const = 0;
  virtual void SetPercentage(double percentage) = 0;
  /// Discount in percentage points.
  [[nodiscard]] virtual double Korting() const = 0;
  virtual void SetKorting(double korting) = 0;
  /// True when the amount is on a yearly basis.
  [[nodiscard]] virtual bool Eenmalig() const = 0;
  virtual void SetEenmalig(bool eenmalig) = 0;
};

}  // namespace brivane::host
