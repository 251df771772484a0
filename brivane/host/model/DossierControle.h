#pragma once

#include <cstdint>
#include <memory>

namespace brivane::host {

class Application;

/// The host object that a complete validation of the editor calls last.
class DossierControle {
 public:
  virtual ~DossierControle() = default;

  /// The host's own check of the loan file, with the application that the editor is bound to. The component always
  /// passes 1. Called last in a complete check of a column of any loan, also after a refusal. What it throws is
  /// reported.
  virtual void Controleer(const std::shared_ptr<Application>& application, std::int16_t soort) = 0;
};

/// The check of a host that has none.
class GeenDossierControle final : public DossierControle {
 public:
  void Controleer(const std::shared_ptr<Application>&, std::int16_t) override {}
};

}  // namespace brivane::host
