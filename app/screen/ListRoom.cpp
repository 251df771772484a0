#include "app/screen/ListRoom.h"

#include <algorithm>

namespace brivane::app {

int ListWidth(const Room& room) {
  const int left = room.width - room.editor;
  if (left >= room.least) return std::clamp(room.wanted, room.least, left);
  return room.listHasFocus ? std::min(room.least, room.width) : 0;
}

}  // namespace brivane::app
