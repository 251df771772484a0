#include "app/screen/KolommenTree.h"

#include <QMenu>
#include <QShortcut>
#include <utility>

#include "app/screen/Actions.h"

namespace brivane::app {
namespace {

constexpr int kLeastCharacters = 24;  ///< least width, in characters

}  // namespace

KolommenTree::KolommenTree(std::shared_ptr<dossier::Dossier> dossier, QWidget* parent)
    : QTreeView(parent), model_(new KolommenModel(this)) {
  setObjectName(QStringLiteral("kolommen"));
  setAccessibleName(QStringLiteral("Leningen en vrije kolommen"));
  setModel(model_);
  setHeaderHidden(true);
  setUniformRowHeights(true);
  setEditTriggers(NoEditTriggers);
  setDragDropMode(DragDrop);
  setDefaultDropAction(Qt::MoveAction);
  setContextMenuPolicy(Qt::ActionsContextMenu);
  // A click takes no focus of itself: a box that refuses keeps it, and says so once.
  setFocusPolicy(Qt::TabFocus);
  setMinimumWidth(fontMetrics().averageCharWidth() * kLeastCharacters);

  const auto later = [this](auto task) { QMetaObject::invokeMethod(this, task, Qt::QueuedConnection); };
  connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this, later] {
    if (selecting_) return;
    later([this] {
      if (chosen && currentIndex().isValid()) chosen(model_->PlaceOf(currentIndex()));
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
}

bool KolommenTree::Refresh(const Place& shown) {
  const bool previous = std::exchange(selecting_, true);
  const bool changed = model_->Refresh();
  if (changed) {
    expandToDepth(0);
    setCurrentIndex(model_->IndexOf(shown));
  }
  selecting_ = previous;
  return changed;
}

void KolommenTree::Select(const Place& place) {
  const bool previous = std::exchange(selecting_, true);
  setCurrentIndex(model_->IndexOf(place));
  scrollTo(currentIndex());
  selecting_ = previous;
}

Place KolommenTree::Neighbour(const Place& kolom) const {
  const QModelIndex here = model_->IndexOf(kolom);
  for (const int row : {here.row() + 1, here.row() - 1}) {
    if (const QModelIndex neighbour = here.siblingAtRow(row); neighbour.isValid()) return model_->PlaceOf(neighbour);
  }
  return {kolom.Len_Id, std::nullopt};
}

void KolommenTree::SetActions(const Actions& actions) {
  addActions(
      {actions.add, actions.duplicate, actions.move->menuAction(), actions.afwijking->menuAction(), actions.remove});
  const auto key = [this](Qt::Key button, QAction* action) {
    auto* shortcut = new QShortcut(button, this);
    shortcut->setContext(Qt::WidgetShortcut);
    connect(shortcut, &QShortcut::activated, action, &QAction::trigger);
  };
  key(Qt::Key_Insert, actions.add);
  key(Qt::Key_Delete, actions.remove);
}

}  // namespace brivane::app
