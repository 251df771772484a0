#include <cmath>
#include <limits>

#include <brivane/scenario/Afronding.h>

namespace brivane::scenario {

double VierDecimalen(double getal) {
  constexpr double kTienduizend = 10000;
  // Adding 0 turns a negative zero into zero, which is what a reader expects to see.
  return std::nearbyint(getal * kTienduizend) / kTienduizend + 0.0;
}

bool GelijkInSingle(double een, double ander) {
  constexpr double kGrootste = std::numeric_limits<float>::max();
  if (!(std::abs(een) <= kGrootste && std::abs(ander) <= kGrootste)) return false;
  return static_cast<float>(een) == static_cast<float>(ander);
}

}  // namespace brivane::scenario
