#include "component/control/OleControl.h"

#include <olectl.h>

#include "component/automation/ComPtr.h"
#include "component/automation/Errors.h"

namespace brivane::component {

OleControl::OleControl(Subject& subject)
    : subject_(subject),
      properties_(subject, site_),
      activation_(subject, site_),
      view_(subject),
      object_(subject, site_, properties_, activation_, view_),
      inPlace_(subject, site_, activation_),
      face_(subject, properties_, activation_),
      stream_(subject, properties_),
      bag_(subject, properties_),
      storage_(subject, properties_) {}

IUnknown* OleControl::Find(REFIID iid) {
  if (iid == IID_IOleObject) return &object_;
  if (iid == IID_IOleWindow || iid == IID_IOleInPlaceObject) return static_cast<IOleInPlaceObject*>(&inPlace_);
  if (iid == IID_IOleInPlaceActiveObject) return static_cast<IOleInPlaceActiveObject*>(&inPlace_);
  if (iid == IID_IOleControl) return &face_;
  if (iid == IID_IViewObject || iid == IID_IViewObject2) return &view_;
  if (iid == IID_IPersist || iid == IID_IPersistStreamInit) return &stream_;
  if (iid == IID_IPersistPropertyBag) return &bag_;
  if (iid == IID_IPersistStorage) return &storage_;
  return nullptr;
}

void OleControl::PutBackColor(host::Color color) {
  const ComPtr<IUnknown> keep(&subject_.Outer());
  if (!subject_.MayChange(DISPID_BACKCOLOR)) throw SetNotPermitted();
  properties_.SetBackColor(color);
  view_.Changed();
}

void OleControl::SizeChanged() {
  const ComPtr<IUnknown> keep(&subject_.Outer());
  activation_.SizeChanged();
  view_.Changed();
}

}  // namespace brivane::component
