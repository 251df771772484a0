#pragma once

#include "component/idl/Windows.h"

#include "component/control/Activation.h"
#include "component/control/Delegating.h"
#include "component/control/Site.h"

namespace brivane::component {

/// The control standing in its container's window: where it stands, and the keys that it gets first.
class InPlaceObject final : public Delegating<IOleInPlaceObject, IOleInPlaceActiveObject> {
 public:
  InPlaceObject(Subject& subject, Site& site, Activation& activation)
      : Delegating(subject), site_(site), activation_(activation) {}

  STDMETHODIMP GetWindow(HWND* window) override;
  STDMETHODIMP ContextSensitiveHelp(BOOL enter) override;

  STDMETHODIMP InPlaceDeactivate() override;
  STDMETHODIMP UIDeactivate() override;
  STDMETHODIMP SetObjectRects(LPCRECT place, LPCRECT clip) override;
  STDMETHODIMP ReactivateAndUndo() override;

  STDMETHODIMP TranslateAccelerator(MSG* message) override;
  STDMETHODIMP OnFrameWindowActivate(BOOL activate) override;
  STDMETHODIMP OnDocWindowActivate(BOOL activate) override;
  STDMETHODIMP ResizeBorder(LPCRECT border, IOleInPlaceUIWindow* window, BOOL frame) override;
  STDMETHODIMP EnableModeless(BOOL enable) override;

 private:
  Site& site_;
  Activation& activation_;
};

}  // namespace brivane::component
