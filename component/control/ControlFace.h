#pragma once

#include "component/idl/Windows.h"

#include "component/control/Activation.h"
#include "component/control/Delegating.h"
#include "component/control/Properties.h"
#include <brivane/toolkits/win32/window/Owned.h>

namespace brivane::component {

/// What makes an object a control: the letters it answers to, what its container looks like, and times at which the
/// container wants no events.
class ControlFace final : public Delegating<IOleControl> {
 public:
  ControlFace(Subject& subject, Properties& properties, Activation& activation)
      : Delegating(subject), properties_(properties), activation_(activation) {}

  [[nodiscard]] bool EventsFrozen() const { return frozen_ > 0; }

  STDMETHODIMP GetControlInfo(CONTROLINFO* info) override;
  STDMETHODIMP OnMnemonic(MSG* message) override;
  STDMETHODIMP OnAmbientPropertyChange(DISPID property) override;
  STDMETHODIMP FreezeEvents(BOOL freeze) override;

 private:
  Properties& properties_;
  Activation& activation_;
  win32::Owned<HACCEL, &::DestroyAcceleratorTable> letters_;
  int frozen_ = 0;
};

}  // namespace brivane::component
