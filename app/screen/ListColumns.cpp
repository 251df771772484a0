#include "app/screen/ListColumns.h"

namespace brivane::app {

ListParts PartsWithRoom(int width, const ListWidths& widths) {
  ListParts parts;
  int room = width - widths.naam - widths.amount;
  parts.termijn = room >= widths.termijn;
  if (!parts.termijn) return parts;
  room -= widths.termijn;
  parts.stand = room >= widths.stand;
  if (!parts.stand) return parts;
  room -= widths.stand;
  parts.aanvang = room >= widths.aanvang;
  return parts;
}

}  // namespace brivane::app
