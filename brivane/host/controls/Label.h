#pragma once

#include <brivane/host/controls/Control.h>

namespace brivane::host {

/// A text beside the control that it belongs to. It takes no focus; its mnemonic goes to the control in the row below
/// it.
class Label : public Captioned {};

}  // namespace brivane::host
