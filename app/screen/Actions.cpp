#include "app/screen/Actions.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

namespace brivane::dossier {
namespace {

QAction* Maak(QMainWindow& venster, const char* tekst, const QKeySequence& toets = {}) {
  auto* actie = new QAction(QString::fromUtf8(tekst), &venster);
  actie->setShortcut(toets);
  return actie;
}

QToolButton* MenuKnop(const QString& tekst, QMenu* menu) {
  auto* knop = new QToolButton;
  knop->setText(tekst);
  knop->setMenu(menu);
  knop->setPopupMode(QToolButton::InstantPopup);
  QObject::connect(menu->menuAction(), &QAction::changed, knop,
                   [knop, menu] { knop->setEnabled(menu->menuAction()->isEnabled()); });
  return knop;
}

}  // namespace

Acties::Acties(QMainWindow& venster)
    : nieuw(Maak(venster, "&Nieuw dossier…", QKeySequence::New)),
      openen(Maak(venster, "&Openen…", QKeySequence::Open)),
      voorbeeld(Maak(venster, "&Voorbeeld")),
      kopie(Maak(venster, "&Kopie opslaan als…", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S))),
      sluiten(Maak(venster, "&Sluiten", QKeySequence(Qt::CTRL | Qt::Key_W))),
      afsluiten(Maak(venster, "&Afsluiten", QKeySequence(Qt::CTRL | Qt::Key_Q))),
      toevoegen(Maak(venster, "&Toevoegen", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N))),
      dupliceren(Maak(venster, "&Dupliceren", QKeySequence(Qt::CTRL | Qt::Key_D))),
      verwijderen(Maak(venster, "Ve&rwijderen…", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Delete))),
      verplaatsen(new QMenu(QStringLiteral("&Verplaatsen naar"), &venster)),
      afwijking(new QMenu(QStringLiteral("&Afwijking maken in"), &venster)),
      verplaatsenMetToets(Maak(venster, "Verplaatsen", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_M))),
      vorige(Maak(venster, "V&orige kolom", QKeySequence(Qt::CTRL | Qt::Key_PageUp))),
      volgende(Maak(venster, "Vol&gende kolom", QKeySequence(Qt::CTRL | Qt::Key_PageDown))),
      boomOfKolom(Maak(venster, "Naar &lijst of kolom", QKeySequence(Qt::Key_F6))),
      client(Maak(venster, "&Cliëntgegevens…", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C))),
      leningToevoegen(Maak(venster, "&Lening toevoegen…")),
      controleren(Maak(venster, "Dossier c&ontroleren", QKeySequence(Qt::Key_F7))),
      opnemen(Maak(venster, "Op&nemen…")),
      logboek(Maak(venster, "&Logboek…")),
      over(Maak(venster, "&Over Dossier…")) {
  opnemen->setCheckable(true);
  QObject::connect(opnemen, &QAction::toggled, opnemen, [opnemen = opnemen](bool loopt) {
    opnemen->setText(loopt ? QStringLiteral("Opname stoppe&n") : QStringLiteral("Op&nemen…"));
  });
  // The toolbar has no menu title before it.
  toevoegen->setIconText(QStringLiteral("Kolom toevoegen"));
  nieuw->setIconText(QStringLiteral("Nieuw"));
  controleren->setIconText(QStringLiteral("Controleren"));

  QMenu* bestand = venster.menuBar()->addMenu(QStringLiteral("Bes&tand"));
  bestand->addActions({nieuw, openen, voorbeeld});
  bestand->addSeparator();
  bestand->addActions({kopie, sluiten, afsluiten});

  QMenu* kolom = venster.menuBar()->addMenu(QStringLiteral("&Kolom"));
  kolom->addActions({toevoegen, dupliceren});
  kolom->addMenu(verplaatsen);
  kolom->addMenu(afwijking);
  kolom->addAction(verwijderen);
  kolom->addSeparator();
  kolom->addActions({vorige, volgende, boomOfKolom});

  QMenu* dossier = venster.menuBar()->addMenu(QStringLiteral("Dossie&r"));
  dossier->addActions({client, leningToevoegen, controleren});

  QMenu* help = venster.menuBar()->addMenu(QStringLiteral("&Help"));
  help->addActions({opnemen, logboek, over});

  QToolBar* balk = venster.addToolBar(QStringLiteral("Werkbalk"));
  balk->setObjectName(QStringLiteral("werkbalk"));
  balk->setMovable(false);
  balk->setToolButtonStyle(Qt::ToolButtonTextOnly);
  balk->setContextMenuPolicy(Qt::PreventContextMenu);
  balk->addActions({nieuw, openen});
  balk->addSeparator();
  balk->addActions({toevoegen, dupliceren});
  balk->addWidget(MenuKnop(QStringLiteral("Verplaatsen"), verplaatsen));
  balk->addAction(verwijderen);
  balk->addSeparator();
  balk->addActions({client, controleren});

  // Not in a menu: opens one.
  venster.addAction(verplaatsenMetToets);
}

QList<QAction*> Acties::VoorDossier() const {
  return {kopie, sluiten, toevoegen, vorige, volgende, boomOfKolom, client, leningToevoegen, controleren, opnemen};
}

QList<QAction*> Acties::VoorKolom() const {
  return {dupliceren, verwijderen, verplaatsen->menuAction(), verplaatsenMetToets, afwijking->menuAction()};
}

}  // namespace brivane::dossier
