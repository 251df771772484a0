#include "frame/LayoutHelpers.h"

#include <array>
#include <optional>

#include "frame/Graphemes.h"

namespace brivane::frame {

namespace {

using host::Measure;

void Scale(host::Control& control, Measure measure, float factor) {
  if (const std::optional<float> value = control.Read(measure)) control.Write(measure, *value * factor);
}

void ScaleControls(std::span<host::Control* const> controls, float factor, ControlNames keepSize) {
  for (host::Control* control : controls) {
    for (const Measure measure : {Measure::Top, Measure::Left, Measure::FontSize}) Scale(*control, measure, factor);
    if (!Contains(control->Name(), keepSize))
      for (const Measure measure : {Measure::Width, Measure::Height}) Scale(*control, measure, factor);
    for (const Measure measure : {Measure::X1, Measure::X2, Measure::Y1, Measure::Y2}) Scale(*control, measure, factor);
  }
}

std::optional<float> Factor(const host::Desktop& desktop) {
  const float x = desktop.TwipsPerPixelX();
  const float y = desktop.TwipsPerPixelY();
  if (x == host::kTwipsPerPixel && y == host::kTwipsPerPixel) return std::nullopt;
  return y / host::kTwipsPerPixel;
}

}  // namespace

void ScaleToResolution(const host::Desktop& desktop, std::span<host::Control* const> controls, host::Surface& surface,
                       ControlNames keepSize) {
  const std::optional<float> factor = Factor(desktop);
  if (!factor) return;
  Scale(surface, Measure::Height, *factor);
  Scale(surface, Measure::Width, *factor);
  ScaleControls(controls, *factor, keepSize);
}

void ScaleToResolution(const host::Desktop& desktop, std::span<host::Control* const> controls, host::Form& form,
                       ControlNames keepSize) {
  const std::optional<float> factor = Factor(desktop);
  if (!factor) return;
  const host::Twips frame = form.Place().height - form.ScaleHeight();
  form.Write(Measure::Height, (frame + form.ScaleHeight() * *factor).value);
  Scale(form, Measure::Width, *factor);
  ScaleControls(controls, *factor, keepSize);
}

void ReplaceColor(std::span<host::Control* const> controls, host::Color color, ControlNames skip,
                  host::Color replaced) {
  for (host::Control* control : controls) {
    try {
      if (control->BackColor() == replaced && !Contains(control->Name(), skip)) control->SetBackColor(color);
    } catch (...) {
      // A control that cannot be coloured keeps its colour; the others still get theirs.
    }
  }
}

std::string FitText(host::DrawingSurface* surface, std::string text, host::Twips width, bool bold) {
  static constexpr std::string_view kEllipsis = "...";
  if (surface == nullptr) return text;
  const bool before = surface->FontBold();
  surface->SetFontBold(bold);
  try {
    if (surface->TextWidth(text) > width) {
      const host::Twips ellipsis = surface->TextWidth(kEllipsis);
      while (!text.empty() && surface->TextWidth(text) + ellipsis > width) text.resize(LastGraphemeStart(text));
      text += kEllipsis;
    }
  } catch (...) {
    // A caption that cannot be measured is shown as far as it got.
  }
  surface->SetFontBold(before);
  return text;
}

}  // namespace brivane::frame
