#pragma once

#include <brivane/host/controls/Control.h>

namespace brivane::host {

/// A push button.
class Button : public Captioned {
 public:
  /// A person pressed the button, with the mouse, a key or its mnemonic; code has no way to.
  Event<> Click;
};

}  // namespace brivane::host
