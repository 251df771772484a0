#pragma once

#include <optional>

#include "controls/Action.h"
#include "controls/ToolkitBase.h"
#include "dossier/store/Edits.h"
#include "vrijekolom/VrijeKolom.h"

namespace brivane::dossier {

/// Stores what the OK button of the year-by-year form writes in one transaction. What the form's boxes write
/// before that is stored at once.
class ScenarioTransaction final : public controls::ActionListener {
 public:
  /// Follows the editor and its toolkit, which outlive this object, as does `bewerkingen`.
  ScenarioTransaction(brivane::VrijeKolom& editor, controls::ToolkitBase& toolkit, Edits& bewerkingen);
  ~ScenarioTransaction() override;

  /// The form is filled and about to be shown, for tools that follow an adviser's work.
  host::Event<frmScenario&> Geopend;

  void Before(controls::AnyControl& control, const controls::Action& action) override;
  void After(controls::AnyControl& control, const controls::Action& action,
             std::optional<controls::Outcome> outcome) override;

 private:
  controls::ToolkitBase& toolkit_;
  Edits& bewerkingen_;
  std::optional<std::size_t> bewerking_;
  host::Subscription geopend_;
};

}  // namespace brivane::dossier
