#pragma once

#include <brivane/host/Date.h>

namespace brivane::app {

/// Today's date on this machine.
[[nodiscard]] host::Date Today();

/// It is that day from now on: for what is to look alike on every day.
void PinToday(host::Date day);

}  // namespace brivane::app
