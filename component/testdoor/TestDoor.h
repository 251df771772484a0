#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "component/testdoor/Hooks.h"
#include "component/testdoor/Interfaces.h"
#include <brivane/controls/Surface.h>
#include <brivane/host/Error.h>

namespace brivane::component {

/// Tells a door what an object knows of itself beside its controls. Nothing for another name.
using DoorAspects = std::function<std::optional<Variant>(std::string_view aspect)>;

/// A door to the surface of an object, counted. It keeps the object alive.
[[nodiscard]] ITestDoor* NewTestDoor(IUnknown& object, controls::Surface& surface, Hooks& hooks, DoorAspects aspects);

/// A door to an open form, lent for the time of one call. What is kept of it longer fails with error 91.
class LentDoor {
 public:
  LentDoor(controls::Surface& surface, Hooks& hooks, DoorAspects aspects);
  LentDoor(const LentDoor&) = delete;
  LentDoor& operator=(const LentDoor&) = delete;
  ~LentDoor();

  [[nodiscard]] IDispatch* Object() const;

 private:
  class Impl;
  friend ITestDoor* NewTestDoor(IUnknown&, controls::Surface&, Hooks&, DoorAspects);

  Impl* door_;
};

/// An adapter's object of the host as it came; an object that is nothing for none.
template <class A, class Interface> [[nodiscard]] Variant HandedBack(const std::shared_ptr<Interface>& adapter) {
  const auto* const known = dynamic_cast<const A*>(adapter.get());
  return Variant(known ? known->Object() : nullptr);
}

/// Error 5 for a name that a door does not know.
[[nodiscard]] host::Error NoSuch(std::string_view what, std::string_view name);

}  // namespace brivane::component
