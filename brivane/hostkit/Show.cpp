#include <algorithm>
#include <charconv>
#include <string_view>

#include <brivane/frame/Calendar.h>
#include <brivane/hostkit/Show.h>

namespace brivane::hostkit {

namespace {

/// Longer texts are shown by their beginning and their end.
constexpr std::size_t kLong = 80;
constexpr std::size_t kShown = 30;

template <class Number> std::string Shortest(Number value) {
  std::array<char, 64> text{};
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr};
}

unsigned Byte(char character) { return static_cast<unsigned char>(character); }

bool Continues(char character) { return (Byte(character) & 0xC0U) == 0x80U; }

/// The length of the character that begins a text; 0 where none does.
std::size_t CharacterLength(std::string_view text) {
  const unsigned first = Byte(text.front());
  const std::size_t length = first < 0x80U                      ? 1
                             : first >= 0xC2U && first < 0xE0U  ? 2
                             : first >= 0xE0U && first < 0xF0U  ? 3
                             : first >= 0xF0U && first <= 0xF4U ? 4
                                                                : 0;
  if (length == 0 || length > text.size()) return 0;
  return std::all_of(text.begin() + 1, text.begin() + static_cast<std::ptrdiff_t>(length), Continues) ? length : 0;
}

std::string Readable(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string shown;
  while (!text.empty()) {
    const std::size_t length = CharacterLength(text);
    if (length > 0 && Byte(text.front()) >= 0x20U) {
      shown += text.substr(0, length);
      text.remove_prefix(length);
      continue;
    }
    shown += "\\x";
    shown += kDigits[Byte(text.front()) >> 4U];
    shown += kDigits[Byte(text.front()) & 0xFU];
    text.remove_prefix(1);
  }
  return shown;
}

}  // namespace

std::string Show(bool value) { return value ? "true" : "false"; }
std::string Show(std::int16_t value) { return std::to_string(value); }
std::string Show(std::int32_t value) { return std::to_string(value); }
std::string Show(float value) { return Shortest(value); }
std::string Show(double value) { return Shortest(value); }

std::string Show(host::Date value) {
  if (value.IsNone()) return "no date";
  if (value < frame::kFirstDay || value > frame::kLastDay) return "day " + std::to_string(value.Days());
  const frame::YearMonthDay day = frame::Split(value);
  const auto digits = [](int number, std::size_t count) {
    const std::string text = std::to_string(number);
    return std::string(count - std::min(count, text.size()), '0') + text;
  };
  return digits(day.year, 4) + '-' + digits(day.month, 2) + '-' + digits(day.day, 2);
}

std::string Show(const std::string& value) {
  if (value.size() <= kLong) return '"' + Readable(value) + '"';
  std::size_t begin = kShown;
  while (begin > 0 && Continues(value[begin])) --begin;
  std::size_t end = value.size() - kShown;
  while (end < value.size() && Continues(value[end])) ++end;
  return '"' + Readable(std::string_view(value).substr(0, begin)) + " … " +
         Readable(std::string_view(value).substr(end)) + "\" (" + std::to_string(value.size()) + " bytes)";
}

std::string Show(const std::array<std::string, 3>& values) {
  return Show(values[0]) + ", " + Show(values[1]) + ", " + Show(values[2]);
}

std::string Show(const std::vector<std::int16_t>& values) {
  std::string shown;
  for (const std::int16_t value : values) shown += (shown.empty() ? "" : ", ") + std::to_string(value);
  return '[' + shown + ']';
}

std::string Show(const host::Error& error) {
  return "error " + std::to_string(error.Number()) + ", " + Show(error.Description()) + ", source " +
         Show(error.Source());
}

bool IsUtf8(const std::string& text) {
  std::string_view rest = text;
  while (!rest.empty()) {
    const std::size_t length = CharacterLength(rest);
    if (length == 0) return false;
    rest.remove_prefix(length);
  }
  return true;
}

}  // namespace brivane::hostkit
