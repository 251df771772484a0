#pragma once

#include <string>
#include <string_view>

#include <brivane/frame/Reading.h>
#include <brivane/host/Date.h>
#include <brivane/host/Export.h>

/// Dates as a Dutch reader writes them.
namespace brivane::frame {

/// The first of the hundred years that a year of two digits stands for: 80 to 99 are 1980 to 1999 and
/// 00 to 79 are 2000 to 2079. Contracts run far ahead and rarely began before 1980.
inline constexpr int kFirstShortYear = 1980;

/// The earliest year that may be typed: dates before it count as no date.
inline constexpr int kFirstYear = 1900;

/// Day, month and year with hyphens, points, slashes or blanks between them, or as six or eight digits:
/// "1-4-2031", "1.4.31", "01/04/2031", "010431", "01042031".
[[nodiscard]] BRIVANE_API Reading<host::Date> ReadDate(std::string_view text);
/// The same of something that lies in the past, such as a birth: of the years that one of two digits may stand for it
/// is the last that makes a date before this day. A year of four digits is taken as it is.
[[nodiscard]] BRIVANE_API Reading<host::Date> ReadPastDate(std::string_view text, host::Date today);

/// "01-04-2031"; no date is the empty text.
[[nodiscard]] BRIVANE_API std::string ShowDate(host::Date date);
/// "1 april 2031"; no date says nothing.
[[nodiscard]] BRIVANE_API Phrase LongDate(host::Date date);
/// "dinsdag 1 april 2031"; no date says nothing.
[[nodiscard]] BRIVANE_API Phrase DateInWords(host::Date date);
/// "1 april 2031"; no date is the empty text.
[[nodiscard]] BRIVANE_API std::string ShowLongDate(host::Date date);
/// "dinsdag 1 april 2031"; no date is the empty text.
[[nodiscard]] BRIVANE_API std::string ShowDateInWords(host::Date date);

}  // namespace brivane::frame
