#include "dossier/store/ScenarioTransaction.h"

#include "controls/Surface.h"

namespace brivane::dossier {
namespace {

bool DruktOpOk(const controls::AnyControl& control, const controls::Action& action) {
  return std::holds_alternative<controls::Press>(action) && control.Owner() != nullptr &&
         control.Owner()->Table().name == "frmScenario" && control.DesignName() == "cmdOK";
}

}  // namespace

ScenarioTransaction::ScenarioTransaction(brivane::VrijeKolom& editor, controls::ToolkitBase& toolkit,
                                         Edits& bewerkingen)
    : toolkit_(toolkit), bewerkingen_(bewerkingen) {
  geopend_ = editor.ScenarioGeopend.Connect([this](frmScenario& formulier) {
    bewerkingen_.BeginModal();
    Geopend.Raise(formulier);
  });
  toolkit_.AddListener(*this);
}

ScenarioTransaction::~ScenarioTransaction() { toolkit_.RemoveListener(*this); }

void ScenarioTransaction::Before(controls::AnyControl& control, const controls::Action& action) {
  if (DruktOpOk(control, action)) bewerking_ = bewerkingen_.BeginEdit();
}

void ScenarioTransaction::After(controls::AnyControl& control, const controls::Action& action,
                                std::optional<controls::Outcome>) {
  if (!bewerking_ || !DruktOpOk(control, action)) return;
  const std::size_t bewerking = *bewerking_;
  bewerking_.reset();
  // A failure is told by the edits themselves.
  static_cast<void>(bewerkingen_.EndEdit(bewerking));
}

}  // namespace brivane::dossier
