#pragma once

#include <string>

namespace brivane::frame {

/// A whole number from 0 on in at least so many digits: "007".
[[nodiscard]] inline std::string Padded(int number, std::size_t digits) {
  const std::string text = std::to_string(number);
  return text.size() < digits ? std::string(digits - text.size(), '0') + text : text;
}

}  // namespace brivane::frame
