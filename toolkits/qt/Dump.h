#pragma once

#include <vector>

#include "toolkits/headless/Dump.h"
#include "toolkits/qt/Toolkit.h"

namespace brivane::qt {

/// The state of every control on a surface as the widgets really show it, in the words of the headless
/// dump. Numbers and dates are read back from the texts; a place that is the same to the pixel is given
/// in the twips that were asked for.
[[nodiscard]] std::vector<headless::ControlDump> DumpShown(const headless::Surface& surface, const Toolkit& toolkit);

}  // namespace brivane::qt
