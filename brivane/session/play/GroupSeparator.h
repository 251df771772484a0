#pragma once

#include <string>

namespace brivane::session {

/// The separator that a locale such as "nl_NL" or "en_US" puts between groups of digits.
[[nodiscard]] std::string GroupSeparator(const std::string& locale);

}  // namespace brivane::session
