#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "dossier/model/Application.h"
#include "dossier/model/DossierControle.h"
#include "dossier/store/DossierStore.h"
#include "dossier/store/ScenarioTransaction.h"
#include <brivane/frame/Calendar.h>
#include <brivane/toolkits/memory/Toolkit.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane::dossier {

/// The real editor on the controls in memory, bound to a case whose edits are stored: what an adviser works with,
/// without a window.
class Desk {
 public:
  Desk(std::shared_ptr<dossier::Dossier> dossier, std::shared_ptr<Edits> edits)
      : application_(std::make_shared<Application>(std::move(dossier))),
        edits_(std::move(edits)),
        surface_(toolkit_.MakeSurface(vrijekolom::kOntwerp)) {
    toolkit_.Desktop().today = frame::MakeDate({.year = 2026, .month = 11, .day = 21});
    subscriptions_ +=
        application_->FoutGemeld.Connect([this](const host::ErrorRecord& error) { reports.push_back(error); });
    subscriptions_ += edits_->Failed.Connect([this](const StoreFailure& failure) { failed.push_back(failure); });
    const host::HostFactories factories{
        .MaakProcedureTrace =
            [this](std::string_view control) { return std::make_shared<StoreTrace>(control, edits_, nullptr); },
        .MaakDossierControle =
            [this](std::string_view) {
              return std::make_shared<DossierControle>([this] { return toolkit_.Desktop().Today(); });
            }};
    editor_ = std::make_unique<brivane::VrijeKolom>(*surface_, toolkit_, factories);
    scenario_ = std::make_unique<ScenarioTransaction>(*editor_, *edits_);
  }
  explicit Desk(DossierStore& store) : Desk(store.Dossier(), store.GedeeldeBewerkingen()) {}

  void Bind(std::int16_t Len_Id, std::int16_t Vrij_Id) { editor_->SetApplication(application_, Len_Id, Vrij_Id); }
  [[nodiscard]] controls::AnyControl& Control(std::string_view name, int index = frame::kNoIndex) {
    controls::AnyControl* control = controls::Surface::Of(*surface_).Find(name, index);
    EXPECT_NE(control, nullptr) << name;
    return *control;
  }
  controls::Outcome Do(std::string_view name, const controls::Action& action, int index = frame::kNoIndex) {
    return Control(name, index).Perform(action);
  }
  /// Types a value into a box and leaves it.
  controls::Outcome Type(std::string_view name, const controls::BoxValue& value) {
    return Do(name, controls::Enter{value});
  }
  [[nodiscard]] brivane::VrijeKolom& Editor() { return *editor_; }
  [[nodiscard]] memory::Toolkit& Toolkit() { return toolkit_; }
  [[nodiscard]] Application& App() { return *application_; }

  /// The reports that reached the adviser.
  std::vector<host::ErrorRecord> reports;
  /// What the store told.
  std::vector<StoreFailure> failed;

 private:
  memory::Toolkit toolkit_;
  std::shared_ptr<Application> application_;
  std::shared_ptr<Edits> edits_;
  std::unique_ptr<host::Surface> surface_;
  std::unique_ptr<brivane::VrijeKolom> editor_;
  std::unique_ptr<ScenarioTransaction> scenario_;
  host::Subscriptions subscriptions_;
};

}  // namespace brivane::dossier
