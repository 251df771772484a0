#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/RecordingScenario.h"
#include <brivane/host/controls/CheckBox.h>
#include <brivane/host/controls/TextBox.h>
#include <brivane/scenario/Ontwerp.h>
#include <brivane/scenario/frmScenario.h>
#include <brivane/toolkits/memory/Toolkit.h>

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

  [[nodiscard]] controls::Form& Venster() { return static_cast<controls::Form&>(controls::Surface::Of(form->Form())); }
  [[nodiscard]] static std::size_t Ontwerprij(std::string_view naam) {
    for (std::size_t rij = 0; rij < scenario::kOntwerp.rows.size(); ++rij)
      if (scenario::kOntwerp.rows[rij].name == naam) return rij;
    throw std::out_of_range(std::string(naam));
  }
  [[nodiscard]] controls::AnyControl* Zoek(std::string_view naam, int index = frame::kNoIndex) {
    host::Control* gevonden = form->Form().Element(Ontwerprij(naam), index);
    return gevonden != nullptr ? &controls::AnyControl::Of(*gevonden) : nullptr;
  }
  [[nodiscard]] bool Bestaat(std::string_view naam, int index) { return Zoek(naam, index) != nullptr; }
  [[nodiscard]] host::Control& Control(std::string_view naam, int index = frame::kNoIndex) {
    controls::AnyControl* gevonden = Zoek(naam, index);
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

  controls::Outcome Typ(std::string_view naam, int rij, controls::BoxValue waarde) {
    return Zoek(naam, rij)->Perform(controls::Enter{std::move(waarde)});
  }
  void Kruis(std::string_view naam, int index = frame::kNoIndex, int waarde = host::kTicked) {
    Zoek(naam, index)->Perform(controls::Tick{waarde});
  }
  void DrukOK() { Zoek("cmdOK")->Perform(controls::Press{}); }

  /// The values of the boxes of one kind, rows 1 to the last.
  [[nodiscard]] std::vector<double> Waarden(std::string_view naam) {
    std::vector<double> waarden;
    VanElkeRij<host::TextBox>(naam, [&](const host::TextBox& vak) { waarden.push_back(vak.Number()); });
    return waarden;
  }
  /// By code, from row 1.
  void Zet(std::string_view naam, const std::vector<double>& waarden) {
    std::size_t rij = 0;
    VanElkeRij<host::TextBox>(naam, [&](host::TextBox& vak) { vak.SetNumber(waarden.at(rij++)); });
    ASSERT_EQ(rij, waarden.size());
  }
  [[nodiscard]] std::vector<int> Kruisen() {
    std::vector<int> kruisen;
    VanElkeRij<host::CheckBox>("chkEenmalig", [&](const host::CheckBox& vak) { kruisen.push_back(vak.Value()); });
    return kruisen;
  }

  template <class Soort, class Doe> void VanElkeRij(std::string_view naam, Doe&& doe) {
    const std::size_t ontwerprij = Ontwerprij(naam);
    for (int rij = 1; host::Control* control = form->Form().Element(ontwerprij, rij); ++rij)
      doe(static_cast<Soort&>(*control));
  }

  memory::Toolkit toolkit;
  std::vector<Bericht> berichten;
  std::shared_ptr<RecordingScenario> scenario = std::make_shared<RecordingScenario>();
  std::unique_ptr<frmScenario> form;
};

}  // namespace brivane::tests
