#pragma once

#include <array>
#include <string>

#include <brivane/host/Date.h>

namespace brivane::host {

/// The applicant or the partner.
///
/// What holds for all of it: \ref threads, \ref ownership, \ref callbacks, \ref failures.
class Persoon {
 public:
  virtual ~Persoon() = default;

  /// Three strings that a caption joins with single blanks, in this order, and fits to its width; an empty one in the
  /// middle shows as two blanks. Asked at each binding.
  [[nodiscard]] virtual std::array<std::string, 3> Naam() const = 0;
  /// The birth date. Asked by "Scenario invullen", and by end date and end age of the transition to the partner, of the
  /// person that VrijeKolomItem::HeffingBij names.
  [[nodiscard]] virtual Date Geboortedatum() const = 0;
};

}  // namespace brivane::host
