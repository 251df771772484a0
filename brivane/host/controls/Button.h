#pragma once

#include <brivane/host/controls/Control.h>

namespace brivane::host {

class Button : public Captioned {
 public:
  /// A person pressed the button.
  Event<> Click;
};

}  // namespace brivane::host
