#include "app/program/LegiblePalette.h"

#include <algorithm>
#include <cmath>

namespace brivane::app {
namespace {

constexpr double kLegible = 4.5;

double Luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// The faintest mix of background and text that is legible.
QColor Faint(const QColor& back, const QColor& text) {
  for (int percent = 30; percent < 100; ++percent) {
    const auto mix = [percent](int from, int to) { return from + (to - from) * percent / 100; };
    const QColor color(mix(back.red(), text.red()), mix(back.green(), text.green()), mix(back.blue(), text.blue()));
    if (Contrast(color, back) >= kLegible) return color;
  }
  return text;
}

}  // namespace

double Contrast(const QColor& text, const QColor& back) {
  const double one = Luminance(text);
  const double other = Luminance(back);
  return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

QPalette LegiblePalette(const QPalette& desktop) {
  const QColor back = desktop.color(QPalette::Disabled, QPalette::Window);
  QPalette added;
  for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
    if (Contrast(desktop.color(QPalette::Disabled, role), back) < kLegible)
      added.setColor(QPalette::Disabled, role, Faint(back, desktop.color(QPalette::Active, role)));
  return added;
}

}  // namespace brivane::app
