#pragma once

#include <string_view>

namespace brivane::replay {

/// The page that `--help` prints.
[[nodiscard]] std::string_view HelpText();

}  // namespace brivane::replay
