#pragma once

#include <compare>

namespace brivane::host {

/// Twips to a pixel of the screen that the surfaces are designed on: 96 dots per inch.
inline constexpr float kTwipsPerPixel = 15;

/// A length on the screen in twips (1/1440 inch), in single precision, as the layout rules compute with it.
struct Twips {
  float value = 0;  ///< may be negative, and a fraction

  friend constexpr auto operator<=>(Twips, Twips) = default;
  /// Reckoned in single precision.
  /// @{
  friend constexpr Twips operator+(Twips a, Twips b) { return {a.value + b.value}; }
  friend constexpr Twips operator-(Twips a, Twips b) { return {a.value - b.value}; }
  friend constexpr Twips operator*(Twips a, float factor) { return {a.value * factor}; }
  /// @}
};

/// A place on the containing surface, frame or form.
struct Place {
  Twips left;    ///< from the container's left edge
  Twips top;     ///< from its top edge
  Twips width;   ///< outside, the border included
  Twips height;  ///< outside, the border included

  /// Where it ends: the first place beside it, or below it.
  /// @{
  [[nodiscard]] constexpr Twips Right() const { return left + width; }
  [[nodiscard]] constexpr Twips Bottom() const { return top + height; }
  /// @}
  friend constexpr bool operator==(const Place&, const Place&) = default;
};

inline namespace literals {
/// Whole twips as a literal: `120_tw`.
constexpr Twips operator""_tw(unsigned long long value) { return {static_cast<float>(value)}; }
}  // namespace literals

}  // namespace brivane::host
