#include <algorithm>
#include <array>
#include <charconv>

#include <brivane/controls/entry/TypedDate.h>
#include <brivane/frame/Calendar.h>
#include <brivane/frame/Dates.h>
#include <brivane/frame/Trim.h>

namespace brivane::controls {

namespace {

using Day = frame::Reading<host::Date>;

constexpr int kMonthsInYear = 12;
/// Longer ones lead past the calendar's end.
constexpr std::size_t kMostTermDigits = 5;

struct Unit {
  std::string_view written;
  int months;
};
/// The longer ones first.
constexpr std::array<Unit, 7> kUnits{{{"jaren", kMonthsInYear},
                                      {"jaar", kMonthsInYear},
                                      {"jr", kMonthsInYear},
                                      {"j", kMonthsInYear},
                                      {"maanden", 1},
                                      {"mnd", 1},
                                      {"m", 1}}};

bool IsNumeral(char c) { return c >= '0' && c <= '9'; }

std::string InSmallLetters(std::string_view text) {
  std::string small(text);
  std::transform(small.begin(), small.end(), small.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return small;
}

bool IsToday(std::string_view small) { return small == "t" || small == "v" || small == "vandaag"; }

/// "1j6m" in months; nothing where a text is no such term.
std::optional<std::int64_t> MonthsOf(std::string_view small) {
  std::int64_t months = 0;
  bool any = false;
  while (!small.empty()) {
    const auto after = std::find_if_not(small.begin(), small.end(), &IsNumeral);
    const auto length = static_cast<std::size_t>(after - small.begin());
    if (length == 0 || length > kMostTermDigits) return std::nullopt;
    std::int64_t number = 0;
    std::from_chars(small.data(), small.data() + length, number);
    small = frame::Trim(small.substr(length));
    const auto* const unit =
        std::find_if(kUnits.begin(), kUnits.end(), [&](const Unit& known) { return small.starts_with(known.written); });
    if (unit == kUnits.end()) return std::nullopt;
    months += number * unit->months;
    small = frame::Trim(small.substr(unit->written.size()));
    any = true;
  }
  return any ? std::optional(months) : std::nullopt;
}

bool IsTypable(host::Date date) {
  return date >= frame::MakeDate({frame::kFirstYear, 1, 1}) && date <= frame::kLastDay;
}

Day After(const DateOrigin::Start& start, std::string_view typed, std::int64_t months) {
  if (start.date.IsNone()) return Day::Refuse({frame::TextId::NoStart, {typed, start.name}});
  const frame::YearMonthDay from = frame::Split(start.date);
  // No later than the calendar's last year, which the day of the month cannot lead past.
  if ((static_cast<std::int64_t>(from.year) * kMonthsInYear + from.month - 1 + months) / kMonthsInYear >
      frame::Split(frame::kLastDay).year)
    return Day::Refuse({frame::TextId::PastCalendar, {typed}});
  return frame::AddMonths(start.date, months);
}

/// Whether only a year is missing.
bool IsDayAndMonth(std::string_view typed) {
  const std::size_t sign = typed.find_first_of("-./ ");
  const auto isNumber = [](std::string_view part) {
    return !part.empty() && part.size() <= 2 && std::all_of(part.begin(), part.end(), &IsNumeral);
  };
  return sign != std::string_view::npos && isNumber(typed.substr(0, sign)) &&
         isNumber(frame::Trim(typed.substr(sign + 1)));
}

}  // namespace

Day ReadTypedDate(std::string_view typed, const DateOrigin& origin) {
  Day date = frame::ReadDate(typed);
  if (!date.IsRefused() || origin.today.IsNone()) return date;
  typed = frame::Trim(typed);
  if (IsDayAndMonth(typed))
    return frame::ReadDate(std::string(typed) + '-' + std::to_string(frame::Split(origin.today).year));
  const std::string small = InSmallLetters(typed);
  if (IsToday(small)) return origin.today;
  const std::optional<std::int64_t> months = origin.start ? MonthsOf(small) : std::nullopt;
  return months ? After(*origin.start, typed, *months) : date;
}

bool GoesOnWithHyphen(std::string_view typed) {
  typed = frame::Trim(typed);
  const bool begun = !typed.empty() && typed.find_first_not_of("0123456789-./ ") == std::string_view::npos;
  return begun && frame::ReadDate(typed).IsRefused();
}

host::Date StepFrom(host::Date date, DateStep step) {
  const auto stepped = [&] {
    switch (step) {
      case DateStep::DayBack: return host::Date(date.Days() - 1);
      case DateStep::Day: return host::Date(date.Days() + 1);
      default: break;
    }
    const bool years = step == DateStep::YearBack || step == DateStep::Year;
    const bool back = step == DateStep::MonthBack || step == DateStep::YearBack;
    const int months = years ? kMonthsInYear : 1;
    const frame::YearMonthDay from = frame::Split(date);
    const int landing = from.year * kMonthsInYear + from.month - 1 + (back ? -months : months);
    if (landing / kMonthsInYear > frame::Split(frame::kLastDay).year) return date;
    return frame::AddMonths(date, back ? -months : months);
  }();
  return IsTypable(stepped) ? stepped : date;
}

}  // namespace brivane::controls
