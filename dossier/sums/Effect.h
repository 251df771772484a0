#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include <brivane/host/model/VrijeKolomFields.h>

/// What a column does to the burden, to taxable income and to income tax: the rows of the explanation list, in euros.
namespace brivane::sums {

/// Marginal tax rates in percent of the applicant and the partner; nothing where none was entered.
using Tarieven = std::array<std::optional<double>, 2>;

struct Effect {
  double last = 0;                  ///< more burden, or less where negative
  double inkomen = 0;               ///< more taxable income, or less
  std::optional<double> belasting;  ///< more income tax, or less; nothing where the rate is not known
  friend bool operator==(const Effect&, const Effect&) = default;
};

/// The effect of amounts that are given: a burden raises the burden and a contribution lowers it, a deduction lowers
/// taxable income and an addition raises it, each by itself; neutral and unknown codes leave it. Tax goes by the rate
/// of `persoon`; what leaves taxable income leaves tax too, whatever the rate. Rounded to cents.
[[nodiscard]] Effect EffectVan(const host::VrijeKolomValues& kolom, double lastbedrag, double inkomensbedrag,
                               std::int16_t persoon, const Tarieven& tarieven);

/// Effects added up. Tax is known where it is known of each of them.
[[nodiscard]] Effect Som(const Effect& een, const Effect& ander);
[[nodiscard]] Effect Verschil(const Effect& huidig, const Effect& nieuw);

/// The effect of nothing, which is known.
inline constexpr Effect kGeenEffect{0, 0, 0.0};

}  // namespace brivane::sums
