#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include <brivane/frame/Handle.h>
#include <brivane/frame/Toolkit.h>
#include <brivane/frame/Tracing.h>
#include <brivane/host/Export.h>
#include <brivane/host/model/Application.h>
#include <brivane/toelichting/Toelichting.h>

namespace brivane {

class frmScenario;

/// The free-column editor: every field of one budget item of a loan, written into the host's record as
/// soon as it is accepted.
///
/// The surface (made from vrijekolom::kOntwerp) and the toolkit must outlive the control, which stops listening to
/// them as it ends. References to
/// the host's objects are held until the control is bound anew or destroyed.
///
///     auto surface = toolkit.MakeSurface(vrijekolom::kOntwerp);
///     VrijeKolom editor(*surface, toolkit, factories);
///     const auto header = editor.RefreshTopDisplay.Connect([&](const std::string& text) { ... });
///     editor.SetApplication(application, 0, 1);
///     bool cancel = false;
///     editor.Validation(cancel);  // cancel: stay on the page
///
/// What holds for all of it: \ref threads, \ref ownership, \ref events, \ref failures.
class BRIVANE_API VrijeKolom {
 public:
  /// Listens to the surface and scales it to the screen; the factories are kept. Fails where the tracer of the
  /// explanation control does.
  VrijeKolom(host::Surface& surface, frame::Toolkit& toolkit, const host::HostFactories& factories);
  VrijeKolom(const VrijeKolom&) = delete;
  VrijeKolom& operator=(const VrijeKolom&) = delete;
  ~VrijeKolom();

  /// Binds the editor to free column `Vrij_Id` of loan `Len_Id` (0: the loan of the current situation) and fills it;
  /// may be called again at any time. A failure is reported through the application and does not reach the caller (\ref
  /// failures): controls::Binding tells.
  void SetApplication(const std::shared_ptr<host::Application>& Application, std::int16_t Len_Id, std::int16_t Vrij_Id);

  /// Lets go of every object of the host's, the tracer and the check too; what was made by the factories is made anew
  /// when it is used. Untraced, and nothing is written, asked or raised. What the controls show stays.
  void Unbind();

  /// The host's check before it leaves the column. Sets Cancel on a refusal, after a message; with Cancel
  /// already set nothing is asked or checked. ControleNr: 0 everything, 1 the start date, 2 the end date.
  void Validation(bool& Cancel, std::int32_t ControleNr = 0);

  /// The background of the surface, and of the year-by-year form. Setting it colours each control that still has the
  /// colour of button faces, once; the others keep theirs. A failure goes to the caller.
  [[nodiscard]] host::Color BackColor() const;
  void SetBackColor(host::Color New_Color);

  /// Whether the frame "Post beëindigen in" with the proposal boxes is shown; the host sets it where its case works
  /// with proposals. False until it is set.
  [[nodiscard]] bool BeeindigenZichtbaar() const { return BeeindigenZichtbaar_; }
  void SetBeeindigenZichtbaar(bool zichtbaar);

  /// Belongs to no control: an empty procedure, traced all the same.
  void txtProducttype_Validation();

  /// The explanation control inside the editor; its complete check is the host's to call.
  [[nodiscard]] brivane::Toelichting& Toelichting() { return Toelichting_; }
  /// The record that the editor writes; nothing while it is not bound. A control that was embedded holds the host's
  /// behind another one (controls::HostsOwn).
  [[nodiscard]] const std::shared_ptr<host::VrijeKolomItem>& Item() const { return Item_; }
  /// The editor is writing its own controls, so that toggles, options and lists write nothing back. It stays so after a
  /// binding that failed, until one succeeds.
  [[nodiscard]] bool Filling() const { return Filling_; }
  /// The adviser changed something that is to be carried over, since the column was bound or that was last asked.
  [[nodiscard]] bool Gewijzigd() const { return Gewijzigd_; }

  /// The header text of the column may have changed: raised after the edit was written, with VrijeKolomItem::Weergave
  /// after term and scenario, and Kopregel else. Not by binding.
  host::Event<const std::string&> RefreshTopDisplay;
  /// The editor was laid out, by a binding, an edit that shows or hides a frame, or a new size: its height may have
  /// changed. A listener must not fail: the editor is laid out no more after that.
  host::Event<> HeightChanged;
  /// The year-by-year form has been filled and is about to be shown. For tools that follow an adviser's
  /// work; the form is gone when the event that opened it ends.
  host::Event<frmScenario&> ScenarioGeopend;

 private:
  void UserControl_Initialize();
  void UserControl_Resize();
  void ConnectControls();

  void DeelAlgemeenIn();
  [[nodiscard]] host::Twips StapelLinks();
  [[nodiscard]] host::Twips StapelRechts();

  // Loading
  void Fill_Controls();
  void Fill_fraAlgemeen();
  void ToonBedrag();
  void KiesTermijn();
  void VulHeffing();
  [[nodiscard]] std::string Naam(std::int16_t persoon);
  [[nodiscard]] host::Date EinddatumVanRecord();
  void HerbindToelichting();

  // Company, kind and product
  void Fill_Product();
  void Fill_cboMaatschappij();
  void Fill_cboProductsoort();
  void chkProduct_Click();
  void LeegProduct();
  void cboMaatschappij_Click();
  void cboProductsoort_Click();
  void HerlaadAlgemeen();

  // Checks
  void VraagOvernemen();
  [[nodiscard]] bool StaatInNieuweSituatie();
  void VerwijderUitNieuweSituatie();
  void ControleerAanvang(bool& Cancel);
  void ControleerEinde(bool& Cancel);
  void Weiger(bool& Cancel, std::string_view titel, std::string_view melding);
  void WerkVoorstellenBij();

  // Fiscal options
  void Check_FraFiscaal();
  [[nodiscard]] std::int16_t GekozenLast() const;
  [[nodiscard]] std::int16_t GekozenFiscaal() const;

  // Term
  void CboTermijn_Click();
  void LeegScenario();

  // Proposals
  void ChkVoorstel_Click(std::int16_t Index);

  // Scenario
  void cmdScenario_Click();
  [[nodiscard]] std::int16_t JarenTotLeeftijdsgrens();

  // Fields
  void jnInDagloon_Change();
  void jnInkUitArbeid_Change();
  void jnUwBemiddeling_Change();
  void optAanvrager_Click(std::int16_t Index);
  void optFiscaal_Click(std::int16_t Index);
  void optLast_Click(std::int16_t Index);
  void TxtBd_Validation();
  void TxtOm_Validation();
  void TxtAnJaar_Validation();
  void TxtAnMaand_Validation();
  void TxtDtAanvang_Validation(bool& Cancel);
  void TxtDtEind_Validation(bool& Cancel);
  void txtMaatschappij_Validation();
  void txtProductsoort_Validation();
  void txtProductnaam_Validation();
  void txtVervaldatum_Validation();
  void Toelichting_Changed();
  void SchrijfLooptijd();
  void ToonLooptijd();
  void ToonEinddatum();
  void MeldKopregel();
  void MeldWeergave();

  [[nodiscard]] host::VrijeKolomItem& Record() const { return host::Need(Item_); }

  host::Surface& surface_;
  frame::Toolkit& toolkit_;
  host::Desktop& desktop_;
  host::HostFactories factories_;
  frame::Controls controls_;

  std::shared_ptr<host::Application> Application_;
  std::shared_ptr<host::Dossier> Dossier_;
  std::shared_ptr<host::Lening> Lening_;
  std::shared_ptr<host::VrijeKolomItem> Item_;
  std::int16_t Len_Id_ = 0;
  std::int16_t Vrij_Id_ = 0;
  std::weak_ptr<host::Application> Gebonden_;  ///< the application that the two identifiers belong to
  bool Filling_ = false;
  bool Gewijzigd_ = false;
  bool HuidigeSituatie_ = false;
  bool Initialised_ = false;
  bool IsContract_ = false;
  bool Resizing_ = false;
  bool BeeindigenZichtbaar_ = false;
  std::shared_ptr<host::DossierControle> DossierControle_;
  frame::Tracing tracing_;
  brivane::Toelichting Toelichting_;
  host::Subscriptions subscriptions_;
};

}  // namespace brivane
