#pragma once

#include "examples/windows/container/Object.h"

/// A host's model in memory, as the editor wants to find it: one client with one loan and one free column.
///
/// Put your own case behind the same members. What an adviser accepts in the editor is written into these objects at
/// once.
namespace example {

/// `venster` is the main window, over which the editor opens its year-by-year form.
[[nodiscard]] automation::ComPtr<IDispatch> NewApplication(HWND venster);

}  // namespace example
