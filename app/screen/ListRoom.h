#pragma once

namespace brivane::app {

/// How a width is divided between the list and the column beside it, in pixels.
struct Room {
  int width;   ///< of both
  int wanted;  ///< for the list, as a person set it
  int least;   ///< with which a list can be read
  int editor;  ///< what the column needs to be edited
  bool listHasFocus;
};

/// How wide the list is. It gives way before the editor does; where not even the least width is left for it, it stands
/// there only while it has the focus.
[[nodiscard]] int ListWidth(const Room& room);

}  // namespace brivane::app
