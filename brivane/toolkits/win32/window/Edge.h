#pragma once

#include <brivane/toolkits/win32/window/WindowsApi.h>

#include <optional>

#include <brivane/host/Color.h>
#include <brivane/host/Twips.h>

/// Where twips and colours become what Windows draws, and back.
namespace brivane::win32 {

/// Turns twips into pixels and back. The scale is that of the screen: 1 at 96 dots per inch.
class Edge {
 public:
  explicit Edge(double scale = 1) : scale_(scale) {}

  [[nodiscard]] int Pixel(float twips) const;
  /// Edges are rounded, so that controls that touch in twips touch in pixels.
  [[nodiscard]] RECT Pixels(const host::Place& place) const;
  [[nodiscard]] SIZE Pixels(host::Twips width, host::Twips height) const;
  [[nodiscard]] host::Twips ToTwips(int pixels) const;
  /// Height of a font in pixels, from its size in points.
  [[nodiscard]] int FontPixels(float points) const;
  /// A length that is designed in pixels of 96 dots per inch.
  [[nodiscard]] int Designed(int pixels) const;
  [[nodiscard]] double Scale() const { return scale_; }

 private:
  double scale_;
};

[[nodiscard]] inline LONG WidthOf(const RECT& rect) { return rect.right - rect.left; }
[[nodiscard]] inline LONG HeightOf(const RECT& rect) { return rect.bottom - rect.top; }

/// The colour, or nothing for a colour of the system.
[[nodiscard]] std::optional<COLORREF> OwnColor(host::Color color);
/// The colour as it is drawn, one of the system looked up.
[[nodiscard]] COLORREF DrawnColor(host::Color color);
/// Text that can be read on a background.
[[nodiscard]] COLORREF TextOn(COLORREF background);

}  // namespace brivane::win32
