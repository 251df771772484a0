#include "app/screen/KolommenTree.h"

#include <QEvent>
#include <QHeaderView>
#include <QMenu>
#include <QPainter>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

#include "app/screen/Actions.h"
#include "app/screen/ListColumns.h"
#include <brivane/toolkits/qt/widgets/HighContrast.h>

namespace brivane::app {
namespace {

constexpr int kLeastCharacters = 26;      ///< least width, in characters
constexpr int kLeastNameCharacters = 24;  ///< of what a column is called
constexpr int kFocusFrame = 2;            ///< pixels

/// Leaves room in a row for the frame of the focus. Where how a column stands has no room of its own, its sign goes
/// before the name of one that does not follow.
class RowDelegate final : public QStyledItemDelegate {
 public:
  RowDelegate(QTreeView& tree, const KolommenModel& model) : QStyledItemDelegate(&tree), tree_(tree), model_(model) {}
  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 2 * kFocusFrame + 2);
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.column() != KolommenModel::kNaam || !tree_.isColumnHidden(KolommenModel::kStand)) return;
    const KolomStand stand = model_.StandOfRow(index);
    if (stand == KolomStand::WijktAf || stand == KolomStand::Nieuw)
      option->text.prepend(StandTeken(stand) + QChar(QChar::Nbsp));
  }

 private:
  QTreeView& tree_;
  const KolommenModel& model_;
};

/// What a cell needs around a text.
int WithMargins(const QWidget& view, int width) {
  return width + 2 * (view.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &view) + 1) + 2;
}

int WidestOf(const QWidget& view, const QStringList& texts) {
  int widest = 0;
  for (const QString& text : texts) widest = std::max(widest, view.fontMetrics().horizontalAdvance(text));
  return WithMargins(view, widest);
}

}  // namespace

KolommenTree::KolommenTree(std::shared_ptr<dossier::Dossier> dossier, QWidget* parent)
    : QTreeView(parent), model_(new KolommenModel(this)) {
  setObjectName(QStringLiteral("kolommen"));
  setAccessibleName(QStringLiteral("Leningen en vrije kolommen"));
  setModel(model_);
  setItemDelegate(new RowDelegate(*this, *model_));
  setUniformRowHeights(true);
  // There are two levels, and names to read.
  setIndentation(fontMetrics().averageCharWidth() * 3 / 2);
  setAllColumnsShowFocus(true);
  setEditTriggers(NoEditTriggers);
  setDragDropMode(DragDrop);
  setDefaultDropAction(Qt::MoveAction);
  setContextMenuPolicy(Qt::ActionsContextMenu);
  // A click takes no focus of itself: a box that refuses keeps it, and says so once.
  setFocusPolicy(Qt::TabFocus);
  setMinimumWidth(LeastWidth());
  header()->setSectionsMovable(false);
  header()->setSectionsClickable(true);
  header()->setSectionResizeMode(QHeaderView::Fixed);
  header()->setMinimumSectionSize(1);
  header()->setStretchLastSection(false);
  header()->setContextMenuPolicy(Qt::PreventContextMenu);

  const auto later = [this](auto task) { QMetaObject::invokeMethod(this, task, Qt::QueuedConnection); };
  connect(header(), &QHeaderView::sectionClicked, this, &KolommenTree::SortBy);
  connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this, later] {
    if (selecting_) return;
    later([this] {
      if (chosen && currentIndex().isValid()) chosen(Selected());
    });
  });
  connect(this, &QTreeView::clicked, this, [this, later](const QModelIndex& index) {
    later([this, place = model_->PlaceOf(index)] {
      if (clickEnded) clickEnded(place);
    });
  });
  model_->moveAsked = [this, later](Place kolom, std::int16_t toLen_Id) {
    later([this, kolom, toLen_Id] {
      if (dragged) dragged(kolom, toLen_Id);
    });
  };
  model_->Show(std::move(dossier));
  expandToDepth(0);
  FitColumns();
}

bool KolommenTree::Refresh(const Place& shown) {
  const QScopedValueRollback selecting(selecting_, true);
  const bool changed = model_->Refresh();
  if (changed) ShowAnew(shown);
  return changed;
}

void KolommenTree::ShowAnew(const Place& place) {
  const QScopedValueRollback selecting(selecting_, true);
  expandToDepth(0);
  setCurrentIndex(model_->IndexOf(place));
  FitColumns();
}

void KolommenTree::Select(const Place& place) {
  const QScopedValueRollback selecting(selecting_, true);
  if (IsFiltered() && !model_->IndexOf(place).isValid()) {
    SetFilter(QString(), place);
    if (filterPutAway) filterPutAway();
  }
  setCurrentIndex(model_->IndexOf(place));
  scrollTo(currentIndex());
}

void KolommenTree::SetFilter(const QString& typed, const Place& shown) {
  const QScopedValueRollback selecting(selecting_, true);
  model_->SetFilter(typed);
  ShowAnew(shown);
  if (currentIndex().isValid()) scrollTo(currentIndex());
}

void KolommenTree::EnterAtFirst() {
  const std::vector<Place> places = Kolommen();
  if (!places.empty()) setCurrentIndex(model_->IndexOf(places.front()));
  setFocus(Qt::OtherFocusReason);
}

void KolommenTree::RedrawText(const Place& place) {
  model_->RedrawText(place);
  FitColumns();
}

void KolommenTree::SortBy(int cell) {
  if (sortedBy_ != cell) {
    sortedBy_ = cell;
    order_ = Qt::AscendingOrder;
  } else if (order_ == Qt::AscendingOrder) {
    order_ = Qt::DescendingOrder;
  } else {
    sortedBy_ = KolommenModel::kEigenVolgorde;
    order_ = Qt::AscendingOrder;
  }
  header()->setSortIndicatorShown(sortedBy_ != KolommenModel::kEigenVolgorde);
  header()->setSortIndicator(sortedBy_, order_);
  const Place place = Selected();
  const QScopedValueRollback selecting(selecting_, true);
  model_->sort(sortedBy_, order_);
  ShowAnew(place);
  scrollTo(currentIndex());
}

int KolommenTree::LeastWidth() const { return fontMetrics().averageCharWidth() * kLeastCharacters; }

void KolommenTree::FitColumns() {
  const auto heading = [this](int cell) {
    return model_->headerData(cell, Qt::Horizontal, Qt::DisplayRole).toString() + QStringLiteral("  ▾");
  };
  const int room = viewport()->width();
  const ListWidths widths{.naam = fontMetrics().averageCharWidth() * kLeastNameCharacters + indentation(),
                          .amount = WidestOf(*this, model_->WidestAmounts() << heading(KolommenModel::kBedrag)),
                          .stand = WidestOf(*this, {QStringLiteral("≠ wijkt af"), heading(KolommenModel::kStand)}),
                          .termijn = WidestOf(*this, {QStringLiteral("kwartaal"), QStringLiteral("eenmalig")}),
                          .aanvang = WidestOf(*this, {QStringLiteral("00-00-0000"), heading(KolommenModel::kAanvang)})};
  const ListParts parts = PartsWithRoom(room, widths);
  setColumnHidden(KolommenModel::kStand, !parts.stand);
  setColumnHidden(KolommenModel::kTermijn, !parts.termijn);
  setColumnHidden(KolommenModel::kAanvang, !parts.aanvang);
  const int naam = room - widths.amount - (parts.termijn ? widths.termijn : 0) - (parts.stand ? widths.stand : 0) -
                   (parts.aanvang ? widths.aanvang : 0);
  setColumnWidth(KolommenModel::kNaam, std::max(naam, 1));
  setColumnWidth(KolommenModel::kStand, widths.stand);
  setColumnWidth(KolommenModel::kBedrag, widths.amount);
  setColumnWidth(KolommenModel::kTermijn, widths.termijn);
  setColumnWidth(KolommenModel::kAanvang, widths.aanvang);
}

void KolommenTree::resizeEvent(QResizeEvent* event) {
  QTreeView::resizeEvent(event);
  FitColumns();
}

void KolommenTree::changeEvent(QEvent* event) {
  QTreeView::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  setMinimumWidth(LeastWidth());
  FitColumns();
}

void KolommenTree::drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QRect row = QRect(0, option.rect.top(), viewport()->width(), option.rect.height());
  if (index.parent().isValid()) {
    QTreeView::drawRow(painter, option, index);
  } else {
    // A loan has its name alone, over the whole row.
    QStyleOptionViewItem whole(option);
    whole.rect = row;
    whole.showDecorationSelected = true;
    whole.font = index.data(Qt::FontRole).value<QFont>();
    whole.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(index));
    style()->drawPrimitive(QStyle::PE_PanelItemViewRow, &whole, painter, this);
    const QRect branch(row.left(), row.top(), indentation(), row.height());
    drawBranches(painter, branch, index);
    whole.rect.setLeft(branch.right() + 1);
    itemDelegateForIndex(index)->paint(painter, whole, index);
  }
  if (!hasFocus() || index.siblingAtColumn(0) != currentIndex().siblingAtColumn(0)) return;
  // The colour of a selection alone does not tell where the keys go.
  painter->save();
  // In high contrast a selection is as bright as the text: its own dark text makes a frame inside it.
  const bool inside = qt::IsHighContrast(palette());
  const int inset = kFocusFrame / 2 + (inside ? kFocusFrame / 2 : 0);
  painter->setPen(QPen(palette().color(inside ? QPalette::HighlightedText : QPalette::Text), kFocusFrame));
  painter->setBrush(Qt::NoBrush);
  painter->drawRect(row.adjusted(inset, inset, -inset, -inset));
  painter->restore();
}

void KolommenTree::focusInEvent(QFocusEvent* event) {
  QTreeView::focusInEvent(event);
  viewport()->update();
}

void KolommenTree::focusOutEvent(QFocusEvent* event) {
  QTreeView::focusOutEvent(event);
  viewport()->update();
}

Place KolommenTree::Neighbour(const Place& kolom) const {
  const QModelIndex here = model_->IndexOf(kolom);
  for (const int row : {here.row() + 1, here.row() - 1}) {
    if (const QModelIndex neighbour = here.siblingAtRow(row); neighbour.isValid()) return model_->PlaceOf(neighbour);
  }
  return {kolom.Len_Id, std::nullopt};
}

void KolommenTree::SetActions(const Actions& actions) {
  addActions({actions.addMenu->menuAction(), actions.duplicate, actions.duplicateTo->menuAction(),
              actions.move->menuAction(), actions.afwijking->menuAction(), actions.remove, actions.sort->menuAction()});
  const auto key = [this](Qt::Key button, QAction* action) {
    auto* shortcut = new QShortcut(button, this);
    shortcut->setContext(Qt::WidgetShortcut);
    connect(shortcut, &QShortcut::activated, action, &QAction::trigger);
  };
  key(Qt::Key_Insert, actions.add);
  key(Qt::Key_Delete, actions.remove);
}

}  // namespace brivane::app
