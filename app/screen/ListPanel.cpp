#include "app/screen/ListPanel.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QVBoxLayout>
#include <utility>

#include <brivane/toolkits/qt/widgets/Mnemonics.h>

namespace brivane::app {

ListPanel::ListPanel(std::shared_ptr<dossier::Dossier> dossier, QWidget* parent)
    : QWidget(parent), tree_(new KolommenTree(std::move(dossier))), box_(new QLineEdit), count_(new QLabel) {
  box_->setObjectName(QStringLiteral("filter"));
  box_->setAccessibleName(QStringLiteral("Filter van de lijst"));
  box_->setPlaceholderText(QStringLiteral("Filteren (Ctrl+F)"));
  box_->setToolTip(
      QStringLiteral("Zoekt in elke tekst, soort, maatschappij, bedrag en datum; elk woord moet voorkomen."));
  box_->setClearButtonEnabled(true);
  box_->installEventFilter(this);
  qt::TypesNothingWithAlt(*box_);
  count_->setObjectName(QStringLiteral("gevonden"));
  count_->hide();

  auto* line = new QHBoxLayout;
  line->setContentsMargins(4, 4, 4, 0);
  line->addWidget(box_, 1);
  line->addWidget(count_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(4);
  layout->addLayout(line);
  layout->addWidget(tree_, 1);

  connect(box_, &QLineEdit::textChanged, this, [this] { tree_->SetFilter(box_->text(), shown ? shown() : Place{}); });
  connect(tree_->model(), &QAbstractItemModel::modelReset, this, &ListPanel::TellCount);
  tree_->filterPutAway = [this] { ClearFilter(); };
  auto* escape = new QShortcut(Qt::Key_Escape, tree_);
  escape->setContext(Qt::WidgetShortcut);
  connect(escape, &QShortcut::activated, this, &ListPanel::ClearFilter);
}

void ListPanel::EnterFilter() {
  if (QWidget* focus = QApplication::focusWidget(); focus != box_) cameFrom_ = focus;
  box_->setFocus(Qt::ShortcutFocusReason);
  box_->selectAll();
}

void ListPanel::ClearFilter() { box_->clear(); }

void ListPanel::TellCount() {
  count_->setVisible(tree_->IsFiltered());
  count_->setText(QStringLiteral("%1 van %2").arg(tree_->CountShown()).arg(tree_->CountAll()));
  // The number is told where the keys are typed, too.
  box_->setAccessibleDescription(tree_->IsFiltered() ? count_->text() + QStringLiteral(" gevonden") : QString());
}

void ListPanel::GoBack() {
  ClearFilter();
  QWidget* back = cameFrom_ && cameFrom_->isVisible() && cameFrom_->isEnabled() ? cameFrom_.data() : tree_;
  back->setFocus(Qt::OtherFocusReason);
}

bool ListPanel::eventFilter(QObject* watched, QEvent* event) {
  if (watched != box_ || event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Escape: GoBack(); return true;
    case Qt::Key_Down:
      if (tree_->CountShown() > 0) tree_->EnterAtFirst();
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (const std::vector<Place> found = tree_->Kolommen(); !found.empty() && opened) opened(found.front());
      return true;
    default: return QWidget::eventFilter(watched, event);
  }
}

}  // namespace brivane::app
