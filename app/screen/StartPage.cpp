#include "app/screen/StartPage.h"

#include <QAction>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace brivane::dossier {
namespace {

/// A button that does what an action does, with the action's text.
QPushButton* KnopVoor(QAction* actie) {
  auto* knop = new QPushButton(actie->text());
  knop->setToolTip(actie->toolTip());
  QObject::connect(knop, &QPushButton::clicked, actie, &QAction::trigger);
  return knop;
}

}  // namespace

Startpagina::Startpagina(const QList<QAction*>& acties, QWidget* parent) : QWidget(parent) {
  auto* kop = new QLabel(QStringLiteral("Dossier"));
  QFont groot = kop->font();
  groot.setPointSizeF(groot.pointSizeF() * 1.8);
  kop->setFont(groot);
  auto* uitleg = new QLabel(QStringLiteral("Er is geen dossier geopend."));

  auto* blok = new QVBoxLayout;
  blok->addWidget(kop);
  blok->addWidget(uitleg);
  blok->addSpacing(kop->fontMetrics().height() / 2);
  for (QAction* actie : acties) {
    QPushButton* knop = KnopVoor(actie);
    if (!focusProxy()) setFocusProxy(knop);
    blok->addWidget(knop);
  }

  auto* midden = new QGridLayout(this);
  midden->addLayout(blok, 1, 1);
  midden->setRowStretch(0, 1);
  midden->setRowStretch(2, 2);
  midden->setColumnStretch(0, 1);
  midden->setColumnStretch(2, 1);
}

}  // namespace brivane::dossier
