#pragma once

#include <QPalette>

namespace brivane::app {

/// How well one colour reads on another, from 1 (not at all) to 21 (black on white): the ratio of their luminances, as
/// the guidelines for accessible pages define it.
[[nodiscard]] double Contrast(const QColor& text, const QColor& back);

/// What is added to a desktop's palette so that what is disabled can be read too: a contrast of at least 4.5 on boxes
/// and on the window. A palette whose disabled texts are legible is left as it is.
[[nodiscard]] QPalette LegiblePalette(const QPalette& desktop);

}  // namespace brivane::app
