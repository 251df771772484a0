#include <cmath>
#include <cstddef>
#include <cstdio>

#include <brivane/frame/GroupedNumber.h>

namespace brivane::frame {

std::string FormatGrouped(double number, const std::string& separator) {
  const double rounded = std::round(number);
  if (!std::isfinite(rounded)) return std::isnan(rounded) ? "NaN" : rounded < 0 ? "-Inf" : "Inf";
  std::string digits(static_cast<std::size_t>(std::snprintf(nullptr, 0, "%.0f", std::abs(rounded))), '0');
  std::snprintf(digits.data(), digits.size() + 1, "%.0f", std::abs(rounded));
  std::string text = rounded < 0 ? "-" : "";
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) text += separator;
    text += digits[i];
  }
  return text;
}

}  // namespace brivane::frame
