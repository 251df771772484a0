#include "app/screen/KolommenTree.h"

#include <QMenu>
#include <QShortcut>
#include <utility>

#include "app/screen/Actions.h"

namespace brivane::dossier {
namespace {

constexpr int kMinstensTekens = 24;  ///< least width, in characters

}  // namespace

Kolommenboom::Kolommenboom(std::shared_ptr<Dossier> dossier, QWidget* parent)
    : QTreeView(parent), model_(new Kolommenmodel(this)) {
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
  setMinimumWidth(fontMetrics().averageCharWidth() * kMinstensTekens);

  const auto later = [this](auto taak) { QMetaObject::invokeMethod(this, taak, Qt::QueuedConnection); };
  connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this, later] {
    if (selecteert_) return;
    later([this] {
      if (gekozen && currentIndex().isValid()) gekozen(model_->PlekVan(currentIndex()));
    });
  });
  connect(this, &QTreeView::clicked, this, [this, later](const QModelIndex& index) {
    later([this, plek = model_->PlekVan(index)] {
      if (aangeklikt) aangeklikt(plek);
    });
  });
  model_->verplaatsGevraagd = [this, later](Plek kolom, std::int16_t naarLen_Id) {
    later([this, kolom, naarLen_Id] {
      if (gesleept) gesleept(kolom, naarLen_Id);
    });
  };
  model_->Toon(std::move(dossier));
  expandAll();
}

bool Kolommenboom::Vernieuw(const Plek& getoond) {
  const bool vorige = std::exchange(selecteert_, true);
  const bool anders = model_->Vernieuw();
  if (anders) {
    expandAll();
    setCurrentIndex(model_->IndexVan(getoond));
  }
  selecteert_ = vorige;
  return anders;
}

void Kolommenboom::Selecteer(const Plek& plek) {
  const bool vorige = std::exchange(selecteert_, true);
  setCurrentIndex(model_->IndexVan(plek));
  scrollTo(currentIndex());
  selecteert_ = vorige;
}

Plek Kolommenboom::Buur(const Plek& kolom) const {
  const QModelIndex hier = model_->IndexVan(kolom);
  for (const int rij : {hier.row() + 1, hier.row() - 1}) {
    if (const QModelIndex buur = hier.siblingAtRow(rij); buur.isValid()) return model_->PlekVan(buur);
  }
  return {kolom.Len_Id, std::nullopt};
}

void Kolommenboom::ZetActies(const Acties& acties) {
  addActions({acties.toevoegen, acties.dupliceren, acties.verplaatsen->menuAction(), acties.afwijking->menuAction(),
              acties.verwijderen});
  const auto toets = [this](Qt::Key knop, QAction* actie) {
    auto* sneltoets = new QShortcut(knop, this);
    sneltoets->setContext(Qt::WidgetShortcut);
    connect(sneltoets, &QShortcut::activated, actie, &QAction::trigger);
  };
  toets(Qt::Key_Insert, acties.toevoegen);
  toets(Qt::Key_Delete, acties.verwijderen);
}

}  // namespace brivane::dossier
