#pragma once

#include <cstdint>

#include <brivane/host/Date.h>

/// A duration in months, as the year and month boxes show it.
namespace brivane::vrijekolom {

inline constexpr std::int32_t kMaandenPerJaar = 12;

/// Whole years of a duration, truncated toward zero.
[[nodiscard]] constexpr std::int32_t Jaren(std::int32_t looptijd) { return looptijd / kMaandenPerJaar; }
/// What remains, with the sign of the duration.
[[nodiscard]] constexpr std::int32_t Restmaanden(std::int32_t looptijd) { return looptijd % kMaandenPerJaar; }

/// Years and months as one duration, rounded once, half to even. Fails with error 6 outside 16 bits.
[[nodiscard]] std::int16_t LooptijdUit(double jaren, double maanden);
/// Calendar-month boundaries between two dates. Fails with error 6 outside 16 bits.
[[nodiscard]] std::int16_t LooptijdTussen(host::Date aanvang, host::Date einde);

}  // namespace brivane::vrijekolom
