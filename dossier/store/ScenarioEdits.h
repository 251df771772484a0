#pragma once

#include <cstddef>
#include <vector>

#include "dossier/store/Edits.h"
#include "toolkits/headless/Toolkit.h"

namespace brivane::dossier {

/// Makes pressing a button of a form, such as the OK of the year-by-year form, one edit: all the periods that it
/// writes are stored in one transaction, or none. What a box of a form writes is stored at once without it.
///
///     ScenarioEdits scenario(toolkit, bestand->Bewerkingen());
///     editor.ScenarioGeopend.Connect([&](frmScenario&) { bestand->Bewerkingen().BeginModal(); });
///
/// The toolkit and the edits outlive it.
class ScenarioEdits : public headless::ActionListener {
 public:
  ScenarioEdits(headless::ToolkitBase& toolkit, Edits& edits);
  ScenarioEdits(const ScenarioEdits&) = delete;
  ScenarioEdits& operator=(const ScenarioEdits&) = delete;
  ~ScenarioEdits() override;

  void Before(headless::AnyControl& control, const headless::Action& action) override;
  void After(headless::AnyControl& control, const headless::Action& action,
             std::optional<headless::Outcome> outcome) override;

 private:
  headless::ToolkitBase& toolkit_;
  Edits& edits_;
  /// The edits of the presses that are running: a press may open another form.
  std::vector<std::size_t> running_;
};

}  // namespace brivane::dossier
