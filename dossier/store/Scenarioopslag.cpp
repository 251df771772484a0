#include "dossier/store/Scenarioopslag.h"

#include "toolkits/headless/Surface.h"

namespace brivane::dossier {
namespace {

bool DruktOpOk(const headless::AnyControl& control, const headless::Action& action) {
  return std::holds_alternative<headless::Press>(action) && control.Owner() != nullptr &&
         control.Owner()->Table().name == "frmScenario" && control.DesignName() == "cmdOK";
}

}  // namespace

Scenarioopslag::Scenarioopslag(brivane::VrijeKolom& editor, headless::ToolkitBase& toolkit, Edits& bewerkingen)
    : editor_(editor), toolkit_(toolkit), bewerkingen_(bewerkingen) {
  editor_.ScenarioGeopend.Connect([this](frmScenario& formulier) {
    bewerkingen_.BeginModal();
    Geopend.Raise(formulier);
  });
  toolkit_.AddListener(*this);
}

Scenarioopslag::~Scenarioopslag() {
  toolkit_.RemoveListener(*this);
  editor_.ScenarioGeopend.Disconnect();
}

void Scenarioopslag::Before(headless::AnyControl& control, const headless::Action& action) {
  if (DruktOpOk(control, action)) bewerking_ = bewerkingen_.BeginEdit();
}

void Scenarioopslag::After(headless::AnyControl& control, const headless::Action& action,
                           std::optional<headless::Outcome>) {
  if (!bewerking_ || !DruktOpOk(control, action)) return;
  const std::size_t bewerking = *bewerking_;
  bewerking_.reset();
  // A failure is told by the edits themselves.
  static_cast<void>(bewerkingen_.EndEdit(bewerking));
}

}  // namespace brivane::dossier
