#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include <brivane/host/controls/Button.h>
#include <brivane/host/controls/CheckBox.h>
#include <brivane/host/controls/Frame.h>
#include <brivane/host/controls/JaNee.h>
#include <brivane/host/controls/Label.h>
#include <brivane/host/controls/ListView.h>
#include <brivane/host/controls/OptionButton.h>
#include <brivane/host/controls/Surface.h>
#include <brivane/host/controls/TextBox.h>
#include <brivane/host/model/Application.h>
#include <brivane/host/model/DossierControle.h>

namespace bench {

namespace host = brivane::host;

/// The editor's controls, looked up once.
struct EditorControls {
  explicit EditorControls(host::Surface& surface);

  host::Surface& surface;
  host::OptionButton *last[4], *fiscaal[4], *aanvrager[3];
  host::CheckBox *voorstel[4], *product;
  host::TextBox *TxtOm, *TxtBd, *TxtDtAanvang, *TxtDtEind, *TxtAnJaar, *TxtAnMaand, *txtVervaldatum, *txtMaatschappij,
      *txtProductsoort, *txtProductnaam;
  host::ListBox *cboTermijn, *cboMaatschappij, *cboProductsoort;
  host::JaNee *jnInkUitArbeid, *jnInDagloon, *jnUwBemiddeling;
  host::Button* cmdScenario;
  host::Frame *fraLast, *fraFiscaal, *fraAlgemeen, *fraAanvangsdatum, *fraLooptijd, *fraVervaldatum, *fraBeeindigen,
      *fraGegevens, *fraHeffing, *fraProduct, *fraMij, *fraProductsoort, *fraProductnaam, *fraUwBemiddeling;
  host::Surface* toelichting;
  host::ListView* lstToelichting;
  host::JaNee *jnAO, *jnWW, *jnLangleven, *jnOverlijden;
  host::TextBox *TxtPcOvergang, *txtEinddatum, *TxtEindjaar;
  host::Label* lblSlash;
};

/// The calls of host and controls that the editor's rules require, in their order, and nothing else: no error
/// handling, no guards, no look-up of controls, and what the rules work out is a constant. An editor cannot cost less.
///
/// Works on controls that no editor listens to. The measured states are those in which no call sets off an event
/// whose handler has something to do; where one has, its calls stand here too.
class Bare {
 public:
  Bare(host::Surface& surface, std::shared_ptr<host::Application> application,
       std::shared_ptr<host::ProcedureTrace> trace, std::shared_ptr<host::DossierControle> controle,
       std::function<void(const std::string&)> refreshTopDisplay);

  void SetApplication();
  void Validation();

  void jnInDagloon_Change();
  void jnInkUitArbeid_Change();
  void jnUwBemiddeling_Change();
  void optAanvrager_Click();
  void optFiscaal_Click();
  void optLast_Click();
  void TxtBd_Validation();
  void TxtOm_Validation();
  void TxtAnJaar_Validation();
  void TxtAnMaand_Validation();
  void TxtDtAanvang_Validation();
  void TxtDtEind_Validation();
  void txtMaatschappij_Validation();
  void txtProductsoort_Validation();
  void txtProductnaam_Validation();
  void txtVervaldatum_Validation();
  void chkProduct_Click();
  void cboMaatschappij_Click();
  void cboProductsoort_Click();
  void CboTermijn_Click();
  void ChkVoorstel_Click();

  void jnAO_Change();
  void jnWW_Change();
  void jnLangleven_Change();
  void jnOverlijden_Change();
  void TxtPcOvergang_Validation();
  void TxtEinddatum_Validation();
  void TxtEindjaar_Validation();

 private:
  template <class Body> void Traced(std::string_view name, Body body) {
    trace_->EnterProcedure(name);
    body();
    trace_->LeaveProcedure();
  }

  void Fill_Controls();
  void Fill_fraAlgemeen();
  void KiesTermijn();
  void VulHeffing();
  std::string FittedName(std::int16_t persoon);
  void Fill_Product();
  void ShowProductFrames();
  void FillCompanies();
  void FillKinds();
  void Check_FraFiscaal(bool filling);
  void BindToelichting();
  void Show_Keuze();
  void Resize();
  void MeldKopregel() { refreshTopDisplay_(item_->Kopregel()); }

  EditorControls c_;
  std::shared_ptr<host::Application> application_;
  std::shared_ptr<host::ProcedureTrace> trace_;
  std::shared_ptr<host::DossierControle> controle_;
  std::function<void(const std::string&)> refreshTopDisplay_;
  std::shared_ptr<host::Dossier> dossier_;
  std::shared_ptr<host::Lening> lening_;
  std::shared_ptr<host::VrijeKolomItem> item_;
  host::Date einde_;
  host::Date eindeOvergang_;
};

}  // namespace bench
