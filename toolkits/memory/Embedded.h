#pragma once

#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

#include "controls/life/HeldHost.h"
#include "frame/Design.h"
#include "toolkits/memory/Toolkit.h"

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
template <class Control> class Embedded {
 public:
  /// `prepare` sets the toolkit up before anything is made of the design.
  Embedded(const frame::Design& design, const host::HostFactories& factories,
           const std::function<void(memory::Toolkit&)>& prepare = {})
      : body_(std::make_shared<Body>()) {
    if (prepare) prepare(body_->toolkit);
    body_->surface = body_->toolkit.MakeSurface(design);
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

  [[nodiscard]] memory::Toolkit& Toolkit() { return body_->toolkit; }
  [[nodiscard]] controls::Surface& Surface() { return controls::Surface::Of(*body_->surface); }
  /// The control itself, for its events and its state. What it does is asked of it here.
  [[nodiscard]] Control& Get() { return *body_->control; }

  /// Binds the control; as its own SetApplication.
  template <class... Which> void SetApplication(const std::shared_ptr<host::Application>& application, Which... which) {
    Run([&](Body& body) {
      body.control->SetApplication(body.host.Hold(application), which...);
      body.host.Rest();
    });
  }
  void SetApplication(const std::shared_ptr<host::Application>& application,
                      const std::shared_ptr<host::Lening>& lening, std::int16_t Vrij_Id) {
    Run([&](Body& body) {
      std::shared_ptr<host::Application> heldApplication = body.host.Hold(application);
      std::shared_ptr<host::Lening> heldLening = body.host.Hold(lening);
      body.control->SetApplication(heldApplication, heldLening, Vrij_Id);
      heldApplication.reset();
      body.host.Rest();
    });
  }
  /// As its own Validation; Cancel stays as it is where the host deletes the control meanwhile.
  void Validation(bool& Cancel, std::int32_t ControleNr = 0) {
    bool cancel = Cancel;
    if (Run([&](Body& body) { body.control->Validation(cancel, ControleNr); })) Cancel = cancel;
  }

 private:
  struct Body {
    memory::Toolkit toolkit;
    controls::HeldHost host{toolkit.Life()};
    std::unique_ptr<host::Surface> surface;
    std::unique_ptr<Control> control;
  };

  template <class Work> bool Run(const Work& work) {
    Body& body = *body_;
    return controls::Life::Run(body.toolkit.Life(), [&] { work(body); });
  }

  std::shared_ptr<Body> body_;
};

}  // namespace brivane::memory
