#pragma once

#include <vector>

#include <brivane/controls/Dump.h>
#include <brivane/toolkits/win32/Toolkit.h>

namespace brivane::win32 {

/// The state of every control on a surface as the windows really show it, in the words of the shared dump.
/// Kinds come from the classes and styles of the windows; numbers and dates are read back from the texts; a
/// place that is the same to the pixel is given in the twips that were asked for.
[[nodiscard]] std::vector<controls::ControlDump> DumpShown(const controls::Surface& surface, const Toolkit& toolkit);

}  // namespace brivane::win32
