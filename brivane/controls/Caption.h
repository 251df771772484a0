#pragma once

#include <algorithm>
#include <string>

#include <brivane/frame/Design.h>

namespace brivane::controls {

/// The caption of a control with an "&" before its mnemonic, and "&&" for an "&" that code put there.
[[nodiscard]] inline std::string MarkedCaption(const frame::Row& row, const std::string& caption) {
  std::string marked;
  const bool designed = caption == row.caption;
  if (designed && caption.find('&') != std::string::npos) return caption;
  for (const char c : caption) marked += c == '&' ? std::string("&&") : std::string(1, c);
  if (row.mnemonic == '\0') return marked;
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
  const auto place =
      std::find_if(marked.begin(), marked.end(), [&](char c) { return lower(c) == lower(row.mnemonic); });
  if (place != marked.end()) marked.insert(place, '&');
  return marked;
}

}  // namespace brivane::controls
