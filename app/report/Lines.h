#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/report/Ruler.h"

namespace brivane::app::report {

/// Breaks a text into lines that are no wider than that: between words, and inside a word that is wider than a line.
/// Nothing but the blanks at a break is lost. An empty text has no lines. A line holds one character at least.
[[nodiscard]] std::vector<std::string> BreakLines(std::string_view text, double width, Letters letters,
                                                  const Ruler& ruler);

/// Width of the widest word.
[[nodiscard]] double WidestWord(std::string_view text, Letters letters, const Ruler& ruler);

}  // namespace brivane::app::report
