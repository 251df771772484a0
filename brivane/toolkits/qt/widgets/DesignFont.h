#pragma once

#include <QFont>

class QWidget;

namespace brivane::qt {

/// Gives a widget, and what stands in it, a font of the design for good. Texts have the room that they need in that
/// font, so a style sheet of the host's, on the application or around the widget, does not change it: under one, Qt
/// forgets the fonts that widgets take over from each other, and a rule may set another. All else that a style sheet
/// says holds.
void SetDesignFont(QWidget& widget, const QFont& font);

}  // namespace brivane::qt
