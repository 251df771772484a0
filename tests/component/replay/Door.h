#pragma once

#include <optional>
#include <string>
#include <vector>

#include "replay/play/Subject.h"
#include "tests/component/replay/LateBound.h"

namespace brivane::latebound {

/// The test door of an object of the component, or of a class object: there, for the objects made from then on. Throws
/// host::Error where it has none.
[[nodiscard]] Ptr<IDispatch> DoorOf(IUnknown& object);

/// The controls behind a door.
class Door {
 public:
  explicit Door(Ptr<IDispatch> door) : door_(std::move(door)) {}

  /// Nothing where there is no such control.
  [[nodiscard]] std::optional<bool> Reachable(const std::string& element) const;
  [[nodiscard]] controls::Outcome Perform(const std::string& element, const controls::Action& action) const;
  [[nodiscard]] std::vector<controls::ControlDump> Dump() const;
  void Size(const std::string& element, float width, float height) const;

  /// An aspect of the surface itself.
  [[nodiscard]] Variant Read(const wchar_t* aspect) const;
  void Set(const wchar_t* setting, Variant value) const;
  void SetCallback(IDispatch& callback) const;
  void EndCallback() const;

 private:
  Ptr<IDispatch> door_;
};

}  // namespace brivane::latebound
