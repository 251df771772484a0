#pragma once

#include "component/automation/Module.h"
#include <brivane/toolkits/win32/Toolkit.h>

namespace brivane::component {

/// The toolkit whose controls the library shows, and a window of the host as it knows it.
using Toolkit = win32::Toolkit;
using HostWindow = win32::Hoofdvenster;

[[nodiscard]] inline std::unique_ptr<Toolkit> MakeToolkit() { return std::make_unique<Toolkit>(module::Instance()); }

}  // namespace brivane::component
