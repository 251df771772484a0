#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "dossier/model/Gegevens.h"

/// The calendar years that are looked at, and who is how old in them.
namespace brivane::sums {

struct Jaren {
  std::int32_t van = 0;
  std::int32_t tot = 0;  ///< the last of them
  [[nodiscard]] std::int32_t Aantal() const { return tot < van ? 0 : tot - van + 1; }
  friend bool operator==(const Jaren&, const Jaren&) = default;
};

/// At most so many years are shown, as many as the year-by-year form has rows.
inline constexpr std::int32_t kMeesteJaren = 80;

/// From the year of a day to that in which the youngest reaches the age limit, which the year-by-year form ends with as
/// well; ten years at least.
[[nodiscard]] Jaren JarenVan(host::Date peildatum, std::span<const dossier::PersoonGegevens> personen,
                             std::int16_t leeftijdsgrens);

/// The years that a column itself lies in: from its first, to its last or, without an end, to `einde`. None for a
/// column without a start date.
[[nodiscard]] Jaren JarenVan(const host::VrijeKolomValues& kolom, std::int32_t einde);

/// Age by year number, as the end of a transition counts it: that of the birthday in the year. Nothing before birth.
[[nodiscard]] std::optional<std::int32_t> LeeftijdIn(std::int32_t jaar, host::Date geboortedatum);

}  // namespace brivane::sums
