#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <brivane/frame/Reading.h>
#include <brivane/host/Date.h>
#include <brivane/host/Export.h>

/// The short ways to a date: typed as a day that others are counted from, or stepped to.
namespace brivane::controls {

/// The days that a typed date may count from.
struct DateOrigin {
  /// Where an end date counts from: the date of another box, and what that box is called.
  struct Start {
    std::string name;  ///< for a refusal, in Dutch
    host::Date date;   ///< may be no date, and then nothing can be counted from it
  };

  host::Date today;                 ///< of the machine
  std::optional<Start> start = {};  ///< of an end date
};

/// A date as frame::ReadDate reads it, or in short: "t", "v" and "vandaag" are today, "1-4" is this year's, and in an
/// end date "3j", "18m" and "1j6m" are so much after its start.
[[nodiscard]] BRIVANE_API frame::Reading<host::Date> ReadTypedDate(std::string_view typed, const DateOrigin& origin);

/// Whether a hyphen goes on with what is being typed, and is no step: "1" and "1-4" have no year yet.
[[nodiscard]] BRIVANE_API bool GoesOnWithHyphen(std::string_view typed);

/// A step of a date by a key.
enum class DateStep {
  DayBack,    ///< one day back
  Day,        ///< one day on
  MonthBack,  ///< one month back
  Month,      ///< one month on
  YearBack,   ///< one year back
  Year,       ///< one year on
};

/// The day one step from another one; the last of a shorter month. Past what may be typed it stays where it is.
[[nodiscard]] BRIVANE_API host::Date StepFrom(host::Date date, DateStep step);

}  // namespace brivane::controls
