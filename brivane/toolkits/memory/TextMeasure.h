#pragma once

#include <string_view>

#include <brivane/host/Twips.h>

namespace brivane::memory {

/// Width of a UTF-8 text in Arial at a size in points, by average widths: the same on every machine.
[[nodiscard]] host::Twips TextWidth(std::string_view text, float points, bool bold);

}  // namespace brivane::memory
