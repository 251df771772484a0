#include <algorithm>
#include <iterator>

#include <brivane/frame/GraphemeMarks.h>
#include <brivane/frame/Graphemes.h>

namespace brivane::frame {

namespace {

constexpr char32_t kZeroWidthJoiner = 0x200D;

/// Whether one of the ranges, which are sorted, holds the code point.
template <class Ranges> bool In(const Ranges& ranges, char32_t c) {
  const auto after = std::upper_bound(ranges.begin(), ranges.end(), c,
                                      [](char32_t point, CodePointRange range) { return point < range.first; });
  return after != ranges.begin() && c <= std::prev(after)->last;
}

constexpr bool Sorted(const auto& ranges) {
  return std::is_sorted(ranges.begin(), ranges.end(),
                        [](CodePointRange a, CodePointRange b) { return a.last < b.first; });
}
static_assert(Sorted(kGraphemeMarks) && Sorted(kGraphemeOpeners));

bool Extends(char32_t c) { return In(kGraphemeMarks, c); }
bool OpensCharacter(char32_t c) { return In(kGraphemeOpeners, c); }

bool IsRegionalIndicator(char32_t c) { return c >= 0x1F1E6 && c <= 0x1F1FF; }

/// What a joiner may join: the pictographs. Of marks nobody asks.
bool IsPictograph(char32_t c) {
  return (c >= 0x1F000 && c <= 0x1FAFF && !IsRegionalIndicator(c)) || (c >= 0x2190 && c <= 0x2BFF) || c == 0x00A9 ||
         c == 0x00AE || c == 0x203C || c == 0x2049 || c == 0x2122 || c == 0x2139;
}

bool IsHangulVowel(char32_t c) { return (c >= 0x1160 && c <= 0x11A7) || (c >= 0xD7B0 && c <= 0xD7C6); }
bool IsHangulTail(char32_t c) { return (c >= 0x11A8 && c <= 0x11FF) || (c >= 0xD7CB && c <= 0xD7FB); }
bool IsHangulLead(char32_t c) { return (c >= 0x1100 && c <= 0x115F) || (c >= 0xA960 && c <= 0xA97C); }
bool IsHangulSyllable(char32_t c) { return c >= 0xAC00 && c <= 0xD7A3; }

bool IsContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

/// The code point that ends at `end`, and where it begins. A broken sequence yields its last byte alone.
struct CodePoint {
  char32_t value;
  std::size_t start;
};

CodePoint Before(std::string_view text, std::size_t end) {
  std::size_t start = end - 1;
  while (start > 0 && end - start < 4 && IsContinuation(text[start])) --start;
  const auto lead = static_cast<unsigned char>(text[start]);
  const std::size_t length = lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 0;
  if (length != end - start) return {static_cast<unsigned char>(text[end - 1]), end - 1};
  if (length == 1) return {lead, start};
  char32_t value = lead & (0xFFU >> (length + 1));
  for (std::size_t i = start + 1; i < end; ++i) value = (value << 6U) | (static_cast<unsigned char>(text[i]) & 0x3FU);
  return {value, start};
}

/// Whether an odd number of regional indicators ends at `end`: the next one then completes a flag.
bool OpensFlag(std::string_view text, std::size_t end) {
  bool odd = false;
  while (end > 0) {
    const CodePoint point = Before(text, end);
    if (!IsRegionalIndicator(point.value)) break;
    odd = !odd;
    end = point.start;
  }
  return odd;
}

/// Whether the pictograph before a joiner that ends at `joinerEnd` makes what follows part of it.
bool JoinsPictograph(std::string_view text, std::size_t joinerStart) {
  std::size_t end = joinerStart;
  while (end > 0) {
    const CodePoint point = Before(text, end);
    if (!Extends(point.value)) return IsPictograph(point.value);
    end = point.start;
  }
  return false;
}

bool ContinuesHangul(char32_t before, char32_t after) {
  if (IsHangulLead(before)) return IsHangulLead(after) || IsHangulVowel(after) || IsHangulSyllable(after);
  const bool openSyllable = IsHangulSyllable(before) && (before - 0xAC00) % 28 == 0;
  if (openSyllable || IsHangulVowel(before)) return IsHangulVowel(after) || IsHangulTail(after);
  if (IsHangulSyllable(before) || IsHangulTail(before)) return IsHangulTail(after);
  return false;
}

bool Continues(std::string_view text, const CodePoint& before, std::size_t beforeEnd, char32_t after) {
  if (before.value == U'\r') return after == U'\n';
  if (before.value == U'\n') return false;
  if (Extends(after)) return true;
  if (OpensCharacter(before.value)) return after >= U' ';
  if (before.value == kZeroWidthJoiner && IsPictograph(after)) return JoinsPictograph(text, before.start);
  if (IsRegionalIndicator(before.value) && IsRegionalIndicator(after)) return OpensFlag(text, beforeEnd);
  return ContinuesHangul(before.value, after);
}

}  // namespace

std::size_t LastGraphemeStart(std::string_view text) {
  CodePoint last = Before(text, text.size());
  while (last.start > 0) {
    const std::size_t end = last.start;
    const CodePoint before = Before(text, end);
    if (!Continues(text, before, end, last.value)) break;
    last = before;
  }
  return last.start;
}

}  // namespace brivane::frame
