#pragma once

#include <string_view>

namespace brivane::frame {

/// The text without blanks, tabs, line ends and no-break spaces around it.
[[nodiscard]] constexpr std::string_view Trim(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n";
  constexpr std::string_view kNoBreakSpace = "\u00A0";
  for (;;) {
    if (!text.empty() && kBlanks.find(text.front()) != std::string_view::npos)
      text.remove_prefix(1);
    else if (!text.empty() && kBlanks.find(text.back()) != std::string_view::npos)
      text.remove_suffix(1);
    else if (text.starts_with(kNoBreakSpace))
      text.remove_prefix(kNoBreakSpace.size());
    else if (text.ends_with(kNoBreakSpace))
      text.remove_suffix(kNoBreakSpace.size());
    else
      return text;
  }
}

}  // namespace brivane::frame
