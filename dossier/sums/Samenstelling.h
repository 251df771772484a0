#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

/// Which columns make up a situation.
namespace brivane::sums {

/// How a column comes to be in a situation.
enum class Herkomst : std::uint8_t {
  Huidig,      ///< of the current loan, in the current situation
  Volgt,       ///< of the current loan, in a new situation that has no version of its own
  Afwijking,   ///< a version of a new loan's own
  AlleenNieuw  ///< of a new loan alone
};

struct Plek {
  Herkomst herkomst;
  std::size_t plaats;  ///< in the current loan for Huidig and Volgt, else in the new loan, from 0
  friend bool operator==(const Plek&, const Plek&) = default;
};

/// The current situation: its loan's columns as they are.
[[nodiscard]] std::vector<Plek> HuidigeSituatie(std::size_t kolommen);

/// The situation with one new loan, from the identifiers of its columns and of those of the current loan: the current
/// columns in their order, each in the version of the new loan where that has one (or more), and then what is in the
/// new loan alone.
[[nodiscard]] std::vector<Plek> NieuweSituatie(std::span<const std::int16_t> huidig,
                                               std::span<const std::int16_t> nieuw);

}  // namespace brivane::sums
