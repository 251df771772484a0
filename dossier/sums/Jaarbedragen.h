#pragma once

#include <cstdint>
#include <vector>

#include "dossier/model/Gegevens.h"

/// What a column's amount is in each of its years: the rows of the year-by-year form, as the form shows them.
namespace brivane::sums {

/// What the number in a column's amount box counts.
enum class Eenheid : std::uint8_t { Euro, Procent };
[[nodiscard]] Eenheid EenheidVan(const dossier::BedragGegevens& bedrag);

/// The value of a row: in euros, or in percent with its discount taken off.
struct Jaarbedrag {
  double waarde = 0;
  bool opJaarbasis = false;  ///< the amount is that of the whole year, whatever the term
  friend bool operator==(const Jaarbedrag&, const Jaarbedrag&) = default;
};

/// A bridging loan has a row for each month, all else one for each year.
[[nodiscard]] bool HeeftMaandrijen(const dossier::BedragGegevens& bedrag);
/// The row, from 1, that month `maand` of a column lies in, its months counted from 1.
[[nodiscard]] std::int32_t RijVan(const dossier::BedragGegevens& bedrag, std::int32_t maand);

/// The first `rijen` rows. Past the last entry the amount or the growth goes on as it was. A row that growth makes too
/// large for a number is none.
[[nodiscard]] std::vector<Jaarbedrag> Rijen(const dossier::BedragGegevens& bedrag, std::int32_t rijen);

/// What an amount comes to each month, and in the twelve months of a row of a year.
struct Omgerekend {
  double perMaand = 0;
  double perJaar = 0;
  friend bool operator==(const Omgerekend&, const Omgerekend&) = default;
};
/// An amount that is paid every `termijn` months (1, 3, 6, 12), or that of the whole year. Not rounded.
[[nodiscard]] Omgerekend RekenOm(const Jaarbedrag& bedrag, std::int16_t termijn);

}  // namespace brivane::sums
