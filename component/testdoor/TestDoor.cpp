#include "component/testdoor/TestDoor.h"

#include "component/automation/Text.h"
#include "component/testdoor/Actions.h"
#include "component/testdoor/State.h"

namespace brivane::component {

namespace {

/// While it exists, a surface that stands for nothing can be acted on all the same: what the controls do is tested
/// here, also after a binding that failed.
class Unveiled {
 public:
  explicit Unveiled(controls::Surface& surface) : surface_(surface), veiled_(surface.IsVeiled()) {
    if (veiled_) surface_.SetVeiled(false);
  }
  Unveiled(const Unveiled&) = delete;
  Unveiled& operator=(const Unveiled&) = delete;
  ~Unveiled() {
    if (veiled_) surface_.SetVeiled(true);
  }

 private:
  controls::Surface& surface_;
  bool veiled_;
};

}  // namespace

class LentDoor::Impl final : public DualObject<ITestDoor> {
 public:
  Impl(ComPtr<IUnknown> object, controls::Surface& surface, Hooks& hooks, DoorAspects aspects)
      : object_(std::move(object)), surface_(&surface), hooks_(&hooks), aspects_(std::move(aspects)) {}

  void TakeBack() { surface_ = nullptr; }

  STDMETHODIMP Perform(BSTR element, BSTR action, VARIANT value, SHORT* outcome) override {
    return OnSurface([&](controls::Surface& surface) {
      controls::AnyControl& control = Named(surface, FromBstr(element));
      const Unveiled unveiled(surface);
      *outcome = static_cast<SHORT>(control.Perform(ActionOf(FromBstr(action), value, control)));
    });
  }
  STDMETHODIMP Read(BSTR element, BSTR aspect, VARIANT* value) override {
    return OnSurface([&](controls::Surface& surface) {
      const std::string name = FromBstr(element);
      const std::string asked = FromBstr(aspect);
      if (name.empty()) {
        if (std::optional<Variant> own = aspects_(asked)) return own->MoveTo(value);
      }
      const Unveiled unveiled(surface);
      AspectOf(Named(surface, name), asked).MoveTo(value);
    });
  }
  STDMETHODIMP Dump(VARIANT* controls) override {
    return OnSurface([&](controls::Surface& surface) { DumpOf(surface).MoveTo(controls); });
  }
  STDMETHODIMP Resize(BSTR element, double width, double height) override {
    return OnSurface([&](controls::Surface& surface) {
      auto* const sized = dynamic_cast<controls::Surface*>(&Named(surface, FromBstr(element)));
      if (!sized) throw NoSuch("surface", FromBstr(element));
      sized->Size({static_cast<float>(width)}, {static_cast<float>(height)});
    });
  }
  STDMETHODIMP Set(BSTR setting, VARIANT value) override {
    return OnSurface([&](controls::Surface&) { hooks_->Set(FromBstr(setting), value); });
  }
  STDMETHODIMP put_Callback(IDispatch* object) override {
    return OnSurface([&](controls::Surface&) { hooks_->SetCallback(object); });
  }

 private:
  template <class Body> HRESULT OnSurface(Body&& body) {
    const ComPtr<ITestDoor> self(this);
    return Answering<ITestDoor>([&] { body(host::Need(surface_)); });
  }

  static controls::AnyControl& Named(controls::Surface& surface, const std::string& element) {
    controls::AnyControl* const control = element.empty() ? &surface : FindElement(surface, element);
    if (!control) throw host::Error(host::ErrorNumber::NoSuchElement);
    return *control;
  }

  ComPtr<IUnknown> object_;
  controls::Surface* surface_;
  Hooks* hooks_;
  DoorAspects aspects_;
};

ITestDoor* NewTestDoor(IUnknown& object, controls::Surface& surface, Hooks& hooks, DoorAspects aspects) {
  return new LentDoor::Impl(&object, surface, hooks, std::move(aspects));
}

LentDoor::LentDoor(controls::Surface& surface, Hooks& hooks, DoorAspects aspects)
    : door_(new Impl({}, surface, hooks, std::move(aspects))) {}

LentDoor::~LentDoor() {
  door_->TakeBack();
  door_->Release();
}

IDispatch* LentDoor::Object() const { return door_; }

host::Error NoSuch(std::string_view what, std::string_view name) {
  return {5, "No such " + std::string(what) + ": " + std::string(name), "BrivaneVrijeKolom"};
}

}  // namespace brivane::component
