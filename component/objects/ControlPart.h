#pragma once

#include <functional>

#include "component/control/OleControl.h"
#include "component/control/SurfaceSubject.h"
#include "component/objects/PropertyChanges.h"

namespace brivane::component {

/// What the control's part in a container needs of the class around it.
struct ControlClass {
  IUnknown& outer;
  const CLSID& id;
  const wchar_t* name;  ///< as a person reads it
  std::function<host::Color()> backColor;
  std::function<void(host::Color)> setBackColor;
  std::function<void()> letGo;  ///< of everything of the host's
};

/// The part of a class by which it stands in containers, with the listeners to its properties.
class ControlPart final : private SurfaceSubject {
 public:
  ControlPart(ControlClass around, win32::Toolkit& toolkit, host::Surface& surface)
      : SurfaceSubject(toolkit, surface), around_(std::move(around)), changes_(around_.outer) {
    toolkit.Desktop().modal = [this](bool up) { control_.Modal(up); };
  }

  [[nodiscard]] OleControl& Control() { return control_; }
  [[nodiscard]] ConnectionPoint& PropertyListeners() { return changes_.Point(); }

 private:
  IUnknown& Outer() override { return around_.outer; }
  const CLSID& ClassId() const override { return around_.id; }
  const wchar_t* UserType() const override { return around_.name; }
  host::Color BackColor() const override { return around_.backColor(); }
  void SetBackColor(host::Color color) override { around_.setBackColor(color); }
  void LetGo() override { around_.letGo(); }

  bool MayChange(DISPID property) override { return changes_.MayChange(property); }
  void HasChanged(DISPID property) override { changes_.HasChanged(property); }

  ControlClass around_;
  PropertyChanges changes_;
  OleControl control_{*this};
};

}  // namespace brivane::component
