#pragma once

#include <QIcon>
#include <cstdint>

namespace brivane::designer {

/// What a widget looks like in small, in the box of widgets.
enum class Subject : std::uint8_t { Editor, Explanation };

/// A sheet with a heading and lines: boxes for the editor, yes and no for the explanation.
[[nodiscard]] QIcon Icon(Subject subject);

}  // namespace brivane::designer
