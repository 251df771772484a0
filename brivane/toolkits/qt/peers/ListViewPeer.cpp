#include <QHeaderView>
#include <QStyledItemDelegate>
#include <QTreeWidget>

#include <brivane/controls/Surface.h>
#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/peers/ListViewPeer.h>

namespace brivane::qt {

using controls::Aspect;

namespace {

/// Above and below a heading together. A style sheet of the host's gives it no other height: the table fills its place.
constexpr int kHeadingMargin = 5;

/// Rows as high as their text needs, so that the whole table fits the place that the design gives it.
class TightRows final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    size.setHeight(option.fontMetrics.height() + 1);
    return size;
  }
};

}  // namespace

ListViewPeer::ListViewPeer(controls::ListView& list, qt::Toolkit& toolkit, QWidget* container)
    : WidgetPeer(list, toolkit, new QTreeWidget(container)), list_(list) {
  QTreeWidget& tree = Tree();
  tree.setItemDelegate(new TightRows(&tree));
  tree.setRootIsDecorated(false);
  tree.setItemsExpandable(false);
  tree.setAllColumnsShowFocus(true);
  tree.setUniformRowHeights(true);
  tree.setSelectionMode(QAbstractItemView::NoSelection);
  tree.setSelectionBehavior(QAbstractItemView::SelectRows);
  tree.setEditTriggers(QAbstractItemView::NoEditTriggers);
  tree.setTabKeyNavigation(false);
  // Its columns have their place in the design.
  tree.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  tree.header()->setSectionsMovable(false);
  tree.header()->setStretchLastSection(false);
  tree.header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignVCenter);
  tree.header()->setSectionsClickable(false);
  ShowColumns();
  ShowRows();
}

QTreeWidget& ListViewPeer::Tree() const { return static_cast<QTreeWidget&>(*Widget()); }

void ListViewPeer::Refresh(Aspect aspect) {
  if (Widget() == nullptr) return;
  switch (aspect) {
    case Aspect::Columns: return ShowColumns();
    case Aspect::Rows: return ShowRows();
    case Aspect::Selection: return ShowSelection();
    default: WidgetPeer::Refresh(aspect);
  }
}

void ListViewPeer::Rescale() {
  WidgetPeer::Rescale();
  if (Widget() != nullptr) ShowColumns();
}

void ListViewPeer::ShowColumns() {
  QStringList headings;
  for (const auto& column : list_.Columns()) headings.append(ToQt(column.heading));
  Tree().setColumnCount(static_cast<int>(headings.size()));
  Tree().setHeaderLabels(headings);
  const frame::Design& design = list_.Owner()->Table();
  const QFont font = Toolkit().Edge().Font(design, design.fontSize);
  Tree().header()->setFixedHeight(QFontMetrics(font).height() + kHeadingMargin);
  for (qsizetype i = 0; i < headings.size(); ++i)
    Tree().header()->resizeSection(
        static_cast<int>(i), Toolkit().Edge().Pixels(list_.Columns()[static_cast<std::size_t>(i)].width, {}).width());
}

void ListViewPeer::ShowRows() {
  QTreeWidget& tree = Tree();
  const auto& items = list_.Items();
  while (tree.topLevelItemCount() > static_cast<int>(items.size()))
    delete tree.takeTopLevelItem(tree.topLevelItemCount() - 1);
  while (tree.topLevelItemCount() < static_cast<int>(items.size())) new QTreeWidgetItem(&tree);
  for (std::size_t row = 0; row < items.size(); ++row) {
    QTreeWidgetItem& shown = *tree.topLevelItem(static_cast<int>(row));
    for (std::size_t i = 0; i < items[row].cells.size(); ++i) {
      const auto& cell = items[row].cells[i];
      const int column = static_cast<int>(i);
      if (const QString text = ToQt(cell.text); shown.text(column) != text) shown.setText(column, text);
      if (shown.font(column).bold() != cell.bold) {
        QFont font;
        font.setBold(cell.bold);
        // Of the font only the weight is the item's own.
        shown.setData(column, Qt::FontRole, cell.bold ? QVariant(font.resolve(tree.font())) : QVariant());
      }
    }
  }
  ShowSelection();
}

void ListViewPeer::ShowSelection() {
  QItemSelectionModel& selection = *Tree().selectionModel();
  const std::size_t row = list_.Selected();
  if (row == 0 || static_cast<int>(row) > Tree().topLevelItemCount()) return selection.clear();
  const QModelIndex index = Tree().model()->index(static_cast<int>(row) - 1, 0);
  selection.select(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  selection.setCurrentIndex(index, QItemSelectionModel::NoUpdate);
}

}  // namespace brivane::qt
