#pragma once

#include <brivane/host/controls/Control.h>

namespace brivane::host {

/// The two values of a check box.
inline constexpr int kUnticked = 0;
inline constexpr int kTicked = 1;

class CheckBox : public Captioned {
 public:
  /// kUnticked or kTicked.
  [[nodiscard]] virtual int Value() const = 0;
  virtual void SetValue(int value) = 0;

  /// The value changed, by a person or by code.
  Event<> Click;
};

}  // namespace brivane::host
