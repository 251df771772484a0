#pragma once

#include <cstddef>

#include "dossier/store/Edits.h"
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane::dossier {

/// Stores what the OK button of the year-by-year form writes in one transaction. What the form's boxes write
/// before that is stored at once.
class ScenarioTransaction {
 public:
  /// Follows the editor; `bewerkingen` outlives this object.
  ScenarioTransaction(brivane::VrijeKolom& editor, Edits& bewerkingen);
  ScenarioTransaction(const ScenarioTransaction&) = delete;
  ScenarioTransaction& operator=(const ScenarioTransaction&) = delete;

  /// The form is filled and about to be shown, for tools that follow an adviser's work.
  host::Event<frmScenario&> Geopend;

 private:
  void Follow(frmScenario& formulier);

  Edits& bewerkingen_;
  std::size_t bewerking_ = 0;  ///< the edit of the storing that is under way
  host::Subscription geopend_;
  host::Subscription begint_;
  host::Subscription eindigt_;
};

}  // namespace brivane::dossier
