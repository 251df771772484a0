#pragma once

#include <cstdint>
#include <memory>

#include <brivane/frame/Handle.h>
#include <brivane/frame/Toolkit.h>
#include <brivane/frame/Tracing.h>
#include <brivane/host/Export.h>
#include <brivane/host/model/Application.h>

namespace brivane {

/// The explanation control: in which life scenarios a free column counts, what passes to the partner on
/// death and until when, and what the column does to burden and income tax.
///
/// The surface (made from toelichting::kOntwerp) and the desktop must outlive the control, which stops listening to
/// the surface as it ends.
///
///     Toelichting toelichting(surface, toolkit.Desktop(), factories);
///     const auto changed = toelichting.Changed.Connect([&] { ... });
///     toelichting.SetApplication(application, lening, 1);
///
/// What holds for all of it: \ref threads, \ref ownership, \ref events, \ref failures.
class BRIVANE_API Toelichting {
 public:
  /// Builds the effect list and scales the surface to the screen; the factories are kept. Fails where the tracer does.
  Toelichting(host::Surface& surface, host::Desktop& desktop, const host::HostFactories& factories);
  Toelichting(const Toelichting&) = delete;
  Toelichting& operator=(const Toelichting&) = delete;

  /// Binds the control to a free column of a loan and fills it; may be called again at any time.
  /// Application and Lening are handed by reference: a host may replace them. A failure is reported
  /// through the application and does not reach the caller.
  void SetApplication(std::shared_ptr<host::Application>& Application, std::shared_ptr<host::Lening>& Lening,
                      std::int16_t Vrij_Id);

  /// Lets go of every object of the host's, the tracer too; what was made by the factories is made anew when it is
  /// used. Untraced, and nothing is written or raised. What the controls show stays.
  void Unbind();

  /// Checks the input and sets Cancel on a refusal, after a message. With Cancel already set nothing is checked, nor
  /// while the column does not count at death. ControleNr: 0 the percentage and the end date, 3 the percentage, 4 the
  /// end date, 5 the end age.
  void Validation(bool& Cancel, std::int32_t ControleNr = 0);

  /// The background of the surface. Setting it colours each control that still has the colour of button faces, once;
  /// the others keep theirs. A failure goes to the caller.
  [[nodiscard]] host::Color BackColor() const;
  void SetBackColor(host::Color New_Color);

  /// An edit was written into the record; once for each edit, not while the control is being bound.
  host::Event<> Changed;

 private:
  void UserControl_Initialize();
  void UserControl_Resize();
  void ConnectControls();

  void Fill_Listview();
  void Show_Keuze();
  void Fill_Controls();

  void jnAO_Change();
  void jnWW_Change();
  void jnLangleven_Change();
  void jnOverlijden_Change();
  void TxtPcOvergang_Validation(bool& Cancel);
  void TxtEinddatum_Validation(bool& Cancel);
  void TxtEindjaar_Validation(bool& Cancel);

  [[nodiscard]] bool OverlijdenJa() const;
  /// Birth date of the person whose column it is.
  [[nodiscard]] host::Date Geboortedatum();
  void Weiger(bool& Cancel, std::string_view melding);

  host::Surface& surface_;
  host::Desktop& desktop_;
  frame::Controls controls_;

  std::shared_ptr<host::Application> Application_;
  std::shared_ptr<host::Dossier> Dossier_;
  std::shared_ptr<host::Lening> Lening_;
  std::shared_ptr<host::VrijeKolomItem> Item_;
  bool Filling_ = false;
  bool Resizing_ = false;
  frame::Tracing tracing_;
  host::Subscriptions subscriptions_;
};

}  // namespace brivane
