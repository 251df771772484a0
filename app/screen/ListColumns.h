#pragma once

namespace brivane::app {

/// How wide the parts of the list's rows have to be, in pixels.
struct ListWidths {
  int naam;    ///< least width of the name
  int amount;  ///< of the widest amount
  int stand;   ///< how a column stands, in words
  int termijn;
  int aanvang;
};

/// What of a row has room beside its name and its amount, which are always there.
struct ListParts {
  bool stand = false;
  bool termijn = false;
  bool aanvang = false;
  friend bool operator==(const ListParts&, const ListParts&) = default;
};

/// What has room in a list: the term before how a column stands, and this before the day it starts.
[[nodiscard]] ListParts PartsWithRoom(int width, const ListWidths& widths);

}  // namespace brivane::app
