#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "dossier/model/Application.h"
#include "dossier/model/DossierControle.h"
#include "dossier/store/DossierFile.h"
#include "dossier/store/ScenarioTransaction.h"
#include "frame/Calendar.h"
#include "toolkits/memory/Toolkit.h"
#include "vrijekolom/Ontwerp.h"
#include "vrijekolom/VrijeKolom.h"

namespace brivane::dossier {

/// The real editor on the controls in memory, bound to a case whose edits are stored: what an adviser works with,
/// without a window.
class Werkplek {
 public:
  Werkplek(std::shared_ptr<dossier::Dossier> dossier, std::shared_ptr<Edits> edits)
      : application_(std::make_shared<Application>(std::move(dossier))),
        edits_(std::move(edits)),
        surface_(toolkit_.MakeSurface(vrijekolom::kOntwerp)) {
    toolkit_.Desktop().today = frame::MakeDate({.year = 2026, .month = 11, .day = 21});
    application_->FoutGemeld.Connect([this](const host::ErrorRecord& fout) { fouten.push_back(fout); });
    edits_->Failed.Connect([this](const StoreFailure& failure) { mislukt.push_back(failure); });
    const host::HostFactories factories{
        .MaakProcedureTrace =
            [this](std::string_view control) { return std::make_shared<StoreTrace>(control, edits_, nullptr); },
        .MaakDossierControle =
            [this](std::string_view) {
              return std::make_shared<DossierControle>([this] { return toolkit_.Desktop().Today(); });
            }};
    editor_ = std::make_unique<brivane::VrijeKolom>(*surface_, toolkit_, factories);
    scenario_ = std::make_unique<Scenarioopslag>(*editor_, toolkit_, *edits_);
  }
  explicit Werkplek(DossierBestand& bestand) : Werkplek(bestand.Dossier(), bestand.GedeeldeBewerkingen()) {}

  void Bind(std::int16_t Len_Id, std::int16_t Vrij_Id) { editor_->SetApplication(application_, Len_Id, Vrij_Id); }
  [[nodiscard]] controls::AnyControl& Control(std::string_view naam, int index = frame::kNoIndex) {
    controls::AnyControl* control = controls::Surface::Of(*surface_).Find(naam, index);
    EXPECT_NE(control, nullptr) << naam;
    return *control;
  }
  controls::Outcome Doe(std::string_view naam, const controls::Action& actie, int index = frame::kNoIndex) {
    return Control(naam, index).Perform(actie);
  }
  /// Types a value into a box and leaves it.
  controls::Outcome Typ(std::string_view naam, const controls::BoxValue& waarde) {
    return Doe(naam, controls::Enter{waarde});
  }
  [[nodiscard]] brivane::VrijeKolom& Editor() { return *editor_; }
  [[nodiscard]] memory::Toolkit& Toolkit() { return toolkit_; }
  [[nodiscard]] Application& App() { return *application_; }

  /// The reports that reached the adviser.
  std::vector<host::ErrorRecord> fouten;
  /// What the store told.
  std::vector<StoreFailure> mislukt;

 private:
  memory::Toolkit toolkit_;
  std::shared_ptr<Application> application_;
  std::shared_ptr<Edits> edits_;
  std::unique_ptr<host::Surface> surface_;
  std::unique_ptr<brivane::VrijeKolom> editor_;
  std::unique_ptr<Scenarioopslag> scenario_;
};

}  // namespace brivane::dossier
