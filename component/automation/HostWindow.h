#pragma once

#include "component/idl/Windows.h"

#include <memory>

#include <brivane/host/model/Hoofdvenster.h>

namespace brivane::component {

/// The owner of a modal form as a host names it: a window handle as a number, an object that is a window
/// (IOleWindow), or an object with a property `hWnd`. Nothing for Nothing, an argument left out, and an object that
/// tells no window.
[[nodiscard]] std::shared_ptr<host::Hoofdvenster> WindowNamedBy(const VARIANT& eigenaar);
/// The window handle that such a value names, or null.
[[nodiscard]] HWND HandleNamedBy(const VARIANT& eigenaar);

}  // namespace brivane::component
