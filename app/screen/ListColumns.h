#pragma once

namespace brivane::app {

/// How wide the parts of the list's rows have to be, in pixels.
struct ListWidths {
  int naam;    ///< least width of the name
  int amount;  ///< of the widest amount
  int sign;    ///< how a column stands, by its sign
  int stand;   ///< the same in words
  int termijn;
  int aanvang;
};

/// What of a row has room beside its name and its amount, which are always there.
struct ListParts {
  bool standInWords = false;
  bool termijn = false;
  bool aanvang = false;
  friend bool operator==(const ListParts&, const ListParts&) = default;
};

/// What has room in a list: the term before the words of how a column stands, and these before the day it starts.
[[nodiscard]] ListParts PartsWithRoom(int width, const ListWidths& widths);

}  // namespace brivane::app
