#include <cstddef>

#include <brivane/controls/entry/TypeAhead.h>

namespace brivane::controls {

namespace {

/// Small letters for the capitals of the languages that names come from: A to Z, and those with an accent that are
/// two bytes with the first C3.
std::string Small(std::string_view text) {
  std::string small(text);
  for (std::size_t i = 0; i < small.size(); ++i) {
    const auto byte = static_cast<unsigned char>(small[i]);
    const bool accented = i > 0 && static_cast<unsigned char>(small[i - 1]) == 0xC3 && byte >= 0x80 && byte <= 0x9E &&
                          byte != 0x97;  // the sign of multiplication
    if ((small[i] >= 'A' && small[i] <= 'Z') || accented) small[i] = static_cast<char>(byte + 0x20);
  }
  return small;
}

bool IsRepeated(std::string_view text, std::string_view character) {
  for (; text.starts_with(character); text.remove_prefix(character.size())) {
  }
  return text.empty();
}

/// The first entry from `from` on, and then from the top, that begins this way; below 0 where there is none.
int Find(const std::vector<std::string>& entries, std::size_t from, std::string_view beginning) {
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const std::size_t place = (from + i) % entries.size();
    if (Small(entries[place]).starts_with(beginning)) return static_cast<int>(place);
  }
  return -1;
}

}  // namespace

int TypeAhead::Type(const std::vector<std::string>& entries, int current, std::string_view character,
                    std::chrono::milliseconds at) {
  if (!GoesOn(at)) typed_.clear();
  last_ = at;
  if (character.empty() || (typed_.empty() && character == " ")) return current;
  const std::string small = Small(character);
  typed_ += small;
  const bool first = typed_ == small;
  const auto here = static_cast<std::size_t>(current < 0 ? 0 : current);
  int found = first ? -1 : Find(entries, here, typed_);
  if (found < 0 && IsRepeated(typed_, small)) found = Find(entries, current < 0 ? 0 : here + 1, small);
  return found < 0 ? current : found;
}

}  // namespace brivane::controls
