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

std::string GroupSeparator(const std::string& locale) {
  const std::string language = locale.substr(0, locale.find_first_of("_-."));
  if (language == "en" || language == "zh" || language == "ja" || language == "ko" || language == "he") return ",";
  if (locale.starts_with("de_CH") || locale.starts_with("fr_CH") || locale.starts_with("it_CH")) return "\u2019";
  if (language == "fr") return "\u202F";
  if (language == "sv" || language == "nb" || language == "fi" || language == "pl" || language == "cs") return "\u00A0";
  if (language.empty() || language == "C" || language == "POSIX") return "";
  return ".";
}

}  // namespace brivane::frame
