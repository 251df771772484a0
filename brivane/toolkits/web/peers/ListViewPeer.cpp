#include <algorithm>

#include <brivane/toolkits/web/peers/ListViewPeer.h>

namespace brivane::web {

using controls::Aspect;
using controls::ListView;

namespace {

/// Whether rows are those that were, with more cells in the last and more rows after it.
bool GoOnFrom(const std::vector<ListView::Item>& were, const std::vector<ListView::Item>& items) {
  if (were.empty()) return true;
  if (were.size() > items.size() || !std::equal(were.begin(), were.end() - 1, items.begin())) return false;
  const auto& cells = were.back().cells;
  const auto& more = items[were.size() - 1].cells;
  return cells.size() <= more.size() && std::equal(cells.begin(), cells.end(), more.begin());
}

}  // namespace

ListViewPeer::ListViewPeer(controls::ListView& list, web::Toolkit& toolkit) : NodePeer(list, toolkit), list_(list) {
  ShowColumns();
  ShowRows();
}

void ListViewPeer::Refresh(Aspect aspect) {
  switch (aspect) {
    case Aspect::Columns: return ShowColumns();
    case Aspect::Rows: return ShowRows();
    case Aspect::Selection:
      selected_ = list_.Selected();
      return Page().Show(Node(), aspect, static_cast<double>(selected_));
    default: return NodePeer::Refresh(aspect);
  }
}

void ListViewPeer::ShowColumns() const {
  Page().Show(Node(), Aspect::Columns, 0);
  for (const auto& column : list_.Columns())
    Page().Show(Node(), Shows::Heading, double{column.width.value}, column.heading);
}

/// A list is filled by one row, and one cell of it, at a time: what was told before is told again only where it is not
/// as it was.
void ListViewPeer::ShowRows() {
  const auto& items = list_.Items();
  if (selected_ != list_.Selected() || !GoOnFrom(told_, items)) {
    Page().Show(Node(), Aspect::Rows, 0);
    told_.clear();
  }
  const auto tell = [this](const ListView::Item& item, std::size_t from) {
    for (std::size_t i = from; i < item.cells.size(); ++i)
      Page().Show(Node(), Shows::Cell, item.cells[i].bold ? 1 : 0, item.cells[i].text);
  };
  const std::size_t known = told_.size();
  if (known > 0) tell(items[known - 1], told_.back().cells.size());
  for (std::size_t row = known; row < items.size(); ++row) {
    Page().Show(Node(), Shows::Row, row + 1 == list_.Selected() ? 1 : 0);
    tell(items[row], 0);
  }
  told_ = items;
  selected_ = list_.Selected();
}

}  // namespace brivane::web
