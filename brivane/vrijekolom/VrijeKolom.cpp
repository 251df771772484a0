#include <brivane/frame/LayoutHelpers.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/Teksten.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane {

using namespace vrijekolom;

VrijeKolom::VrijeKolom(host::Surface& surface, frame::Toolkit& toolkit, const host::HostFactories& factories)
    : surface_(surface),
      toolkit_(toolkit),
      desktop_(toolkit.Desktop()),
      factories_(factories),
      controls_(surface),
      tracing_({kNaam, kOmschrijving}, factories, {&desktop_, [this] { return Application_; }}),
      Toelichting_(controls_[ToelichtingVlak], desktop_, factories) {
  ConnectControls();
  UserControl_Initialize();
}

VrijeKolom::~VrijeKolom() = default;

void VrijeKolom::ConnectControls() {
  subscriptions_ += surface_.Resize.Connect([this] { UserControl_Resize(); });
  subscriptions_ +=
      surface_.BackColorSet.Connect([this](host::Color color) { frame::ReplaceColor(surface_.Controls(), color); });

  for (std::int16_t i = optLast.first; i <= optLast.last; ++i)
    subscriptions_ += controls_(optLast, i).Click.Connect([this, i] { optLast_Click(i); });
  for (std::int16_t i = optFiscaal.first; i <= optFiscaal.last; ++i)
    subscriptions_ += controls_(optFiscaal, i).Click.Connect([this, i] { optFiscaal_Click(i); });
  for (std::int16_t i = optAanvrager.first; i <= optAanvrager.last; ++i)
    subscriptions_ += controls_(optAanvrager, i).Click.Connect([this, i] { optAanvrager_Click(i); });
  for (std::int16_t i = ChkVoorstel.first; i <= ChkVoorstel.last; ++i)
    subscriptions_ += controls_(ChkVoorstel, i).Click.Connect([this, i] { ChkVoorstel_Click(i); });

  subscriptions_ += controls_[jnInkUitArbeid].Change.Connect([this] { jnInkUitArbeid_Change(); });
  subscriptions_ += controls_[jnInDagloon].Change.Connect([this] { jnInDagloon_Change(); });
  subscriptions_ += controls_[jnUwBemiddeling].Change.Connect([this] { jnUwBemiddeling_Change(); });

  subscriptions_ += controls_[TxtBd].Validation.Connect([this](bool&) { TxtBd_Validation(); });
  subscriptions_ += controls_[TxtOm].Validation.Connect([this](bool&) { TxtOm_Validation(); });
  subscriptions_ += controls_[TxtAnJaar].Validation.Connect([this](bool&) { TxtAnJaar_Validation(); });
  subscriptions_ += controls_[TxtAnMaand].Validation.Connect([this](bool&) { TxtAnMaand_Validation(); });
  subscriptions_ +=
      controls_[TxtDtAanvang].Validation.Connect([this](bool& Cancel) { TxtDtAanvang_Validation(Cancel); });
  subscriptions_ += controls_[TxtDtEind].Validation.Connect([this](bool& Cancel) { TxtDtEind_Validation(Cancel); });
  subscriptions_ += controls_[txtMaatschappij].Validation.Connect([this](bool&) { txtMaatschappij_Validation(); });
  subscriptions_ += controls_[txtProductsoort].Validation.Connect([this](bool&) { txtProductsoort_Validation(); });
  subscriptions_ += controls_[txtProductnaam].Validation.Connect([this](bool&) { txtProductnaam_Validation(); });
  subscriptions_ += controls_[txtVervaldatum].Validation.Connect([this](bool&) { txtVervaldatum_Validation(); });

  subscriptions_ += controls_[cboTermijn].Click.Connect([this] { CboTermijn_Click(); });
  subscriptions_ += controls_[cboMaatschappij].Click.Connect([this] { cboMaatschappij_Click(); });
  subscriptions_ += controls_[cboProductsoort].Click.Connect([this] { cboProductsoort_Click(); });
  subscriptions_ += controls_[chkProduct].Click.Connect([this] { chkProduct_Click(); });
  subscriptions_ += controls_[cmdScenario].Click.Connect([this] { cmdScenario_Click(); });
  subscriptions_ += Toelichting_.Changed.Connect([this] { Toelichting_Changed(); });
}

void VrijeKolom::Unbind() {
  Toelichting_.Unbind();
  DossierControle_.reset();
  Item_.reset();
  Lening_.reset();
  Dossier_.reset();
  Application_.reset();
  Gebonden_.reset();
  Filling_ = false;
  Gewijzigd_ = false;
  HuidigeSituatie_ = false;
  tracing_.LetGo();
}

host::Color VrijeKolom::BackColor() const { return surface_.BackColor().value_or(host::kButtonFace); }

void VrijeKolom::SetBackColor(host::Color New_Color) { surface_.SetBackColor(New_Color); }

void VrijeKolom::SetBeeindigenZichtbaar(bool zichtbaar) {
  BeeindigenZichtbaar_ = zichtbaar;
  controls_[fraBeeindigen].SetVisible(zichtbaar);
}

}  // namespace brivane
