#pragma once

#include <cstdint>

#include <brivane/vrijekolom/Codes.h>

/// What fiscal correction may stand beside what burden correction. The corrections are codes of the record; any
/// other number stands for no correction at all.
namespace brivane::vrijekolom {

/// The fiscal corrections that an adviser can choose.
struct FiscaleOpties {
  bool aftrekpost;
  bool bijtelling;
  bool neutraal;
  friend bool operator==(const FiscaleOpties&, const FiscaleOpties&) = default;
};

/// A cost can only be deductible, a contribution only a taxable addition, both of them neutral too; a column with a
/// neutral burden must have a fiscal effect.
[[nodiscard]] constexpr FiscaleOpties OptiesBij(std::int16_t last) {
  return {.aftrekpost = last == kLast || last == kLastNeutraal,
          .bijtelling = last == kBijdrage || last == kLastNeutraal,
          .neutraal = last != kLastNeutraal};
}

/// The fiscal correction that comes with another burden correction.
[[nodiscard]] constexpr std::int16_t FiscaalBij(std::int16_t last) {
  return OptiesBij(last).aftrekpost ? kAftrekpost : kBijtelling;
}

/// Only a taxable contribution can be income from work.
[[nodiscard]] constexpr bool KanInkomenUitArbeidZijn(std::int16_t last, std::int16_t fiscaal) {
  return last == kBijdrage && fiscaal == kBijtelling;
}

}  // namespace brivane::vrijekolom
