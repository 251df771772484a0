#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include <brivane/host/model/Periode.h>

namespace brivane::host {

/// The amount object of a free column: its base amount and its development over time.
///
/// The editor knows it as the column's `Bedrag` and writes its base amount; the year-by-year form knows it as its
/// `Scenario` and writes the base value and the period entries. Base amount and base value are one number, reached
/// under two names. Amounts are kept in double precision, exactly.
///
/// What holds for all of it: \ref threads, \ref ownership, \ref callbacks, \ref failures.
class BedragObject {
 public:
  virtual ~BedragObject() = default;

  /// Name of the scenario, asked when the form is filled. "Overbruggingskrediet" is a bridging loan: rows of months and
  /// a total; "Rente" shows a hint on interest. Any other text changes nothing.
  [[nodiscard]] virtual std::string Naam() const = 0;
  /// Entry kind: 1 amount, 2 percentage, 3 amount and percentage; another number is a form without boxes. Asked when
  /// the form is filled, at each edit in it and at OK.
  [[nodiscard]] virtual std::int16_t Invoersoort() const = 0;

  /// Base amount in euros for one term, as the editor reads and writes it: read at each binding and when the form has
  /// been closed, written by the box "Bedrag".
  [[nodiscard]] virtual double Basisbedrag() const = 0;
  virtual void SetBasisbedrag(double bedrag) = 0;

  /// Base value (the value of row 1), as the year-by-year form reads and writes it: euros, or percent for kind 2.
  /// Written as soon as row 1 is edited, and again at OK for kinds 2 and 3.
  [[nodiscard]] virtual double Bedrag() const = 0;
  virtual void SetBedrag(double bedrag) = 0;

  /// The entry at a position from 1, in the order of appending; nothing past the last, and no failure. Asked until it
  /// answers nothing.
  [[nodiscard]] virtual std::shared_ptr<host::Periode> Periode(std::int16_t positie) = 0;
  /// Appends an entry with 0 everywhere and answers its position. At OK, once for each row that differs from the one
  /// above.
  virtual std::int16_t NieuwePeriode() = 0;
  /// Removes the entry at a position; the next ones move up. OK, and a term that becomes one-off, remove position 1
  /// until there is nothing there.
  virtual void VerwijderPeriode(std::int16_t positie) = 0;
};

}  // namespace brivane::host
