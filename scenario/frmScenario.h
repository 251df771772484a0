#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "frame/Handle.h"
#include "frame/Toolkit.h"
#include "host/model/BedragObject.h"
#include "host/model/Hoofdvenster.h"

namespace brivane {

/// The year-by-year form: a modal grid of up to 80 rows over which a scenario is entered as amounts,
/// percentages or both. Make one for each showing.
///
///     frmScenario formulier(toolkit);
///     formulier.SetBackColor(kleur);
///     formulier.SetDisableJaar(3, true);
///     formulier.Invoeren(bedrag, 30);
///     formulier.ShowModal(hoofdvenster);
///
/// OK stores the rows in the scenario; closing in any other way leaves its periods as they were. The base
/// value is written as soon as row 1 is edited.
class frmScenario {
 public:
  explicit frmScenario(frame::Toolkit& toolkit);
  frmScenario(const frmScenario&) = delete;
  frmScenario& operator=(const frmScenario&) = delete;
  ~frmScenario();

  /// Builds the grid for a scenario and fills it. AantalJaar: rows wanted, kept within 1 to 80. Labeltype 0:
  /// narrow row labels. Anv_Leeftijd is not used. In_RenteKorting: with the discount column. Bd_MaxOpname:
  /// largest sum of the amounts in euros, 0 for none. A failure is shown once and goes to the caller.
  void Invoeren(const std::shared_ptr<host::BedragObject>& Scenario, std::int16_t AantalJaar,
                std::int32_t Labeltype = 0, std::int32_t Anv_Leeftijd = 0, bool LooptijdExtra = false,
                bool In_RenteKorting = false, double Bd_MaxOpname = 0);

  /// Locks row Jr (1 to 50; else error 9) or frees it; to be set before Invoeren.
  void SetDisableJaar(std::int16_t Jr, bool NewValue);
  /// Decides the month numbers of stored amounts; 0 until set.
  [[nodiscard]] std::int16_t SoortScenario() const;
  void SetSoortScenario(std::int16_t soort);

  [[nodiscard]] host::Color BackColor() const;
  void SetBackColor(host::Color New_Color);

  /// Shows the filled form over its owner and returns when it has been closed.
  void ShowModal(host::Hoofdvenster* eigenaar);

  /// The form's window, for tools that follow an adviser's work.
  [[nodiscard]] host::Form& Form();
  /// The number of rows wanted, as given to Invoeren.
  [[nodiscard]] std::int16_t AantalJaar() const;
  /// The scenario being edited; nothing before Invoeren and after the form was closed.
  [[nodiscard]] const std::shared_ptr<host::BedragObject>& Scenario() const;
  /// The adviser changed a row since the form was filled.
  [[nodiscard]] bool Gewijzigd() const;
};

}  // namespace brivane
