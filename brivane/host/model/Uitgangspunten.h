#pragma once

#include <cstdint>

namespace brivane::host {

/// The host's assumptions for the case.
class Uitgangspunten {
 public:
  virtual ~Uitgangspunten() = default;

  /// Age limit in whole years up to which a scenario runs.
  [[nodiscard]] virtual std::int16_t Leeftijd() const = 0;
};

}  // namespace brivane::host
