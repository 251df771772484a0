#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "dossier/model/Dossier.h"
#include <brivane/host/Event.h>
#include <brivane/host/model/DossierControle.h>

namespace brivane::dossier {

/// Something in a loan file that an adviser should look at, and where.
struct Finding {
  std::int16_t Len_Id;
  std::int16_t Vrij_Id;
  std::string text;  ///< one Dutch sentence
};

/// What the host finds in a case beyond the checks of the controls: columns without a description or an amount,
/// durations that run out before `vandaag`, codes that no list knows, the partner named where there is none,
/// and proposals that end a column that the current situation does not have.
[[nodiscard]] std::vector<Finding> ControleerDossier(Dossier& dossier, host::Date vandaag);

/// The host's check at the end of a complete validation. It asks nothing and refuses nothing: it tells its
/// listener what there is to look at now.
class DossierControle : public host::DossierControle {
 public:
  /// `vandaag` is asked at each check.
  explicit DossierControle(std::function<host::Date()> vandaag) : vandaag_(std::move(vandaag)) {}

  /// Checks the application's whole case. Kind 1 is the only one there is; another fails with error 9, and an
  /// application of another host with error 91.
  void Controleer(const std::shared_ptr<host::Application>& application, std::int16_t soort) override;

  host::Event<const std::vector<Finding>&> Gecontroleerd;

 private:
  std::function<host::Date()> vandaag_;
};

}  // namespace brivane::dossier
