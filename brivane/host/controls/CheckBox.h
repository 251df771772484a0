#pragma once

#include <brivane/host/controls/Control.h>

namespace brivane::host {

/// The two values of a check box.
/// @{
inline constexpr int kUnticked = 0;  ///< as designed
inline constexpr int kTicked = 1;
/// @}

/// A box to tick, with its caption. There is no third state.
class CheckBox : public Captioned {
 public:
  /// kUnticked or kTicked. Writing another value than it has raises Click, before the setter returns.
  [[nodiscard]] virtual int Value() const = 0;
  virtual void SetValue(int value) = 0;

  /// The value changed, by a person or by code.
  Event<> Click;
};

}  // namespace brivane::host
