#include "dossier/store/ScenarioEdits.h"

namespace brivane::dossier {
namespace {

bool IsFormButton(const headless::AnyControl& control, const headless::Action& action) {
  return std::holds_alternative<headless::Press>(action) && dynamic_cast<headless::Form*>(control.Owner()) != nullptr;
}

}  // namespace

ScenarioEdits::ScenarioEdits(headless::ToolkitBase& toolkit, Edits& edits) : toolkit_(toolkit), edits_(edits) {
  toolkit_.AddListener(*this);
}

ScenarioEdits::~ScenarioEdits() { toolkit_.RemoveListener(*this); }

void ScenarioEdits::Before(headless::AnyControl& control, const headless::Action& action) {
  if (IsFormButton(control, action)) running_.push_back(edits_.BeginEdit());
}

void ScenarioEdits::After(headless::AnyControl& control, const headless::Action& action,
                          std::optional<headless::Outcome>) {
  if (!IsFormButton(control, action)) return;
  edits_.EndEdit(running_.back());
  running_.pop_back();
}

}  // namespace brivane::dossier
