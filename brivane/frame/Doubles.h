#pragma once

#include <string>
#include <string_view>

/// Doubles as text for machines: plain digits with a point, whatever the locale of the process.
namespace brivane::frame {

/// The double that stands nearest to plain digits, "1234.5" (halfway: the even one); infinite where none is large
/// enough. The text has no sign and no exponent, and a digit at its front.
[[nodiscard]] double NearestDouble(std::string_view digits);

/// The same for a standard library that does not read doubles in this way.
[[nodiscard]] double NearestDoubleByHand(std::string_view digits);

/// The fewest digits that read back to the same number, without an exponent: "1234.5", "1000". The number is finite and
/// not negative.
[[nodiscard]] std::string ShortestDigits(double number);
/// The same for a standard library that does not write doubles in this way.
[[nodiscard]] std::string ShortestDigitsByHand(double number);

}  // namespace brivane::frame
