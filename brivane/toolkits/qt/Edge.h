#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>
#include <optional>

#include <brivane/frame/Design.h>
#include <brivane/host/Color.h>
#include <brivane/host/Export.h>
#include <brivane/host/Twips.h>

/// Where twips, colours and captions become what Qt draws, and back.
namespace brivane::qt {

// A pixel of Qt does not depend on the screen: Qt scales those itself.
using host::kTwipsPerPixel;

/// Turns twips into pixels and back. A scale other than 1 follows a font of the host that is larger or
/// smaller than the font of the design.
class BRIVANE_API Edge {
 public:
  /// The scale that a font of the host asks for: 1 where it is as large as the design's font of 9 points.
  [[nodiscard]] static Edge OfFont(const QFont& font);
  /// At 1 there are 15 twips to a pixel of Qt.
  explicit Edge(double scale = 1) : scale_(scale) {}

  /// In pixels of Qt. Edges are rounded, so that controls that touch in twips touch in pixels.
  /// @{
  [[nodiscard]] QRect Pixels(const host::Place& place) const;
  [[nodiscard]] QSize Pixels(host::Twips width, host::Twips height) const;
  /// @}
  /// A number of pixels in twips.
  [[nodiscard]] host::Twips ToTwips(int pixels) const;
  /// The typeface of a design at a size of that design, as it is drawn.
  [[nodiscard]] QFont Font(const frame::Design& design, float points) const;

  friend bool operator==(const Edge&, const Edge&) = default;

 private:
  [[nodiscard]] int Pixel(float twips) const;

  double scale_;
};

/// The colour, or nothing for a colour of the system, which is left to the palette.
[[nodiscard]] BRIVANE_API std::optional<QColor> ToQt(host::Color color);
/// A colour of Qt; how far it can be seen through is left out.
[[nodiscard]] BRIVANE_API host::Color FromQt(const QColor& color);
/// Text that can be read on a background.
[[nodiscard]] BRIVANE_API QColor TextOn(const QColor& background);

/// The caption of a control as Qt shows it: with its mnemonic, and with "&" shown where code put it there.
[[nodiscard]] BRIVANE_API QString ShownCaption(const frame::Row& row, const std::string& caption);
/// The same for a label that leads to no control.
[[nodiscard]] BRIVANE_API QString PlainCaption(const std::string& caption);

}  // namespace brivane::qt
