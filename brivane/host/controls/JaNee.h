#pragma once

#include <brivane/host/controls/Control.h>

namespace brivane::host {

/// The two values of a yes/no toggle.
/// @{
inline constexpr int kNee = 1;
inline constexpr int kJa = 2;
/// @}

/// The host's yes/no toggle. A new one stands at "Nee".
class JaNee : public Control {
 public:
  /// kNee or kJa. Writing another value than it has raises Change, before the setter returns.
  [[nodiscard]] virtual int Value() const = 0;
  virtual void SetValue(int value) = 0;

  /// The value changed, by a person or by code.
  Event<> Change;
};

}  // namespace brivane::host
