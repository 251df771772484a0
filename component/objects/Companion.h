#pragma once

#include <memory>
#include <string_view>

#include "component/automation/HostSession.h"
#include "component/automation/Toolkit.h"
#include <brivane/controls/Surface.h>

namespace brivane {
class frmScenario;
class VrijeKolom;
}  // namespace brivane

namespace brivane::component {

/// An object of the library as its companion knows it. While the object is being made it has its toolkit and its
/// session alone.
class Accompanied {
 public:
  [[nodiscard]] virtual component::Toolkit& TheToolkit() = 0;
  [[nodiscard]] virtual HostSession& Session() = 0;
  /// The object as its users know it.
  [[nodiscard]] virtual IUnknown& Object() = 0;
  /// What it shows.
  [[nodiscard]] virtual controls::Surface& Shown() = 0;
  /// The editor that the object is; nothing where it is another.
  [[nodiscard]] virtual brivane::VrijeKolom* Editor() { return nullptr; }

 protected:
  ~Accompanied() = default;
};

/// Goes with an object from before its controls are made until they are gone. This one leaves everything as it is.
class Companion {
 public:
  virtual ~Companion() = default;

  /// An interface that the object has not itself, not counted and with the object's identity; or nothing.
  [[nodiscard]] virtual IUnknown* Find(REFIID) { return nullptr; }
  /// The host's object for that control ("VrijeKolom", "Toelichting") in place of one of its class; or nothing.
  [[nodiscard]] virtual ComPtr<IDispatch> TraceFor(std::string_view) { return {}; }
  [[nodiscard]] virtual ComPtr<IDispatch> CheckFor(std::string_view) { return {}; }
  /// Whether the object is used past what keeps a person from a control that stands for nothing.
  [[nodiscard]] virtual bool ActsBehindTheVeil() const { return false; }
  /// The form that is shown next.
  virtual void Opening(const brivane::frmScenario&) {}
};

/// Gives every object its companion. The library that hosts register leaves it at this; one that is made of the same
/// objects for another purpose uses its own.
class Companions {
 public:
  virtual ~Companions() = default;

  [[nodiscard]] virtual std::unique_ptr<Companion> Of(Accompanied&) { return std::make_unique<Companion>(); }
  /// An interface that a class object has not itself, counted; E_NOINTERFACE where there is none.
  [[nodiscard]] virtual HRESULT Query(IUnknown& /*classObject*/, REFIID, void** out) {
    *out = nullptr;
    return E_NOINTERFACE;
  }

  [[nodiscard]] static Companions& Used();
  /// Once, when the library is loaded; they must outlive every object.
  static void Use(Companions& companions);
};

}  // namespace brivane::component
