#include "app/program/WindowSubject.h"

#include <QPointer>
#include <QTimer>
#include <utility>

#include "replay/play/OnSurface.h"
#include <brivane/controls/life/HeldHost.h>

namespace brivane::app {
namespace {

/// A step that the window has no part for, or does not do.
[[noreturn]] void Refuse(const char* why) {
  throw host::Error(static_cast<int>(host::ErrorNumber::Foreign), why, "Dossier");
}

class WindowSubject final : public replay::OnSurface<replay::Subject> {
 public:
  WindowSubject(DossierScreen& screen, const replay::Document& document, replay::Audience& audience)
      : screen_(&screen), editor_(screen.Kolom().Editor()), audience_(audience) {
    qt::Desktop& machine = editor_.Toolkit().Desktop();
    if (!document.today.IsNone()) machine.clock = [today = document.today] { return today; };
    machine.answer = [this](const std::string& title, const std::string& text, host::MessageStyle style) {
      return audience_.OnMessage(title, text, style);
    };
    editor_.Toolkit().focusMoved = [this](controls::AnyControl& control) { audience_.OnFocus(control.ElementName()); };
    Listen();
  }
  ~WindowSubject() override {
    if (screen_ == nullptr) return;
    editor_.Toolkit().Desktop().clock = nullptr;
    editor_.Toolkit().Desktop().answer = nullptr;
    editor_.Toolkit().focusMoved = nullptr;
  }

  void SetApplication(std::int16_t Len_Id, std::int16_t Vrij_Id) override {
    if (!screen_->GoTo({Len_Id, Vrij_Id})) Refuse("The window does not show that column.");
  }
  bool Validation(replay::Target target, bool cancel, std::int32_t ControleNr) override {
    if (target == replay::Target::Editor && ControleNr == 0) return !screen_->MayLeave() || cancel;
    if (target == replay::Target::Editor)
      editor_.Validation(cancel, ControleNr);
    else
      editor_.Control()->Toelichting().Validation(cancel, ControleNr);
    return cancel;
  }
  void SetBackColor(host::Color color) override { editor_.Control()->SetBackColor(color); }
  void SetBeeindigenZichtbaar(bool visible) override { editor_.SetBeeindigenZichtbaar(visible); }
  void Size(replay::Target, float, float) override { Refuse("The window sizes its editor itself."); }
  void ShowScenario(const replay::ScenarioStep&, const std::shared_ptr<host::BedragObject>&) override {
    Refuse("The window shows a form from its editor alone.");
  }

  [[nodiscard]] std::shared_ptr<host::VrijeKolomItem> Item() override {
    return controls::HostsOwn(editor_.Control()->Item());
  }
  [[nodiscard]] bool Filling() override { return editor_.Control()->Filling(); }
  [[nodiscard]] bool Gewijzigd() override { return editor_.Control()->Gewijzigd(); }
  [[nodiscard]] VrijeKolom* Editor() override { return editor_.Control(); }

 protected:
  [[nodiscard]] controls::Surface& Surface() override { return controls::Surface::Of(editor_.Surface()); }

 private:
  void Listen() {
    QObject::connect(&editor_, &qt::VrijeKolomWidget::refreshTopDisplay, &context_,
                     [this](const QString& text) { audience_.OnRefreshTopDisplay(text.toStdString()); });
    QObject::connect(&editor_, &qt::VrijeKolomWidget::heightChanged, &context_,
                     [this] { audience_.OnHeightChanged(); });
    subscriptions_ += editor_.Control()->Toelichting().Changed.Connect([this] { audience_.OnToelichtingChanged(); });
    subscriptions_ += screen_->Scenario().Geopend.Connect([this](frmScenario& form) {
      // It runs an event loop of its own, in which this is done once it stands on the screen.
      QTimer::singleShot(0, &context_, [this, &form] { Work(form); });
    });
  }

  /// Does in an open form what the session has for it.
  void Work(frmScenario& form) {
    replay::SurfaceForm shown(dynamic_cast<controls::Form&>(form.Form()), form);
    const host::Subscription closed = form.Form().Unloaded.Connect([this] { audience_.OnClosed(); });
    audience_.OnShown(shown);
    shown.Close();
  }

  QPointer<DossierScreen> screen_;
  qt::VrijeKolomWidget& editor_;
  replay::Audience& audience_;
  QObject context_;  ///< what it hears ends with it
  host::Subscriptions subscriptions_;
};

}  // namespace

std::unique_ptr<replay::Subject> MakeWindowSubject(DossierScreen& screen, const replay::Document& document,
                                                   replay::Audience& audience) {
  return std::make_unique<WindowSubject>(screen, document, audience);
}

}  // namespace brivane::app
