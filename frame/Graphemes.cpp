#include "frame/Graphemes.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace brivane::frame {

namespace {

struct Range {
  char32_t first;
  char32_t last;
};

// Marks that continue the character before them: combining marks of the scripts in use, variation
// selectors, emoji modifiers and tags. Sorted.
constexpr std::array<Range, 47> kExtending{{
    {0x0300, 0x036F},   {0x0483, 0x0489},   {0x0591, 0x05BD},   {0x05BF, 0x05BF},   {0x05C1, 0x05C2},
    {0x05C4, 0x05C5},   {0x05C7, 0x05C7},   {0x0610, 0x061A},   {0x064B, 0x065F},   {0x0670, 0x0670},
    {0x06D6, 0x06DC},   {0x06DF, 0x06E4},   {0x06E7, 0x06E8},   {0x06EA, 0x06ED},   {0x0711, 0x0711},
    {0x0730, 0x074A},   {0x0900, 0x0903},   {0x093A, 0x093C},   {0x093E, 0x094F},   {0x0951, 0x0957},
    {0x0962, 0x0963},   {0x0981, 0x0983},   {0x09BC, 0x09BC},   {0x09BE, 0x09CD},   {0x0A01, 0x0A03},
    {0x0A3C, 0x0A51},   {0x0B82, 0x0B82},   {0x0BBE, 0x0BCD},   {0x0E31, 0x0E31},   {0x0E34, 0x0E3A},
    {0x0E47, 0x0E4E},   {0x0EB1, 0x0EB1},   {0x0EB4, 0x0EBC},   {0x0EC8, 0x0ECD},   {0x135D, 0x135F},
    {0x1AB0, 0x1AFF},   {0x1DC0, 0x1DFF},   {0x200C, 0x200D},   {0x20D0, 0x20F0},   {0x302A, 0x302F},
    {0x3099, 0x309A},   {0xFE00, 0xFE0F},   {0xFE20, 0xFE2F},   {0x1F3FB, 0x1F3FF}, {0xE0020, 0xE007F},
    {0xE0100, 0xE01EF}, {0xFF9E, 0xFF9F},
}};

constexpr char32_t kZeroWidthJoiner = 0x200D;

bool Extends(char32_t c) {
  return std::any_of(kExtending.begin(), kExtending.end(), [c](Range r) { return c >= r.first && c <= r.last; });
}

bool IsRegionalIndicator(char32_t c) { return c >= 0x1F1E6 && c <= 0x1F1FF; }

/// What a joiner may join: the pictographs.
bool IsPictograph(char32_t c) {
  return (c >= 0x1F000 && c <= 0x1FAFF && !IsRegionalIndicator(c) && !Extends(c)) || (c >= 0x2190 && c <= 0x2BFF) ||
         c == 0x00A9 || c == 0x00AE || c == 0x203C || c == 0x2049 || c == 0x2122 || c == 0x2139;
}

bool IsHangulVowel(char32_t c) { return c >= 0x1160 && c <= 0x11A7; }
bool IsHangulTail(char32_t c) { return c >= 0x11A8 && c <= 0x11FF; }
bool IsHangulLead(char32_t c) { return c >= 0x1100 && c <= 0x115F; }
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
  for (std::size_t i = start + 1; i < end; ++i)
    value = (value << 6U) | (static_cast<unsigned char>(text[i]) & 0x3FU);
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
