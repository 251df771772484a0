#include "app/screen/StartPage.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "app/desk/RecentFiles.h"

namespace brivane::app {
namespace {

constexpr int kListCharacters = 64;  ///< width of the list of files
constexpr int kFile = Qt::UserRole;

/// A button that does what an action does, with the action's text.
QPushButton* ButtonFor(QAction* action) {
  auto* button = new QPushButton(action->text());
  button->setToolTip(action->toolTip());
  QObject::connect(button, &QPushButton::clicked, action, &QAction::trigger);
  return button;
}

}  // namespace

StartPage::StartPage(const QList<QAction*>& actions, QWidget* parent) : QWidget(parent) {
  auto* heading = new QLabel(QStringLiteral("Dossier"));
  QFont large = heading->font();
  large.setPointSizeF(large.pointSizeF() * 1.8);
  heading->setFont(large);
  auto* hint = new QLabel(QStringLiteral("Er is geen dossier geopend."));

  auto* block = new QVBoxLayout;
  block->addWidget(heading);
  block->addWidget(hint);
  block->addSpacing(heading->fontMetrics().height() / 2);
  for (QAction* action : actions) {
    QPushButton* button = ButtonFor(action);
    if (!focusProxy()) setFocusProxy(button);
    block->addWidget(button);
  }
  recent_ = MakeRecent();
  block->addSpacing(heading->fontMetrics().height() / 2);
  block->addWidget(recent_);

  auto* page = new QWidget;
  auto* middle = new QGridLayout(page);
  middle->addLayout(block, 1, 1);
  middle->setRowStretch(0, 1);
  middle->setRowStretch(2, 2);
  middle->setColumnStretch(0, 1);
  middle->setColumnStretch(2, 1);

  // Where everything is large and the window is not.
  auto* scroller = new QScrollArea;
  scroller->setFrameShape(QFrame::NoFrame);
  scroller->setFocusPolicy(Qt::NoFocus);
  scroller->setWidgetResizable(true);
  scroller->setWidget(page);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(0, 0, 0, 0);
  all->addWidget(scroller);
}

QWidget* StartPage::MakeRecent() {
  auto* area = new QWidget;
  auto* heading = new QLabel(QStringLiteral("Recent &geopend"));
  files_ = new QListWidget;
  files_->setObjectName(QStringLiteral("recent"));
  files_->setAccessibleName(QStringLiteral("Recent geopende dossiers"));
  files_->setMinimumWidth(fontMetrics().averageCharWidth() * kListCharacters);
  files_->setToolTip(QStringLiteral("Enter opent een dossier, Delete haalt het uit de lijst."));
  heading->setBuddy(files_);
  auto* clear = new QPushButton(QStringLiteral("Lijst &leegmaken"));
  connect(clear, &QPushButton::clicked, this, [this] {
    RecentFiles::Clear();
    Refresh();
    setFocus();
  });
  connect(files_, &QListWidget::itemActivated, this, [this](const QListWidgetItem* item) {
    if (opened) opened(item->data(kFile).toString());
  });
  auto* remove = new QShortcut(Qt::Key_Delete, files_);
  remove->setContext(Qt::WidgetShortcut);
  connect(remove, &QShortcut::activated, this, &StartPage::Remove);

  auto* layout = new QVBoxLayout(area);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(heading);
  layout->addWidget(files_);
  layout->addWidget(clear, 0, Qt::AlignLeft);
  return area;
}

void StartPage::Remove() {
  const QListWidgetItem* item = files_->currentItem();
  if (item == nullptr) return;
  const int row = files_->currentRow();
  RecentFiles::Remove(item->data(kFile).toString());
  Refresh();
  if (files_->count() == 0)
    setFocus();
  else
    files_->setCurrentRow(std::min(row, files_->count() - 1));
}

void StartPage::Refresh() {
  files_->clear();
  for (const QString& file : RecentFiles::All()) {
    QString text = NameOfFile(file);
    if (!IsThere(file)) text += QStringLiteral(" (niet gevonden)");
    auto* item = new QListWidgetItem(
        QStringLiteral("%1\n%2").arg(text, QDir::toNativeSeparators(QFileInfo(file).absolutePath())), files_);
    item->setData(kFile, file);
    item->setData(Qt::AccessibleTextRole, text + QStringLiteral(", ") + QFileInfo(file).absolutePath());
  }
  files_->setCurrentRow(0);
  recent_->setVisible(files_->count() > 0);
}

void StartPage::showEvent(QShowEvent* event) {
  Refresh();
  QWidget::showEvent(event);
}

}  // namespace brivane::app
