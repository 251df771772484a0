#include "dossier/sums/Centen.h"

#include <cmath>
#include <limits>

namespace brivane::sums {

double OpCenten(double euro) {
  constexpr double kCenten = 100;
  // More than what a handful of products and quotients is rounded by, and far less than an amount differs by.
  constexpr double kSpeling = 1 + 8 * std::numeric_limits<double>::epsilon();
  // Adding 0 turns a negative zero into zero.
  return std::round(euro * kCenten * kSpeling) / kCenten + 0.0;
}

}  // namespace brivane::sums
