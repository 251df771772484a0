#include <algorithm>
#include <array>
#include <charconv>
#include <vector>

#include <brivane/frame/Calendar.h>
#include <brivane/frame/Dates.h>
#include <brivane/frame/Padded.h>
#include <brivane/frame/Trim.h>

namespace brivane::frame {
namespace {

/// From the day of the week that the zero date was.
constexpr std::array<TextId, 7> kDays = {TextId::Saturday,  TextId::Sunday,   TextId::Monday, TextId::Tuesday,
                                         TextId::Wednesday, TextId::Thursday, TextId::Friday};
constexpr std::size_t kShortYear = 2;
constexpr std::size_t kFullYear = 4;

bool IsDigits(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

int ToInt(std::string_view digits) {
  int value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return value;
}

/// Day, month and year as typed; empty where the text has another shape.
std::vector<std::string_view> Split(std::string_view text) {
  if (IsDigits(text)) {
    if (text.size() != 4 + kShortYear && text.size() != 4 + kFullYear) return {};
    return {text.substr(0, 2), text.substr(2, 2), text.substr(4)};
  }
  std::vector<std::string_view> parts;
  while (true) {
    const std::size_t end = text.find_first_of("-./ ");
    parts.push_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
    text = Trim(text.substr(end + 1));
  }
  const auto fits = [](std::string_view part, std::size_t most) { return IsDigits(part) && part.size() <= most; };
  if (parts.size() != 3 || !fits(parts[0], 2) || !fits(parts[1], 2) || !IsDigits(parts[2])) return {};
  if (parts[2].size() != kShortYear && parts[2].size() != kFullYear) return {};
  return parts;
}

/// A year of two digits is one of the hundred from `firstShort` on.
int Year(std::string_view digits, int firstShort) {
  const int year = ToInt(digits);
  if (digits.size() == kFullYear) return year;
  const int century = firstShort - firstShort % 100;
  return century + year < firstShort ? century + 100 + year : century + year;
}

Phrase InWords(const frame::YearMonthDay& day) {
  const auto month = static_cast<TextId>(static_cast<int>(TextId::January) + day.month - 1);
  return {TextId::Day, {std::to_string(day.day), month, std::to_string(day.year)}};
}

Reading<host::Date> Read(std::string_view text, int firstShort) {
  using Answer = Reading<host::Date>;
  text = Trim(text);
  if (text.empty()) return {};
  const std::vector<std::string_view> parts = Split(text);
  if (parts.empty()) return Answer::Refuse(TextId::ExpectDate);
  const frame::YearMonthDay date{Year(parts[2], firstShort), ToInt(parts[1]), ToInt(parts[0])};
  if (date.year < kFirstYear) return Answer::Refuse({TextId::EarliestYear, {std::to_string(kFirstYear)}});
  if (date.month < 1 || date.month > 12)
    return Answer::Refuse({TextId::NoSuchMonth, {std::to_string(date.month), TextId::ExpectDate}});
  if (!frame::IsCalendarDate(date)) return Answer::Refuse({TextId::NoSuchDay, {InWords(date)}});
  return frame::MakeDate(date);
}

}  // namespace

Reading<host::Date> ReadDate(std::string_view text) { return Read(text, kFirstShortYear); }

Reading<host::Date> ReadPastDate(std::string_view text, host::Date today) {
  const int year = frame::Split(today).year;
  const Reading<host::Date> reading = Read(text, year - 99);
  const bool ahead = !reading.IsRefused() && !reading.IsEmpty() && *reading >= today;
  return ahead ? Read(text, year - 100) : reading;
}

std::string ShowDate(host::Date date) {
  if (date.IsNone()) return {};
  const frame::YearMonthDay parts = frame::Split(date);
  return Padded(parts.day, kShortYear) + "-" + Padded(parts.month, kShortYear) + "-" + Padded(parts.year, kFullYear);
}

Phrase LongDate(host::Date date) { return date.IsNone() ? Phrase() : InWords(frame::Split(date)); }

Phrase DateInWords(host::Date date) {
  if (date.IsNone()) return {};
  const auto week = static_cast<int>(kDays.size());
  const auto day = static_cast<std::size_t>((date.Days() % week + week) % week);
  return {TextId::DayOfWeek, {kDays[day], LongDate(date)}};
}

std::string ShowLongDate(host::Date date) { return LongDate(date).In(Language::Dutch); }
std::string ShowDateInWords(host::Date date) { return DateInWords(date).In(Language::Dutch); }

}  // namespace brivane::frame
