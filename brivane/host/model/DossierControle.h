#pragma once

#include <cstdint>
#include <memory>

namespace brivane::host {

class Application;

/// The host object that a complete validation of the editor calls last.
class DossierControle {
 public:
  virtual ~DossierControle() = default;

  /// The host's own check of the loan file. The component always passes 1.
  virtual void Controleer(const std::shared_ptr<Application>& application, std::int16_t soort) = 0;
};

/// The check of a host that has none.
class GeenDossierControle final : public DossierControle {
 public:
  void Controleer(const std::shared_ptr<Application>&, std::int16_t) override {}
};

}  // namespace brivane::host
