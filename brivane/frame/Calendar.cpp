#include <algorithm>
#include <chrono>

#include <brivane/frame/Calendar.h>
#include <brivane/host/Error.h>

namespace brivane::frame {

namespace {

constexpr std::chrono::sys_days kZeroDate = std::chrono::year{1899} / 12 / 30;
constexpr int kFirstCalendarYear = 100;
constexpr int kLastCalendarYear = 9999;
constexpr std::int64_t kMonthsPerYear = 12;
/// Further than any two dates are apart: what goes so far leaves the calendar from every date of it.
constexpr std::int64_t kMostYears = 10000;

std::chrono::year_month_day ToCivil(YearMonthDay date) {
  return std::chrono::year{date.year} / std::chrono::month{static_cast<unsigned>(date.month)} /
         std::chrono::day{static_cast<unsigned>(date.day)};
}

int LastDayOf(int year, int month) {
  const std::chrono::year_month_day_last last{std::chrono::year{year} /
                                              std::chrono::month{static_cast<unsigned>(month)} / std::chrono::last};
  return static_cast<int>(static_cast<unsigned>(last.day()));
}

}  // namespace

YearMonthDay Split(host::Date date) {
  const std::chrono::year_month_day civil{kZeroDate + std::chrono::days{date.Days()}};
  return {static_cast<int>(civil.year()), static_cast<int>(static_cast<unsigned>(civil.month())),
          static_cast<int>(static_cast<unsigned>(civil.day()))};
}

bool IsCalendarDate(YearMonthDay date) {
  return date.year >= kFirstCalendarYear && date.year <= kLastCalendarYear && date.month >= 1 && date.month <= 12 &&
         date.day >= 1 && date.day <= LastDayOf(date.year, date.month);
}

host::Date MakeDate(YearMonthDay date) {
  if (!IsCalendarDate(date)) throw host::Error(host::ErrorNumber::Overflow);
  return host::Date{static_cast<std::int32_t>((std::chrono::sys_days{ToCivil(date)} - kZeroDate).count())};
}

host::Date AddMonths(host::Date date, std::int64_t months) {
  if (date.IsNone()) return date;
  constexpr std::int64_t kMost = kMostYears * kMonthsPerYear;
  const YearMonthDay start = Split(date);
  const std::chrono::year_month end =
      std::chrono::year{start.year} / start.month + std::chrono::months{std::clamp(months, -kMost, kMost)};
  const int year = static_cast<int>(end.year());
  const int month = static_cast<int>(static_cast<unsigned>(end.month()));
  return MakeDate({year, month, std::min(start.day, LastDayOf(year, month))});
}

host::Date AddYears(host::Date date, std::int64_t years) {
  return AddMonths(date, std::clamp(years, -kMostYears, kMostYears) * kMonthsPerYear);
}

std::int32_t MonthsBetween(host::Date from, host::Date to) {
  const YearMonthDay a = Split(from);
  const YearMonthDay b = Split(to);
  return (b.year - a.year) * 12 + (b.month - a.month);
}

std::int32_t YearsBetween(host::Date from, host::Date to) { return Split(to).year - Split(from).year; }

}  // namespace brivane::frame
