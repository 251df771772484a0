#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "dossier/model/Application.h"
#include "dossier/model/DossierControle.h"
#include "dossier/store/DossierBestand.h"
#include "dossier/store/Scenarioopslag.h"
#include "frame/Calendar.h"
#include "toolkits/headless/Toolkit.h"
#include "vrijekolom/Ontwerp.h"
#include "vrijekolom/VrijeKolom.h"

namespace brivane::dossier {

/// The real editor on the headless controls, bound to a case whose edits are stored: what an adviser works with,
/// without a window.
class Werkplek {
 public:
  Werkplek(std::shared_ptr<dossier::Dossier> dossier, std::shared_ptr<Edits> edits)
      : application_(std::make_shared<Application>(std::move(dossier))),
        edits_(std::move(edits)),
        surface_(toolkit_.MakeSurface(vrijekolom::kOntwerp)) {
    toolkit_.Desktop().today = frame::MakeDate({.year = 2026, .month = 11, .day = 21});
    application_->FoutGemeld.Connect([this](const Foutrecord& fout) { fouten.push_back(fout); });
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
  [[nodiscard]] headless::AnyControl& Control(std::string_view naam, int index = frame::kNoIndex) {
    headless::AnyControl* control = headless::Surface::Of(*surface_).Find(naam, index);
    EXPECT_NE(control, nullptr) << naam;
    return *control;
  }
  headless::Outcome Doe(std::string_view naam, const headless::Action& actie, int index = frame::kNoIndex) {
    return Control(naam, index).Perform(actie);
  }
  /// Types a value into a box and leaves it.
  headless::Outcome Typ(std::string_view naam, const headless::BoxValue& waarde) {
    return Doe(naam, headless::Enter{waarde});
  }
  [[nodiscard]] brivane::VrijeKolom& Editor() { return *editor_; }
  [[nodiscard]] headless::Toolkit& Toolkit() { return toolkit_; }
  [[nodiscard]] Application& App() { return *application_; }

  /// The reports that reached the adviser.
  std::vector<Foutrecord> fouten;
  /// What the store told.
  std::vector<StoreFailure> mislukt;

 private:
  headless::Toolkit toolkit_;
  std::shared_ptr<Application> application_;
  std::shared_ptr<Edits> edits_;
  std::unique_ptr<host::Surface> surface_;
  std::unique_ptr<brivane::VrijeKolom> editor_;
  std::unique_ptr<Scenarioopslag> scenario_;
};

}  // namespace brivane::dossier
