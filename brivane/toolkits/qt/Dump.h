#pragma once

#include <vector>

#include <brivane/controls/Dump.h>
#include <brivane/toolkits/qt/Toolkit.h>

namespace brivane::qt {

/// The state of every control on a surface as the widgets really show it, in the words of the
/// shared dump. Numbers and dates are read back from the texts; a place that is the same to the pixel is given
/// in the twips that were asked for.
[[nodiscard]] std::vector<controls::ControlDump> DumpShown(const controls::Surface& surface, const Toolkit& toolkit);

}  // namespace brivane::qt
