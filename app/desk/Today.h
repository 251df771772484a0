#pragma once

#include <brivane/host/Date.h>

namespace brivane::app {

/// Today's date on this machine.
[[nodiscard]] host::Date Today();

}  // namespace brivane::app
