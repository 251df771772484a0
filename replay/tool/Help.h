#pragma once

#include <string>

namespace brivane::replay {

/// The page that `--help` prints.
[[nodiscard]] std::string HelpText();

}  // namespace brivane::replay
