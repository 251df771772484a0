#pragma once

class QObject;
class QPalette;
class QWidget;

namespace brivane::qt {

/// Whether a palette is one for people who need contrast: white on black or black on white, with nothing between them.
[[nodiscard]] bool IsHighContrast(const QPalette& palette);

/// Draws the edge of a box, a list, a button, a tick, an option or a frame in the colour of the text where the palette
/// has high contrast: a style mixes edges from the background, and on black there is nothing to mix.
void OutlineInHighContrast(QWidget& widget);

/// Does so for all that has an edge in every window that this program shows for the first time from now on, for as long
/// as the owner lives. From the thread of the widgets.
void OutlineAllInHighContrast(QObject& owner);

}  // namespace brivane::qt
