#pragma once

#include <string_view>

namespace brivane::app::report {

/// The kinds of letters in a report.
enum class Letters { Title, Heading, Strong, Text, Note };

/// How much room letters take, in points (1/72 inch).
class Ruler {
 public:
  virtual ~Ruler() = default;
  /// Width of a text on one line.
  [[nodiscard]] virtual double Width(std::string_view text, Letters letters) const = 0;
  /// From one line to the next.
  [[nodiscard]] virtual double LineHeight(Letters letters) const = 0;
};

}  // namespace brivane::app::report
