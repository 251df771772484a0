#pragma once

#include <cstdint>

#include <brivane/host/Date.h>
#include <brivane/host/Export.h>

/// Calendar arithmetic on dates of the (proleptic) Gregorian calendar.
namespace brivane::frame {

/// The calendar's first and last day: 1 January 100 and 31 December 9999.
/// @{
inline constexpr host::Date kFirstDay{-657434};
inline constexpr host::Date kLastDay{2958465};
/// @}

/// A date as it is written, checked by nobody until MakeDate.
struct YearMonthDay {
  int year;   ///< 100 to 9999
  int month;  ///< 1 to 12
  int day;    ///< 1 to 31
  friend constexpr bool operator==(const YearMonthDay&, const YearMonthDay&) = default;
};

/// The zero date reads as 30 December 1899.
[[nodiscard]] BRIVANE_API YearMonthDay Split(host::Date date);
/// Fails with error 6 outside the years 100 to 9999.
[[nodiscard]] BRIVANE_API host::Date MakeDate(YearMonthDay date);
/// Whether there is such a day, within the calendar.
[[nodiscard]] BRIVANE_API bool IsCalendarDate(YearMonthDay date);

/// The date that many calendar months later (or earlier), the day clamped to the last of a shorter
/// month. No date stays no date. Fails with error 6 outside the years 100 to 9999.
[[nodiscard]] BRIVANE_API host::Date AddMonths(host::Date date, std::int64_t months);
/// The date that many calendar years later, by the rules of AddMonths.
[[nodiscard]] BRIVANE_API host::Date AddYears(host::Date date, std::int64_t years);

/// Calendar-month boundaries between two dates, days ignored; negative when `to` comes first.
[[nodiscard]] BRIVANE_API std::int32_t MonthsBetween(host::Date from, host::Date to);
/// Calendar-year boundaries between two dates, months and days ignored.
[[nodiscard]] BRIVANE_API std::int32_t YearsBetween(host::Date from, host::Date to);

}  // namespace brivane::frame
