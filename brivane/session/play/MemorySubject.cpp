#include <utility>

#include <brivane/session/play/GroupSeparator.h>
#include <brivane/session/play/MemorySubject.h>
#include <brivane/session/play/OnSurface.h>
#include <brivane/toolkits/memory/Toolkit.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane::session {

namespace {

class MemorySubject final : public OnSurface<Subject> {
 public:
  MemorySubject(const Document& document, InstrumentedHost& host, Audience& audience)
      : host_(host), audience_(audience) {
    Equip(document);
    surface_ = toolkit_.MakeSurface(vrijekolom::kOntwerp);
    editor_ = std::make_unique<VrijeKolom>(*surface_, toolkit_, host_.Factories());
    Listen();
  }

  void SetApplication(std::int16_t Len_Id, std::int16_t Vrij_Id) override {
    editor_->SetApplication(host_.Application(), Len_Id, Vrij_Id);
  }
  bool Validation(Target target, bool cancel, std::int32_t ControleNr) override {
    if (target == Target::Editor)
      editor_->Validation(cancel, ControleNr);
    else
      editor_->Toelichting().Validation(cancel, ControleNr);
    return cancel;
  }
  void SetBackColor(host::Color color) override { editor_->SetBackColor(color); }
  void SetBeeindigenZichtbaar(bool visible) override { editor_->SetBeeindigenZichtbaar(visible); }
  void Size(Target target, float width, float height) override {
    controls::Surface* surface = &Surface();
    if (target == Target::Toelichting) surface = static_cast<controls::Surface*>(surface->Find("Toelichting"));
    surface->Size({width}, {height});
  }
  void ShowScenario(const ScenarioStep& step, const std::shared_ptr<host::BedragObject>& bedrag) override {
    frmScenario form(toolkit_);
    form.SetSoortScenario(step.SoortScenario);
    for (const std::int16_t year : step.DisableJaar) form.SetDisableJaar(year, true);
    form.Invoeren(bedrag, step.AantalJaar, step.Labeltype, step.Anv_Leeftijd, step.LooptijdExtra, step.In_RenteKorting,
                  step.Bd_MaxOpname);
    opening_ = &form;
    form.ShowModal(nullptr);
  }

  [[nodiscard]] std::shared_ptr<host::VrijeKolomItem> Item() override { return editor_->Item(); }
  [[nodiscard]] bool Filling() override { return editor_->Filling(); }
  [[nodiscard]] bool Gewijzigd() override { return editor_->Gewijzigd(); }
  [[nodiscard]] VrijeKolom* Editor() override { return editor_.get(); }

 protected:
  [[nodiscard]] controls::Surface& Surface() override { return controls::Surface::Of(*surface_); }

 private:
  void Equip(const Document& document) {
    memory::Desktop& desktop = toolkit_.Desktop();
    desktop.today = document.today;
    desktop.title = document.title;
    desktop.twipsPerPixelX = document.twipsPerPixelX;
    desktop.twipsPerPixelY = document.twipsPerPixelY;
    desktop.groupSeparator = GroupSeparator(document.locale);
    desktop.answer = [this](const std::string& title, const std::string& text, host::MessageStyle style) {
      return audience_.OnMessage(title, text, style);
    };
    desktop.pending = [this] { audience_.OnPending(); };
    toolkit_.focusMoved = [this](controls::AnyControl& control) { audience_.OnFocus(control.ElementName()); };
    toolkit_.modal = [this](controls::Form& window) { RunModal(window); };
  }

  void Listen() {
    subscriptions_ +=
        editor_->RefreshTopDisplay.Connect([this](const std::string& text) { audience_.OnRefreshTopDisplay(text); });
    subscriptions_ += editor_->HeightChanged.Connect([this] { audience_.OnHeightChanged(); });
    subscriptions_ += editor_->ScenarioGeopend.Connect([this](frmScenario& form) { opening_ = &form; });
    subscriptions_ += editor_->Toelichting().Changed.Connect([this] { audience_.OnToelichtingChanged(); });
  }

  void RunModal(controls::Form& window) {
    SurfaceForm form(window, *std::exchange(opening_, nullptr));
    const host::Subscription closed = window.host::Form::Unloaded.Connect([this] { audience_.OnClosed(); });
    audience_.OnShown(form);
    form.Close();
  }

  InstrumentedHost& host_;
  Audience& audience_;
  memory::Toolkit toolkit_;
  std::unique_ptr<host::Surface> surface_;
  std::unique_ptr<VrijeKolom> editor_;
  frmScenario* opening_ = nullptr;  ///< the form that is about to be shown
  host::Subscriptions subscriptions_;
};

}  // namespace

std::unique_ptr<Subject> MakeMemorySubject(const Document& document, InstrumentedHost& host, Audience& audience) {
  return std::make_unique<MemorySubject>(document, host, audience);
}

}  // namespace brivane::session
