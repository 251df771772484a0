#include "app/screen/ListColumns.h"

namespace brivane::app {

ListParts PartsWithRoom(int width, const ListWidths& widths) {
  ListParts parts;
  int room = width - widths.naam - widths.amount - widths.sign;
  parts.termijn = room >= widths.termijn;
  if (!parts.termijn) return parts;
  room -= widths.termijn;
  parts.standInWords = room >= widths.stand - widths.sign;
  if (!parts.standInWords) return parts;
  room -= widths.stand - widths.sign;
  parts.aanvang = room >= widths.aanvang;
  return parts;
}

}  // namespace brivane::app
