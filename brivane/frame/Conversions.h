#pragma once

#include <cstdint>

/// Conversions of numbers: to whole numbers by rounding half to even, out of range is error 6.
namespace brivane::frame {

/// Rounds half to even. Fails with error 6 outside the 16-bit range and for what is not a number.
[[nodiscard]] std::int16_t ToInteger16(double number);
/// Rounds half to even. Fails with error 6 outside the 32-bit range and for what is not a number.
[[nodiscard]] std::int32_t ToInteger32(double number);
/// Single precision. Fails with error 6 where the number is too large for it.
[[nodiscard]] float ToSingle(double number);
/// The number itself. Fails with error 6 where a computation has left the range of a double.
[[nodiscard]] double Finite(double number);

}  // namespace brivane::frame
