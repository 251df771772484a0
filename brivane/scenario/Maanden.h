#pragma once

#include <cstdint>
#include <optional>

/// Rows and month numbers: row r stands for the months (r - 1) x 12 + 1 to r x 12.
namespace brivane::scenario {

/// How many months a row stands for, of a bridging loan as well, whose labels say months.
inline constexpr int kMaandenPerRij = 12;

/// The month by which a stored amount counts: a yearly amount falls in the last month of its row.
enum class Maandbasis : bool {
  Jaar,   ///< the last month of its row
  Maand,  ///< the first
};

/// The month that a row of 1 and up is stored by.
[[nodiscard]] constexpr std::int16_t MaandVan(int rij, Maandbasis basis) {
  const int maand = basis == Maandbasis::Maand ? (rij - 1) * kMaandenPerRij + 1 : rij * kMaandenPerRij;
  return static_cast<std::int16_t>(maand);
}

/// The row of a month; nothing where no row of the grid holds it.
[[nodiscard]] constexpr std::optional<int> RijVan(int maand, int rijen) {
  if (maand < 1) return std::nullopt;
  const int rij = (maand + kMaandenPerRij - 1) / kMaandenPerRij;
  if (rij > rijen) return std::nullopt;
  return rij;
}

/// The basis that storing an amount takes: one kind of scenario counts by month, another by month unless
/// the row is ticked as yearly, and every other one keeps the basis it had.
[[nodiscard]] constexpr Maandbasis BasisVoor(std::int16_t soortScenario, bool eenmalig, Maandbasis vorige) {
  if (soortScenario == 1) return Maandbasis::Maand;
  if (soortScenario == 2) return eenmalig ? Maandbasis::Jaar : Maandbasis::Maand;
  return vorige;
}

}  // namespace brivane::scenario
