#pragma once

#include <brivane/controls/Control.h>
#include <brivane/host/Export.h>

namespace brivane::controls {

/// Where a person comes in who goes to a frame by its mnemonic: the first control in it, in the tab order, that can be
/// reached; of a group of options the chosen one. Nothing where there is none.
[[nodiscard]] BRIVANE_API AnyControl* EntranceOf(const AnyControl& frame);

}  // namespace brivane::controls
