#pragma once

#include <cstdint>

namespace brivane::toelichting {

/// Which checks a Validation runs.
inline constexpr std::int32_t kControleVolledig = 0;  ///< the percentage and the end date
inline constexpr std::int32_t kControlePercentage = 3;
inline constexpr std::int32_t kControleEinddatum = 4;
inline constexpr std::int32_t kControleEindleeftijd = 5;

}  // namespace brivane::toelichting
