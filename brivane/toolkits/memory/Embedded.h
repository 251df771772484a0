#pragma once

#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

#include <brivane/controls/Binding.h>
#include <brivane/controls/life/HeldHost.h>
#include <brivane/frame/Design.h>
#include <brivane/toolkits/memory/Toolkit.h>

namespace brivane::memory {

/// A control in memory with the toolkit and the surface that it stands on, as one thing, which its host may delete at
/// any moment: also while the control asks something, has its form open, or calls the host. What was going on is then
/// abandoned, and nothing of the host is touched any more when the deletion comes back.
///
/// A host that keeps toolkit, surface and control in pieces deletes none of them from inside a call on the control.
///
///     auto editor = std::make_unique<memory::Embedded<VrijeKolom>>(vrijekolom::kOntwerp, factories);
///     editor->SetApplication(application, 0, 1);
///     editor->Surface().Find("TxtOm")->Perform(controls::Enter{"Krant"});
///
/// What holds for all of it: \ref threads, \ref ownership, \ref events, \ref failures.
template <class Control> class Embedded {
 public:
  /// `prepare` sets the toolkit up before anything is made of the design.
  Embedded(const frame::Design& design, const host::HostFactories& factories,
           const std::function<void(memory::Toolkit&)>& prepare = {})
      : body_(std::make_shared<Body>()) {
    if (prepare) prepare(body_->toolkit);
    body_->surface = body_->toolkit.MakeSurface(design);
    body_->binding = std::make_unique<controls::Binding>(*body_->surface);
    if constexpr (std::is_constructible_v<Control, host::Surface&, frame::Toolkit&, const host::HostFactories&>)
      body_->control = std::make_unique<Control>(*body_->surface, body_->toolkit, body_->host.Hold(factories));
    else
      body_->control =
          std::make_unique<Control>(*body_->surface, body_->toolkit.Desktop(), body_->host.Hold(factories));
  }
  Embedded(const Embedded&) = delete;
  Embedded& operator=(const Embedded&) = delete;
  ~Embedded() {
    const std::shared_ptr<controls::Life> life = body_->toolkit.Life();
    life->End(std::move(body_));
  }

  /// What it runs on, for as long as it lives: the machine is set there.
  [[nodiscard]] memory::Toolkit& Toolkit() { return body_->toolkit; }
  /// Where a person acts: its controls by name.
  [[nodiscard]] controls::Surface& Surface() { return controls::Surface::Of(*body_->surface); }
  /// The control itself, for its events and its state. What it does is asked of it here.
  [[nodiscard]] Control& Get() { return *body_->control; }

  /// These bind the control, as its own SetApplication does, and say what became of it. A control that could not be
  /// bound takes no actions until it is. Without an application it also lets go of the host, as Unbind does. The first
  /// is the editor's, the second the explanation control's.
  /// @{
  controls::BindingResult SetApplication(const std::shared_ptr<host::Application>& application, std::int16_t Len_Id,
                                         std::int16_t Vrij_Id) {
    return Bind([&](Body& body) { body.control->SetApplication(body.host.Hold(application), Len_Id, Vrij_Id); },
                application == nullptr);
  }
  controls::BindingResult SetApplication(const std::shared_ptr<host::Application>& application,
                                         const std::shared_ptr<host::Lening>& lening, std::int16_t Vrij_Id) {
    return Bind(
        [&](Body& body) {
          std::shared_ptr<host::Application> heldApplication = body.host.Hold(application);
          std::shared_ptr<host::Lening> heldLening = body.host.Hold(lening);
          body.control->SetApplication(heldApplication, heldLening, Vrij_Id);
        },
        application == nullptr);
  }
  /// @}
  /// What the control stands for.
  [[nodiscard]] controls::BindingState State() const { return body_->binding->State(); }
  /// Lets go of every object of the host's.
  void Unbind() {
    Run([](Body& body) { LetGo(body); });
  }
  /// As its own Validation; Cancel stays as it is where the host deletes the control meanwhile. A control that stands
  /// for nothing has nothing to check.
  void Validation(bool& Cancel, std::int32_t ControleNr = 0) {
    bool cancel = Cancel;
    const auto check = [&](Body& body) {
      if (!body.binding->IsVoid()) body.control->Validation(cancel, ControleNr);
    };
    if (Run(check)) Cancel = cancel;
  }

 private:
  struct Body {
    memory::Toolkit toolkit;
    controls::HeldHost host{toolkit.Life()};
    std::unique_ptr<host::Surface> surface;
    std::unique_ptr<controls::Binding> binding;
    std::unique_ptr<Control> control;
  };

  static void LetGo(Body& body) {
    body.binding->Unbind([&] { body.control->Unbind(); });
    body.toolkit.Life()->Check();
    body.host.LetGo();
  }

  template <class Work> controls::BindingResult Bind(const Work& work, bool release) {
    controls::BindingResult result = controls::BindingResult::Failed;
    const bool done = Run([&](Body& body) {
      result = body.binding->Bind([&] { work(body); });
      body.toolkit.Life()->Check();
      body.host.Rest();
      if (!release) return;
      LetGo(body);
      result = controls::BindingResult::Failed;
    });
    return done ? result : controls::BindingResult::Failed;
  }

  template <class Work> bool Run(const Work& work) {
    Body& body = *body_;
    return controls::Life::Run(body.toolkit.Life(), [&] { work(body); });
  }

  std::shared_ptr<Body> body_;
};

}  // namespace brivane::memory
