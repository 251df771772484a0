#pragma once

#include <string>

namespace brivane::frame {

/// The separator that a locale such as "nl_NL" or "en_US" puts between groups of digits.
[[nodiscard]] std::string GroupSeparator(const std::string& locale);

/// A number as "#,##0": no decimals, halves away from zero, groups of three digits.
[[nodiscard]] std::string FormatGrouped(double number, const std::string& separator);

}  // namespace brivane::frame
