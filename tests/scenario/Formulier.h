#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "host/controls/CheckBox.h"
#include "host/controls/TextBox.h"
#include "scenario/Ontwerp.h"
#include "scenario/frmScenario.h"
#include "tests/support/RecordingScenario.h"
#include "toolkits/headless/Toolkit.h"

namespace brivane::tests {

/// A message box that was shown.
struct Bericht {
  std::string titel;
  std::string tekst;
  host::MessageStyle stijl = host::MessageStyle::OkExclamation;
  friend bool operator==(const Bericht&, const Bericht&) = default;
};

inline void PrintTo(const Bericht& bericht, std::ostream* uit) {
  *uit << "[" << bericht.titel << "] " << bericht.tekst << " (" << static_cast<int>(bericht.stijl) << ")";
}

/// The box of an unexpected failure.
inline Bericht Foutbericht(int nummer, const std::string& omschrijving) {
  return {"Kwandero", "Er is een fout opgetreden.\r\n" + std::to_string(nummer) + ": " + omschrijving,
          host::MessageStyle::OkExclamation};
}

/// The form on the toolkit without a screen, over a scenario that tells what happens to it.
class Formulier : public testing::Test {
 protected:
  Formulier() {
    toolkit.Desktop().answer = [this](const std::string& titel, const std::string& tekst, host::MessageStyle stijl) {
      berichten.push_back({titel, tekst, stijl});
      return host::MessageAnswer::Ok;
    };
    Nieuw();
  }

  void Nieuw() { form = std::make_unique<frmScenario>(toolkit); }

  struct Opties {
    bool korting = false;
    double maxOpname = 0;
    std::int32_t labeltype = 0;
    bool looptijdExtra = false;
  };

  /// Opens the form anew on the scenario, for entry kind and number of rows.
  void Open(std::int16_t soort, int rijen) { Open(soort, rijen, Opties{}); }
  void Open(std::int16_t soort, int rijen, const Opties& opties) {
    scenario->invoersoort = soort;
    form->Invoeren(scenario, static_cast<std::int16_t>(rijen), opties.labeltype, 0, opties.looptijdExtra,
                   opties.korting, opties.maxOpname);
    scenario->log.clear();
  }

  [[nodiscard]] headless::Form& Venster() {
    return static_cast<headless::Form&>(headless::Surface::Of(form->Form()));
  }
  /// By its row of the design: grids are large, and a search by name alone would walk all of one.
  [[nodiscard]] headless::AnyControl* Zoek(std::string_view naam, int index = frame::kNoIndex) {
    for (std::size_t rij = 0; rij < scenario::kOntwerp.rows.size(); ++rij) {
      if (scenario::kOntwerp.rows[rij].name != naam) continue;
      host::Control* gevonden = form->Form().Element(rij, index);
      return gevonden != nullptr ? &headless::AnyControl::Of(*gevonden) : nullptr;
    }
    return nullptr;
  }
  [[nodiscard]] bool Bestaat(std::string_view naam, int index) { return Zoek(naam, index) != nullptr; }
  [[nodiscard]] host::Control& Control(std::string_view naam, int index = frame::kNoIndex) {
    headless::AnyControl* gevonden = Zoek(naam, index);
    if (gevonden == nullptr) throw std::out_of_range(std::string(naam) + "(" + std::to_string(index) + ")");
    return gevonden->Host();
  }
  [[nodiscard]] host::TextBox& Vak(std::string_view naam, int index = frame::kNoIndex) {
    return dynamic_cast<host::TextBox&>(Control(naam, index));
  }
  [[nodiscard]] host::CheckBox& Aankruisvak(std::string_view naam, int index = frame::kNoIndex) {
    return dynamic_cast<host::CheckBox&>(Control(naam, index));
  }
  [[nodiscard]] std::string Bijschrift(std::string_view naam, int index = frame::kNoIndex) {
    return dynamic_cast<host::Captioned&>(Control(naam, index)).Caption();
  }

  headless::Outcome Typ(std::string_view naam, int rij, headless::BoxValue waarde) {
    return Zoek(naam, rij)->Perform(headless::Enter{std::move(waarde)});
  }
  void Kruis(std::string_view naam, int index = frame::kNoIndex, int waarde = host::kTicked) {
    Zoek(naam, index)->Perform(headless::Tick{waarde});
  }
  void DrukOK() { Zoek("cmdOK")->Perform(headless::Press{}); }

  /// The values of the boxes of one kind, rows 1 to the last.
  [[nodiscard]] std::vector<double> Waarden(std::string_view naam) {
    std::vector<double> waarden;
    for (int rij = 1; Bestaat(naam, rij); ++rij) waarden.push_back(Vak(naam, rij).Number());
    return waarden;
  }
  void Zet(std::string_view naam, const std::vector<double>& waarden) {
    int rij = 0;
    for (const double waarde : waarden) Vak(naam, ++rij).SetNumber(waarde);
  }
  [[nodiscard]] std::vector<int> Kruisen() {
    std::vector<int> kruisen;
    for (int rij = 1; Bestaat("chkEenmalig", rij); ++rij) kruisen.push_back(Aankruisvak("chkEenmalig", rij).Value());
    return kruisen;
  }

  headless::Toolkit toolkit;
  std::vector<Bericht> berichten;
  std::shared_ptr<RecordingScenario> scenario = std::make_shared<RecordingScenario>();
  std::unique_ptr<frmScenario> form;
};

}  // namespace brivane::tests
