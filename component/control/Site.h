#pragma once

#include "component/idl/Windows.h"

#include <optional>

#include "component/automation/Variant.h"
#include <brivane/host/Color.h>

namespace brivane::component {

/// The place in the container where the control stands, and what the container tells of its own look.
class Site {
 public:
  void Set(IOleClientSite* client) { client_ = ComPtr<IOleClientSite>(client); }
  [[nodiscard]] const ComPtr<IOleClientSite>& Client() const { return client_; }
  [[nodiscard]] ComPtr<IOleInPlaceSite> InPlace() const { return client_.As<IOleInPlaceSite>(); }
  [[nodiscard]] ComPtr<IOleControlSite> Control() const { return client_.As<IOleControlSite>(); }

  /// Nothing where the container does not tell.
  [[nodiscard]] std::optional<host::Color> AmbientBackColor() const;
  /// Size of the container's font in points.
  [[nodiscard]] std::optional<float> AmbientFontSize() const;
  /// False while a form is being designed. A container that does not tell is in use.
  [[nodiscard]] bool AmbientUserMode() const;

 private:
  [[nodiscard]] bool Ambient(DISPID property, Variant& value) const;

  ComPtr<IOleClientSite> client_;
};

}  // namespace brivane::component
