#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include <brivane/frame/Reading.h>

/// Numbers as a Dutch reader writes them: a point between thousands, a comma before the decimals.
///
/// A point is only ever a thousands separator, so "1.500" is fifteen hundred. Where it does not stand
/// before three digits the text could be meant in two ways; it is refused and both are named.
namespace brivane::frame {

/// Euros with at most two decimals: "1.234,56", "1234,5", "€ 12,-", "12,50 €"; "€ -" is none.
[[nodiscard]] Reading<double> ReadAmount(std::string_view text);
/// A number with at most four decimals.
[[nodiscard]] Reading<double> ReadNumber(std::string_view text);
/// A whole number of 32 bits.
[[nodiscard]] Reading<std::int32_t> ReadWhole(std::string_view text);

/// "1.234,56"; halves are rounded away from zero.
[[nodiscard]] std::string ShowAmount(double amount);
/// At most four decimals, none that are zeros at the end: "1.234,5".
[[nodiscard]] std::string ShowNumber(double number);
/// "1.500" is shown "1500": whole numbers here are years, months and ages.
[[nodiscard]] std::string ShowWhole(std::int32_t number);

}  // namespace brivane::frame
