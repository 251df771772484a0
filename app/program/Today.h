#pragma once

#include "host/Date.h"

namespace brivane::dossier {

/// Today's date on this machine.
[[nodiscard]] host::Date Vandaag();

}  // namespace brivane::dossier
