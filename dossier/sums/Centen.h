#pragma once

/// Euros to the cent.
namespace brivane::sums {

/// An amount rounded to whole cents, halves away from zero. A half that is one on paper is one here too, although the
/// nearest double lies just below it. What is no number stays so, and makes every sum that it is in no number as well.
[[nodiscard]] double OpCenten(double euro);

}  // namespace brivane::sums
