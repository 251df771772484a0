#pragma once

#include "component/automation/ComPtr.h"

namespace brivane::component {

/// The library's own tracer (IProcedureTrace): it keeps the error record for the host to read in ReportError, and does
/// nothing with entries and exits.
[[nodiscard]] ComPtr<IDispatch> MakeStandardTrace();

}  // namespace brivane::component
