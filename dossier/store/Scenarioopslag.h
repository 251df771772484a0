#pragma once

#include <optional>

#include "dossier/store/Edits.h"
#include "toolkits/headless/Action.h"
#include "toolkits/headless/Toolkit.h"
#include "vrijekolom/VrijeKolom.h"

namespace brivane::dossier {

/// Stores what the OK button of the year-by-year form writes in one transaction. What the form's boxes write
/// before that is stored at once.
class Scenarioopslag final : public headless::ActionListener {
 public:
  /// Follows the editor and its toolkit, which outlive this object, as does `bewerkingen`.
  Scenarioopslag(brivane::VrijeKolom& editor, headless::ToolkitBase& toolkit, Edits& bewerkingen);
  ~Scenarioopslag() override;

  /// The form is filled and about to be shown, for tools that follow an adviser's work.
  host::Event<frmScenario&> Geopend;

  void Before(headless::AnyControl& control, const headless::Action& action) override;
  void After(headless::AnyControl& control, const headless::Action& action,
             std::optional<headless::Outcome> outcome) override;

 private:
  brivane::VrijeKolom& editor_;
  headless::ToolkitBase& toolkit_;
  Edits& bewerkingen_;
  std::optional<std::size_t> bewerking_;
};

}  // namespace brivane::dossier
