#pragma once

#include <cstdint>

namespace brivane::host {

/// The host's assumptions for the case.
class Uitgangspunten {
 public:
  virtual ~Uitgangspunten() = default;

  /// Age limit in whole years up to which a scenario runs: the form has as many rows as there are years, by their
  /// numbers, from today's to the one after that in which the person whom the column belongs to reaches it, within 1
  /// and 80.
  [[nodiscard]] virtual std::int16_t Leeftijd() const = 0;
};

}  // namespace brivane::host
