#include <brivane/session/play/GroupSeparator.h>

namespace brivane::session {

std::string GroupSeparator(const std::string& locale) {
  const std::string language = locale.substr(0, locale.find_first_of("_-."));
  if (language == "en" || language == "zh" || language == "ja" || language == "ko" || language == "he") return ",";
  if (locale.starts_with("de_CH") || locale.starts_with("fr_CH") || locale.starts_with("it_CH")) return "\u2019";
  if (language == "fr") return "\u202F";
  if (language == "sv" || language == "nb" || language == "fi" || language == "pl" || language == "cs") return "\u00A0";
  if (language.empty() || language == "C" || language == "POSIX") return "";
  return ".";
}

}  // namespace brivane::session
