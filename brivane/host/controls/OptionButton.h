#pragma once

#include <brivane/host/controls/Control.h>

namespace brivane::host {

/// One option of a group; the elements of one control array are a group.
class OptionButton : public Captioned {
 public:
  /// Whether it is the selected one of its group; of a group as designed none is.
  [[nodiscard]] virtual bool Value() const = 0;
  /// Selecting deselects the others of the group, without an event for them, and raises Click where it was not
  /// selected.
  virtual void SetValue(bool selected) = 0;

  /// The option became the selected one, by a person or by code.
  Event<> Click;
};

}  // namespace brivane::host
