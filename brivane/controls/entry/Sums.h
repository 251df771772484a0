#pragma once

#include <string_view>

#include <brivane/frame/Design.h>
#include <brivane/frame/Reading.h>

/// Numbers that somebody types as a sum, for the box to reckon out: "10+5", "1200/12", "3 x 84,50 - 10".
namespace brivane::controls {

/// Whether a text is one: a sign of a sum stands after a digit.
[[nodiscard]] bool IsSum(std::string_view text);

/// The outcome of one, rounded to what a box of the format shows (halves away from zero). Numbers are written as in
/// such a box, with up to four decimals; signs are + - * / and, as they are written by hand, x × : ÷. Multiplying and
/// dividing go first.
[[nodiscard]] frame::Reading<double> ReadSum(std::string_view text, frame::Format format);

}  // namespace brivane::controls
