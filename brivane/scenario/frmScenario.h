#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include <brivane/frame/Handle.h>
#include <brivane/frame/Toolkit.h>
#include <brivane/host/Export.h>
#include <brivane/host/model/BedragObject.h>
#include <brivane/host/model/Hoofdvenster.h>
#include <brivane/scenario/Invoersoort.h>
#include <brivane/scenario/Maanden.h>
#include <brivane/scenario/Rooster.h>

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
/// OK stores the rows in the scenario; closing in any other way leaves its periods as they were. The base value is
/// written as soon as row 1 is edited. No tracer is told of it; a failure of a handler is shown to the adviser, and the
/// form stays open as it is (\ref failures).
///
/// What holds for all of it: \ref threads, \ref ownership, \ref events, \ref failures.
class BRIVANE_API frmScenario {
 public:
  /// Makes the form, unseen and empty. The toolkit outlives it.
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
  /// Decides the month numbers of stored amounts: 1 the first month of a row; 2 the same, and the last where the row is
  /// ticked as yearly; any other the last. 0 until set; the editor leaves it so. Counts from the next OK.
  [[nodiscard]] std::int16_t SoortScenario() const;
  void SetSoortScenario(std::int16_t soort);

  /// Checks that the amounts together stay within Bd_MaxOpname; a refusal shows its message and sets Cancel. ControleNr
  /// 0 lets pending user-interface events run first; 1 is this check alone. A failure is shown once.
  void Validation(bool& Cancel, std::int32_t ControleNr = 0);

  /// The background of the form, which each control in the colour of button faces takes over when the form is shown.
  /// The editor gives it its own.
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

  /// What OK writes into the scenario, it writes between these two, for who stores it as a whole. The second one
  /// comes also where the writing fails, before the adviser is told. A listener of these two must not fail.
  /// @{
  host::Event<> OpslagBegint;
  host::Event<> OpslagEindigt;
  /// @}

 private:
  void Form_Load();
  void Form_Activate();
  void cmdOK_Click();
  void txtBedrag_Validation(int Index);
  void txtPercentage_Validation(int Index);
  void txtKorting_Validation(int Index);

  /// Ends a handler at an unexpected failure and shows it once.
  template <class Body> void Guarded(Body&& body);
  /// Shows the failure being handled.
  void ToonFout();

  void BouwRooster(std::int16_t AantalJaar, std::int32_t Labeltype, bool In_RenteKorting);
  void SchikFormulier(const scenario::Indeling& indeling);
  void Laad();
  void LaadBedragen();
  void LaadPercentages();
  void LaadGroei();
  void BewaarAlsGeheel(scenario::Invoersoort soort);
  void Bewaar(scenario::Invoersoort soort);
  void ControleerOpname(bool& Cancel, std::int32_t ControleNr);
  void ToonTotaal();

  [[nodiscard]] host::BedragObject& Bron() const;
  [[nodiscard]] bool Aanvullen() const;
  [[nodiscard]] bool IsOverbrugging() const { return opzet_.overbrugging == scenario::Overbrugging::Ja; }

  static constexpr int kVergrendelbaar = 50;

  host::Desktop& desktop_;
  std::unique_ptr<host::Form> form_;
  frame::Controls controls_;
  scenario::Rooster rooster_;
  scenario::Opzet opzet_;
  std::array<bool, kVergrendelbaar> vergrendeld_{};
  std::shared_ptr<host::BedragObject> scenario_;
  std::int16_t aantalJaar_ = 0;
  std::int16_t soortScenario_ = 0;
  double maxOpname_ = 0;
  /// Loading never makes it monthly, so it starts by the year and storing alone changes it.
  scenario::Maandbasis maandbasis_ = scenario::Maandbasis::Jaar;
  bool gewijzigd_ = false;
  host::Subscriptions subscriptions_;
};

}  // namespace brivane
