#include <array>
#include <charconv>
#include <cstdio>
#include <cstdlib>
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
#elif defined(__EMSCRIPTEN__)
  // There the numbers of C know no locale, and streams are large.
  return std::strtod(std::string(digits).c_str(), nullptr);
#else
  return NearestDoubleByStream(digits);
#endif
}

std::string ShortestDigits(double number) {
#ifdef __cpp_lib_to_chars
  std::array<char, 400> digits{};
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed);
  return {digits.data(), written.ptr};
#else
  return ShortestDigitsByTrial(number);
#endif
}

std::string ShortestDigitsByTrial(double number) {
  constexpr double kWholeFrom = 9007199254740992.0;  // 2^53: from here on every number is whole, and written out
  constexpr int kAlwaysEnough = std::numeric_limits<double>::max_digits10 - 1;
  std::array<char, 400> tried{};
  if (number >= kWholeFrom) {
    std::snprintf(tried.data(), tried.size(), "%.0f", number);
    return tried.data();
  }
  // "1.2345e+03", with one digit more until it reads back. A locale of C may write another sign than the point.
  for (int decimals = 0; decimals <= kAlwaysEnough; ++decimals) {
    std::snprintf(tried.data(), tried.size(), "%.*e", decimals, number);
    if (std::strtod(tried.data(), nullptr) == number) break;
  }
  const std::string text = tried.data();
  const std::size_t sign = text.find('e');
  std::string digits;
  for (const char c : text.substr(0, sign))
    if (c >= '0' && c <= '9') digits += c;
  const int whole = std::atoi(text.c_str() + sign + 1) + 1;
  if (whole <= 0) return "0." + std::string(static_cast<std::size_t>(-whole), '0') + digits;
  const auto point = static_cast<std::size_t>(whole);
  if (point >= digits.size()) return digits + std::string(point - digits.size(), '0');
  return digits.insert(point, ".");
}

}  // namespace brivane::frame
