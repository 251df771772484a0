#pragma once

#include <brivane/host/model/Hoofdvenster.h>

namespace brivane::controls {

/// What stands before the host's main window.
class VensterStandIn {
 public:
  VensterStandIn() = default;
  VensterStandIn(const VensterStandIn&) = delete;
  VensterStandIn& operator=(const VensterStandIn&) = delete;
  virtual ~VensterStandIn() = default;

  [[nodiscard]] virtual host::Hoofdvenster* Own() const = 0;
};

/// The host's own main window behind what stands before it; any other as it is. Here, and not with what is held, so
/// that a form needs nothing of that on hosts that are not held.
[[nodiscard]] inline host::Hoofdvenster* HostsOwn(host::Hoofdvenster* venster) {
  const auto* const standIn = dynamic_cast<const VensterStandIn*>(venster);
  return standIn != nullptr ? standIn->Own() : venster;
}

}  // namespace brivane::controls
