#include <brivane/toolkits/memory/TextMeasure.h>

namespace brivane::memory {

namespace {

constexpr float kTwipsPerPoint = 20;
constexpr float kBoldFactor = 1.06F;

/// Width of an ASCII character in thousandths of the font size.
constexpr int AsciiWidth(char c) {
  constexpr auto in = [](std::string_view set, char wanted) { return set.find(wanted) != std::string_view::npos; };
  if (in("ijl'|", c)) return 222;
  if (in(" .,:;!/\\I[]ft", c)) return 278;
  if (in("()-r`", c)) return 333;
  if (in("cksvxyzJ*", c)) return 500;
  if (in("FTZ", c)) return 611;
  if (in("ABEKPSVXY&", c)) return 667;
  if (in("CDHNRUw", c)) return 722;
  if (in("GOQ", c)) return 778;
  if (in("mM%", c)) return 833;
  if (in("W@", c)) return 944;
  return 556;
}

/// Combining marks, joiners and variation selectors take no room of their own.
constexpr bool IsMark(char32_t c) {
  return (c >= 0x0300 && c <= 0x036F) || (c >= 0x200B && c <= 0x200D) || (c >= 0xFE00 && c <= 0xFE0F) ||
         (c >= 0x20D0 && c <= 0x20FF);
}

constexpr int WideWidth(char32_t c) {
  if (IsMark(c)) return 0;
  const bool ideographic = c >= 0x2E80;
  return ideographic ? 1000 : 556;
}

/// The code point at `at`, which is moved past it; a byte that is not UTF-8 stands for itself.
char32_t Next(std::string_view text, std::size_t& at) {
  const auto lead = static_cast<unsigned char>(text[at++]);
  const int more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
  if (more == 0) return lead;
  char32_t value = lead & (0x3FU >> static_cast<unsigned>(more));
  const std::size_t start = at;
  for (int i = 0; i < more; ++i, ++at) {
    if (at >= text.size() || (static_cast<unsigned char>(text[at]) & 0xC0U) != 0x80U) {
      at = start;
      return lead;
    }
    value = (value << 6U) | (static_cast<unsigned char>(text[at]) & 0x3FU);
  }
  return value;
}

}  // namespace

host::Twips TextWidth(std::string_view text, float points, bool bold) {
  int thousandths = 0;
  for (std::size_t at = 0; at < text.size();) {
    const char32_t c = Next(text, at);
    thousandths += c < 0x80 ? AsciiWidth(static_cast<char>(c)) : WideWidth(c);
  }
  const float width = static_cast<float>(thousandths) * points * kTwipsPerPoint / 1000;
  return {bold ? width * kBoldFactor : width};
}

}  // namespace brivane::memory
