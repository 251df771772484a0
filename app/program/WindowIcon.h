#pragma once

#include <QIcon>

namespace brivane::app {

/// The program's picture, drawn for the sizes that a desktop asks: a folder with columns that grow.
[[nodiscard]] QIcon WindowIcon();

}  // namespace brivane::app
