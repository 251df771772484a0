#include <cmath>
#include <limits>

#include <brivane/frame/Conversions.h>
#include <brivane/host/Error.h>

namespace brivane::frame {

namespace {

double RoundHalfToEven(double number) {
  const double below = std::floor(number);
  const double rest = number - below;
  if (rest < 0.5) return below;
  if (rest > 0.5) return below + 1;
  return std::fmod(below, 2) == 0 ? below : below + 1;
}

template <class Whole> Whole ToWhole(double number) {
  const double rounded = RoundHalfToEven(number);
  // The negated comparison refuses what is not a number as well.
  if (!(rounded >= static_cast<double>(std::numeric_limits<Whole>::min()) &&
        rounded <= static_cast<double>(std::numeric_limits<Whole>::max())))
    throw host::Error(host::ErrorNumber::Overflow);
  return static_cast<Whole>(rounded);
}

}  // namespace

std::int16_t ToInteger16(double number) { return ToWhole<std::int16_t>(number); }

std::int32_t ToInteger32(double number) { return ToWhole<std::int32_t>(number); }

float ToSingle(double number) {
  if (std::abs(number) > static_cast<double>(std::numeric_limits<float>::max()))
    throw host::Error(host::ErrorNumber::Overflow);
  return static_cast<float>(number);
}

double Finite(double number) {
  if (!std::isfinite(number)) throw host::Error(host::ErrorNumber::Overflow);
  return number;
}

}  // namespace brivane::frame
