#include "dossier/office/OfficeText.h"

#include <cstddef>

namespace brivane::dossier {
namespace {

/// The first two bytes of U+10FE00 to U+10FEFF; the third and fourth hold the byte that is meant.
constexpr std::string_view kMark = "\xF4\x8F";
constexpr unsigned char kThird = 0xB8;
constexpr unsigned char kFourth = 0x80;
constexpr std::size_t kLength = 4;

unsigned char At(std::string_view bytes, std::size_t place) {
  return place < bytes.size() ? static_cast<unsigned char>(bytes[place]) : 0;
}

bool Goes(unsigned char byte, unsigned char lowest = 0x80, unsigned char highest = 0xBF) {
  return byte >= lowest && byte <= highest;
}

/// How many bytes the character takes that stands at the front; 0 where there is none.
std::size_t CharacterAt(std::string_view bytes) {
  const unsigned char first = At(bytes, 0);
  const unsigned char second = At(bytes, 1);
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first <= 0xDF) return Goes(second) ? 2 : 0;
  if (first >= 0xE0 && first <= 0xEF) {
    const bool right = first == 0xE0   ? Goes(second, 0xA0)
                       : first == 0xED ? Goes(second, 0x80, 0x9F)  // no half of a pair
                                       : Goes(second);
    return right && Goes(At(bytes, 2)) ? 3 : 0;
  }
  if (first >= 0xF0 && first <= 0xF4) {
    const bool right = first == 0xF0 ? Goes(second, 0x90) : first == 0xF4 ? Goes(second, 0x80, 0x8F) : Goes(second);
    return right && Goes(At(bytes, 2)) && Goes(At(bytes, 3)) ? 4 : 0;
  }
  return 0;
}

bool IsMark(std::string_view bytes) { return bytes.starts_with(kMark) && Goes(At(bytes, 2), kThird, kThird + 3); }

void Put(std::string& text, unsigned char byte) {
  text += kMark;
  text += static_cast<char>(kThird + (byte >> 6U));
  text += static_cast<char>(kFourth + (byte & 0x3FU));
}

}  // namespace

std::string ToOffice(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    const std::size_t length = CharacterAt(bytes);
    if (length == 0 || bytes.front() == '\0' || IsMark(bytes)) {
      Put(text, static_cast<unsigned char>(bytes.front()));
      bytes.remove_prefix(1);
      continue;
    }
    text += bytes.substr(0, length);
    bytes.remove_prefix(length);
  }
  return text;
}

std::string FromOffice(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  while (!text.empty()) {
    if (IsMark(text) && text.size() >= kLength) {
      bytes += static_cast<char>(((At(text, 2) - kThird) << 6U) | (At(text, 3) & 0x3FU));
      text.remove_prefix(kLength);
    } else {
      bytes += text.front();
      text.remove_prefix(1);
    }
  }
  return bytes;
}

}  // namespace brivane::dossier
