#include "dossier/store/ScenarioTransaction.h"

#include <brivane/scenario/frmScenario.h>

namespace brivane::dossier {

ScenarioTransaction::ScenarioTransaction(brivane::VrijeKolom& editor, Edits& bewerkingen)
    : bewerkingen_(bewerkingen), geopend_(editor.ScenarioGeopend.Connect([this](frmScenario& formulier) {
        bewerkingen_.BeginModal();
        Follow(formulier);
        Geopend.Raise(formulier);
      })) {}

void ScenarioTransaction::Follow(frmScenario& formulier) {
  begint_ = formulier.OpslagBegint.Connect([this] { bewerking_ = bewerkingen_.BeginEdit(); });
  // A failure is told by the edits themselves.
  eindigt_ = formulier.OpslagEindigt.Connect([this] { static_cast<void>(bewerkingen_.EndEdit(bewerking_)); });
}

}  // namespace brivane::dossier
