#pragma once

#include <string>

namespace brivane::frame {

/// A number as "#,##0": no decimals, halves away from zero, groups of three digits.
[[nodiscard]] std::string FormatGrouped(double number, const std::string& separator);

}  // namespace brivane::frame
