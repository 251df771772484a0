#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

#include <brivane/frame/Graphemes.h>
#include <brivane/frame/LayoutHelpers.h>

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

/// How far from the place sought a text is shortened character by character, in bytes.
constexpr std::size_t kNear = 32;

/// A beginning of a text that ends before `end`, where a user-perceived character ends.
std::string_view Beginning(std::string_view text, std::size_t end) {
  // Not inside a code point, which has at most three bytes after the first.
  for (int i = 0; i < 3 && end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U; ++i) --end;
  return end == 0 ? std::string_view() : text.substr(0, LastGraphemeStart(text.substr(0, end)));
}

/// A length that a text which does not fit can be cut to before it is shortened character by character: what is passed
/// over does not fit either, as what is longer by kNear bytes or more is no narrower.
///
/// A long text would be measured once for each of its characters; so it is measured some tens of times.
template <class Fits> std::size_t LeapTo(std::string_view text, const Fits& fits) {
  std::size_t fitting = 0;
  std::size_t tooLong = text.size();
  while (tooLong - fitting > kNear) {
    const std::size_t middle = fitting + (tooLong - fitting) / 2;
    (fits(Beginning(text, middle)) ? fitting : tooLong) = middle;
  }
  const std::size_t end = tooLong + 2 * kNear;
  return end < text.size() ? Beginning(text, end).size() : text.size();
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
      const auto fits = [&](std::string_view part) { return !(surface->TextWidth(part) + ellipsis > width); };
      text.resize(LeapTo(text, fits));
      while (!text.empty() && !fits(text)) text.resize(LastGraphemeStart(text));
      text += kEllipsis;
    }
  } catch (...) {
    // A caption that cannot be measured is shown as far as it got.
  }
  surface->SetFontBold(before);
  return text;
}

}  // namespace brivane::frame
