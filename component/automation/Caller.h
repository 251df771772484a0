#pragma once

#include "component/automation/ComPtr.h"

namespace brivane::component {

/// Who calls, as an object of a script is told with each call. It says that a failure of the script comes back to the
/// caller: without it a script's engine would report the failure to its site as one that nobody sees to, and answer
/// that it did, in place of its number.
[[nodiscard]] ComPtr<IServiceProvider> NewCaller();

}  // namespace brivane::component
