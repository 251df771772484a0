#include "app/report/Lines.h"

#include <algorithm>

#include <brivane/frame/Graphemes.h>

namespace brivane::app::report {
namespace {

/// What a keyboard cannot type has no place on paper.
bool IsBlank(char c) { return c >= 0 && c <= ' '; }

std::vector<std::string_view> WordsOf(std::string_view text) {
  std::vector<std::string_view> words;
  std::size_t begin = 0;
  while (begin < text.size()) {
    if (IsBlank(text[begin])) {
      ++begin;
      continue;
    }
    std::size_t end = begin;
    while (end < text.size() && !IsBlank(text[end])) ++end;
    words.push_back(text.substr(begin, end - begin));
    begin = end;
  }
  return words;
}

/// Bytes of the first code point.
std::size_t FirstLength(std::string_view text) {
  std::size_t length = 1;
  while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U) ++length;
  return length;
}

/// The longest beginning of a word that fits, one character at least; never half of what a reader sees as one.
std::size_t Fitting(std::string_view word, double width, Letters letters, const Ruler& ruler) {
  std::size_t fits = FirstLength(word);
  while (fits < word.size()) {
    const std::size_t more = fits + FirstLength(word.substr(fits));
    if (ruler.Width(word.substr(0, more), letters) > width) {
      const std::size_t last = frame::LastGraphemeStart(word.substr(0, more));
      return last > 0 && last < fits ? last : fits;
    }
    fits = more;
  }
  return fits;
}

}  // namespace

std::vector<std::string> BreakLines(std::string_view text, double width, Letters letters, const Ruler& ruler) {
  const double blank = ruler.Width(" ", letters);
  std::vector<std::string> lines;
  double used = 0;
  for (std::string_view word : WordsOf(text)) {
    const double asks = ruler.Width(word, letters);
    if (!lines.empty() && used + blank + asks <= width) {
      lines.back().append(" ").append(word);
      used += blank + asks;
      continue;
    }
    if (asks > width) {
      for (std::size_t fits = 0; (fits = Fitting(word, width, letters, ruler)) < word.size(); word.remove_prefix(fits))
        lines.emplace_back(word.substr(0, fits));
    }
    lines.emplace_back(word);
    used = asks > width ? ruler.Width(word, letters) : asks;
  }
  return lines;
}

double WidestWord(std::string_view text, Letters letters, const Ruler& ruler) {
  double widest = 0;
  for (const std::string_view word : WordsOf(text)) widest = std::max(widest, ruler.Width(word, letters));
  return widest;
}

}  // namespace brivane::app::report
