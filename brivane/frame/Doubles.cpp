#include <array>
#include <charconv>
#include <limits>
#include <system_error>

#include <brivane/frame/Doubles.h>

namespace brivane::frame {

double NearestDouble(std::string_view digits) {
#ifdef __cpp_lib_to_chars
  double value = 0;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  // Too large and too small to tell from zero are the same error; without an exponent only the first has a digit in
  // front.
  if (read.ec != std::errc::result_out_of_range) return value;
  return digits.substr(0, digits.find('.')).find_first_not_of('0') == std::string_view::npos
             ? 0
             : std::numeric_limits<double>::infinity();
#else
  return NearestDoubleByHand(digits);
#endif
}

std::string ShortestDigits(double number) {
#ifdef __cpp_lib_to_chars
  std::array<char, 400> digits{};
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed);
  return {digits.data(), written.ptr};
#else
  return ShortestDigitsByHand(number);
#endif
}

}  // namespace brivane::frame
