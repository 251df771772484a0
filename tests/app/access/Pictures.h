#pragma once

#include <QPalette>
#include <QWidget>
#include <string>

namespace brivane::app {

/// White on black, with nothing in between: what a person who needs contrast sets.
[[nodiscard]] QPalette ContrastPalette();

/// Paints a window into FOLDER/NAME-light.png, -dark.png and -contrast.png, as it is on a screen of that size.
[[nodiscard]] bool TakePictures(QWidget& window, const std::string& folder, const std::string& size,
                                const std::string& name);

}  // namespace brivane::app
