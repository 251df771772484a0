#pragma once

#include <olectl.h>

#include "component/objects/ConnectionPoint.h"

namespace brivane::component {

/// Those who listen to changes of an object's properties: asked before one that they may refuse, and told after each.
/// A part of the object, with its count of references.
class PropertyChanges {
 public:
  /// `owner` is the object as its users know it.
  explicit PropertyChanges(IUnknown& owner) : point_(owner, IID_IPropertyNotifySink, Calls::ByMethod) {}

  [[nodiscard]] ConnectionPoint& Point() { return point_; }

  /// Whether all agree.
  [[nodiscard]] bool MayChange(DISPID property) const {
    for (const auto& listener : point_.Listeners<IPropertyNotifySink>())
      if (listener->OnRequestEdit(property) == S_FALSE) return false;
    return true;
  }
  void HasChanged(DISPID property) const {
    for (const auto& listener : point_.Listeners<IPropertyNotifySink>()) listener->OnChanged(property);
  }

 private:
  ConnectionPoint point_;
};

}  // namespace brivane::component
