#pragma once

#include <charconv>
#include <cmath>
#include <string>

#include <brivane/frame/Doubles.h>

namespace brivane::tests {

/// A number in the shortest form that reads back to the same double.
inline std::string Shortest(double number) {
#ifdef __cpp_lib_to_chars
  char text[32];
  return {text, std::to_chars(text, text + sizeof text, number).ptr};
#else
  // Without an exponent, which no number of the tests is long enough for.
  return (std::signbit(number) ? "-" : "") + frame::ShortestDigits(std::abs(number));
#endif
}

}  // namespace brivane::tests
