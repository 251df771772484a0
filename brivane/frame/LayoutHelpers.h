#pragma once

#include <span>
#include <string>
#include <string_view>

#include <brivane/host/Color.h>
#include <brivane/host/Twips.h>
#include <brivane/host/controls/Control.h>
#include <brivane/host/controls/Desktop.h>
#include <brivane/host/controls/DrawingSurface.h>
#include <brivane/host/controls/Form.h>

/// The layout routines that all three objects share.
namespace brivane::frame {

using ControlNames = std::span<const std::string_view>;

/// Scales a surface and its controls so that they keep their designed size in pixels: every measure
/// times (vertical twips per pixel) / 15. Does nothing where both directions have 15 twips to a pixel.
/// Controls named in `keepSize` keep their width and height.
void ScaleToResolution(const host::Desktop& desktop, std::span<host::Control* const> controls, host::Surface& surface,
                       ControlNames keepSize = {});
/// The same for a form, whose frame and title keep their height.
void ScaleToResolution(const host::Desktop& desktop, std::span<host::Control* const> controls, host::Form& form,
                       ControlNames keepSize = {});

/// Gives every control whose background is `replaced` the new colour, but for those named in `skip`.
/// A control without a background colour, or one that fails, is passed over.
void ReplaceColor(std::span<host::Control* const> controls, host::Color color, ControlNames skip = {},
                  host::Color replaced = host::kButtonFace);

/// Shortens a UTF-8 text with "..." to a width, measured on `surface` in bold or not. Drops whole
/// user-perceived characters. Without a surface the text comes back unchanged; when measuring fails it
/// comes back as it stands at that moment.
[[nodiscard]] std::string FitText(host::DrawingSurface* surface, std::string text, host::Twips width,
                                  bool bold = false);

/// The first when it is smaller than the second, else the second.
template <class T> [[nodiscard]] constexpr T Smaller(T first, T second) { return first < second ? first : second; }
/// The first when it is larger than the second, else the second.
template <class T> [[nodiscard]] constexpr T Larger(T first, T second) { return first > second ? first : second; }

/// True when some element of the list equals the value.
template <class T, class List> [[nodiscard]] constexpr bool Contains(const T& value, const List& list) {
  for (const auto& element : list)
    if (element == value) return true;
  return false;
}

}  // namespace brivane::frame
