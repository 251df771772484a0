#pragma once

#include <cstdint>

namespace brivane::host {

/// One entry of a scenario: from its month on, a value differs. Read when the form is filled; written at OK, to an
/// entry that was just appended. What the kind of scenario does not use is not written.
///
/// What holds for all of it: \ref threads, \ref ownership, \ref callbacks, \ref failures.
class Periode {
 public:
  virtual ~Periode() = default;

  /// Month number counted from the start, from 1; row r of the form stands for the months from (r - 1) x 12 + 1 to r x
  /// 12. An entry beyond the last row is passed over, and gone after OK.
  [[nodiscard]] virtual std::int16_t Maand() const = 0;
  virtual void SetMaand(std::int16_t maand) = 0;
  /// Amount in euros, of kind 1.
  [[nodiscard]] virtual double Bedrag() const = 0;
  virtual void SetBedrag(double bedrag) = 0;
  /// Percentage of kinds 2 and 3, written with the precision of a float: of kind 2 in percentage points above the base
  /// value, of kind 3 the growth from this row to the next.
  [[nodiscard]] virtual double Percentage() const = 0;
  virtual void SetPercentage(double percentage) = 0;
  /// Discount in percentage points, of kind 2 on a form with the column of discounts, which the editor never asks for.
  [[nodiscard]] virtual double Korting() const = 0;
  virtual void SetKorting(double korting) = 0;
  /// True when the amount is on a yearly basis, of kind 1 but for a bridging loan.
  [[nodiscard]] virtual bool Eenmalig() const = 0;
  virtual void SetEenmalig(bool eenmalig) = 0;
};

}  // namespace brivane::host
