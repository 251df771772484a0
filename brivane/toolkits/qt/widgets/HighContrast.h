#pragma once

class QPalette;
class QWidget;

namespace brivane::qt {

/// Whether a palette is one for people who need contrast: white on black or black on white, with nothing between them.
[[nodiscard]] bool IsHighContrast(const QPalette& palette);

/// Draws the edge of a box, a list, a button, a tick, an option or a frame in the colour of the text where the palette
/// has high contrast: a style mixes edges from the background, and on black there is nothing to mix.
void OutlineInHighContrast(QWidget& widget);

}  // namespace brivane::qt
