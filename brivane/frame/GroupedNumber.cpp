#include <cmath>
#include <cstddef>

#include <brivane/frame/Doubles.h>
#include <brivane/frame/GroupedNumber.h>

namespace brivane::frame {

std::string FormatGrouped(double number, const std::string& separator) {
  const double rounded = std::round(number);
  if (!std::isfinite(rounded)) return std::isnan(rounded) ? "NaN" : rounded < 0 ? "-Inf" : "Inf";
  const std::string digits = ShortestDigits(std::abs(rounded));
  std::string text = rounded < 0 ? "-" : "";
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) text += separator;
    text += digits[i];
  }
  return text;
}

}  // namespace brivane::frame
