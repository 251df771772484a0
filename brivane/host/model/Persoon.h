#pragma once

#include <array>
#include <string>

#include <brivane/host/Date.h>

namespace brivane::host {

/// The applicant or the partner.
class Persoon {
 public:
  virtual ~Persoon() = default;

  /// Three strings that a caption joins with single blanks, in this order.
  [[nodiscard]] virtual std::array<std::string, 3> Naam() const = 0;
  [[nodiscard]] virtual Date Geboortedatum() const = 0;
};

}  // namespace brivane::host
