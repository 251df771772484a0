#include "app/screen/StartPage.h"

#include <QAction>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace brivane::app {
namespace {

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

  auto* middle = new QGridLayout(this);
  middle->addLayout(block, 1, 1);
  middle->setRowStretch(0, 1);
  middle->setRowStretch(2, 2);
  middle->setColumnStretch(0, 1);
  middle->setColumnStretch(2, 1);
}

}  // namespace brivane::app
