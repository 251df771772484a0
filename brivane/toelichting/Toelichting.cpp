#include <brivane/frame/Calendar.h>
#include <brivane/frame/LayoutHelpers.h>
#include <brivane/toelichting/Ontwerp.h>
#include <brivane/toelichting/Teksten.h>
#include <brivane/toelichting/Toelichting.h>

namespace brivane {

using namespace toelichting;

Toelichting::Toelichting(host::Surface& surface, host::Desktop& desktop, const host::HostFactories& factories)
    : surface_(surface),
      desktop_(desktop),
      controls_(surface),
      tracing_({kNaam, kOmschrijving}, factories, {&desktop, [this] { return Application_; }}) {
  ConnectControls();
  UserControl_Initialize();
}

void Toelichting::ConnectControls() {
  subscriptions_ += surface_.Resize.Connect([this] { UserControl_Resize(); });
  subscriptions_ +=
      surface_.BackColorSet.Connect([this](host::Color color) { frame::ReplaceColor(surface_.Controls(), color); });
  subscriptions_ += controls_[jnAO].Change.Connect([this] { jnAO_Change(); });
  subscriptions_ += controls_[jnWW].Change.Connect([this] { jnWW_Change(); });
  subscriptions_ += controls_[jnLangleven].Change.Connect([this] { jnLangleven_Change(); });
  subscriptions_ += controls_[jnOverlijden].Change.Connect([this] { jnOverlijden_Change(); });
  subscriptions_ +=
      controls_[TxtPcOvergang].Validation.Connect([this](bool& Cancel) { TxtPcOvergang_Validation(Cancel); });
  subscriptions_ +=
      controls_[txtEinddatum].Validation.Connect([this](bool& Cancel) { TxtEinddatum_Validation(Cancel); });
  subscriptions_ += controls_[TxtEindjaar].Validation.Connect([this](bool& Cancel) { TxtEindjaar_Validation(Cancel); });
}

host::Color Toelichting::BackColor() const { return surface_.BackColor().value_or(host::kButtonFace); }

void Toelichting::SetBackColor(host::Color New_Color) { surface_.SetBackColor(New_Color); }

void Toelichting::SetApplication(std::shared_ptr<host::Application>& Application, std::shared_ptr<host::Lening>& Lening,
                                 std::int16_t Vrij_Id) {
  tracing_.Handled("SetApplication", [&] {
    Filling_ = true;
    Application_ = Application;
    Dossier_ = host::Need(Application_).Dossier();
    Lening_ = Lening;
    Item_ = host::Need(Lening_).VrijeKolom(Vrij_Id);
    Show_Keuze();
    Fill_Controls();
    Filling_ = false;
  });
}

void Toelichting::Unbind() {
  Item_.reset();
  Lening_.reset();
  Dossier_.reset();
  Application_.reset();
  Filling_ = false;
  tracing_.LetGo();
}

void Toelichting::Fill_Controls() {
  tracing_.Unhandled("Fill_Controls", [this] {
    host::VrijeKolomItem& item = host::Need(Item_);
    // Three flags exclude, the last one includes.
    controls_[jnLangleven].SetValue(item.UitsluitenLangleven() ? host::kNee : host::kJa);
    controls_[jnAO].SetValue(item.UitsluitenAO() ? host::kNee : host::kJa);
    controls_[jnWW].SetValue(item.UitsluitenWW() ? host::kNee : host::kJa);
    controls_[jnOverlijden].SetValue(item.ScenarioOverlijden() ? host::kJa : host::kNee);

    controls_[TxtPcOvergang].SetEnabled(OverlijdenJa());
    controls_[TxtPcOvergang].SetNumber(static_cast<double>(item.PercentageOvergang()));
    controls_[txtEinddatum].SetEnabled(OverlijdenJa());
    // The zero date, like every date before 1900, counts as no date.
    const bool geenDatum = frame::Split(item.EinddatumOvergang()).year < 1900;
    controls_[txtEinddatum].SetDate(geenDatum ? host::kNoDate : item.EinddatumOvergang());
    controls_[lblSlash].SetEnabled(OverlijdenJa());
    controls_[TxtEindjaar].SetEnabled(OverlijdenJa());
    controls_[TxtEindjaar].SetNumber(item.EindleeftijdOvergang());
  });
}

}  // namespace brivane
