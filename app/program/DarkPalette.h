#pragma once

#include <QPalette>

namespace brivane::dossier {

/// A dark palette for pictures; a person's palette is the system's.
[[nodiscard]] QPalette DonkerPalet();

}  // namespace brivane::dossier
