#include <brivane/toolkits/web/peers/ListViewPeer.h>

namespace brivane::web {

using controls::Aspect;

ListViewPeer::ListViewPeer(controls::ListView& list, web::Toolkit& toolkit) : NodePeer(list, toolkit), list_(list) {
  ShowColumns();
  ShowRows();
}

void ListViewPeer::Refresh(Aspect aspect) {
  switch (aspect) {
    case Aspect::Columns: return ShowColumns();
    case Aspect::Rows: return ShowRows();
    case Aspect::Selection: return Page().Show(Node(), aspect, static_cast<double>(list_.Selected()));
    default: return NodePeer::Refresh(aspect);
  }
}

void ListViewPeer::ShowColumns() const {
  Page().Show(Node(), Aspect::Columns, 0);
  for (const auto& column : list_.Columns())
    Page().Show(Node(), Shows::Heading, double{column.width.value}, column.heading);
}

void ListViewPeer::ShowRows() const {
  Page().Show(Node(), Aspect::Rows, 0);
  std::size_t place = 0;
  for (const auto& item : list_.Items()) {
    Page().Show(Node(), Shows::Row, ++place == list_.Selected() ? 1 : 0);
    for (const auto& cell : item.cells) Page().Show(Node(), Shows::Cell, cell.bold ? 1 : 0, cell.text);
  }
}

}  // namespace brivane::web
