#pragma once

#include <QWidget>
#include <string>
#include <vector>

namespace brivane::test {

/// What is cut off of the texts that can be seen within a widget, one line for each: captions, labels, ticks, options,
/// buttons, the chosen and the other entries of lists, what stands in boxes, headings and cells of tables. A text is
/// measured in the font that its widget really has, against the room that its style really gives it.
[[nodiscard]] std::vector<std::string> CutOffWithin(const QWidget& area);

}  // namespace brivane::test
