#pragma once

#include <compare>
#include <cstdint>

namespace brivane::host {

/// A calendar date without time: a number of days since the zero date, 30 December 1899.
///
/// The zero date itself stands for "no date". Days before it are negative. Years, months and days
/// are worked out in brivane/frame/Calendar.h.
class Date {
 public:
  constexpr Date() = default;  ///< no date
  /// Any number of days can be held; the calendar (frame::kFirstDay to frame::kLastDay) is for who works with it.
  constexpr explicit Date(std::int32_t days) : days_(days) {}

  /// Days since 30 December 1899.
  [[nodiscard]] constexpr std::int32_t Days() const { return days_; }
  /// Whether it is the zero date, which a date box shows empty.
  [[nodiscard]] constexpr bool IsNone() const { return days_ == 0; }
  friend constexpr auto operator<=>(Date, Date) = default;

 private:
  std::int32_t days_ = 0;
};

/// What an empty date box reads as, and what empties one.
inline constexpr Date kNoDate{};

}  // namespace brivane::host
