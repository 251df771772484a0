#include "app/screen/Actions.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

#include "app/screen/ToolbarKeys.h"

namespace brivane::app {
namespace {

QAction* MakeAction(QMainWindow& window, const char* text, const QKeySequence& key = {}) {
  auto* action = new QAction(QString::fromUtf8(text), &window);
  action->setShortcut(key);
  return action;
}

QToolButton* MenuButton(const QString& text, QMenu* menu) {
  auto* button = new QToolButton;
  button->setText(text);
  button->setMenu(menu);
  button->setPopupMode(QToolButton::InstantPopup);
  QObject::connect(menu->menuAction(), &QAction::changed, button,
                   [button, menu] { button->setEnabled(menu->menuAction()->isEnabled()); });
  return button;
}

}  // namespace

Actions::Actions(QMainWindow& window)
    : create(MakeAction(window, "&Nieuw dossier…", QKeySequence::New)),
      open(MakeAction(window, "&Openen…", QKeySequence::Open)),
      sample(MakeAction(window, "&Voorbeeld")),
      saveCopy(MakeAction(window, "&Kopie opslaan als…", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S))),
      print(MakeAction(window, "Af&drukken…", QKeySequence::Print)),
      pdf(MakeAction(window, "Opslaan als &PDF…", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P))),
      exportKolommen(MakeAction(window, "&Kolommen…")),
      exportPerioden(MakeAction(window, "&Perioden…")),
      close(MakeAction(window, "&Sluiten", QKeySequence(Qt::CTRL | Qt::Key_W))),
      quit(MakeAction(window, "&Afsluiten", QKeySequence(Qt::CTRL | Qt::Key_Q))),
      add(MakeAction(window, "&Toevoegen", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N))),
      duplicate(MakeAction(window, "&Dupliceren", QKeySequence(Qt::CTRL | Qt::Key_D))),
      remove(MakeAction(window, "Ve&rwijderen…", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Delete))),
      move(new QMenu(QStringLiteral("&Verplaatsen naar"), &window)),
      afwijking(new QMenu(QStringLiteral("&Afwijking maken in"), &window)),
      moveByKey(MakeAction(window, "Verplaatsen", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_M))),
      previous(MakeAction(window, "V&orige kolom", QKeySequence(Qt::CTRL | Qt::Key_PageUp))),
      next(MakeAction(window, "Vol&gende kolom", QKeySequence(Qt::CTRL | Qt::Key_PageDown))),
      treeOrKolom(MakeAction(window, "Naar &lijst of kolom", QKeySequence(Qt::Key_F6))),
      client(MakeAction(window, "&Cliëntgegevens…", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C))),
      addLening(MakeAction(window, "&Lening toevoegen…")),
      check(MakeAction(window, "Dossier c&ontroleren", QKeySequence(Qt::Key_F7))),
      overview(MakeAction(window, "&Overzicht", QKeySequence(Qt::Key_F9))),
      verloop(MakeAction(window, "&Verloop", QKeySequence(Qt::SHIFT | Qt::Key_F9))),
      record(MakeAction(window, "Op&nemen…")),
      eventLog(MakeAction(window, "&Logboek…")),
      about(MakeAction(window, "&Over Dossier…")) {
  // In a date box that somebody went to, Control with these keys moves the date by a year.
  previous->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_PageUp), QKeySequence(Qt::ALT | Qt::Key_PageUp)});
  next->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_PageDown), QKeySequence(Qt::ALT | Qt::Key_PageDown)});
  record->setCheckable(true);
  QObject::connect(record, &QAction::toggled, record, [record = record](bool running) {
    record->setText(running ? QStringLiteral("Opname stoppe&n") : QStringLiteral("Op&nemen…"));
  });
  // The toolbar has no menu title before it.
  add->setIconText(QStringLiteral("Kolom toevoegen"));
  create->setIconText(QStringLiteral("Nieuw"));
  check->setIconText(QStringLiteral("Controleren"));

  QMenu* fileMenu = window.menuBar()->addMenu(QStringLiteral("Bes&tand"));
  fileMenu->addActions({create, open, sample});
  fileMenu->addSeparator();
  fileMenu->addAction(saveCopy);
  fileMenu->addActions({print, pdf});
  fileMenu->addMenu(QStringLiteral("E&xporteren naar CSV"))->addActions({exportKolommen, exportPerioden});
  fileMenu->addActions({close, quit});

  QMenu* kolomMenu = window.menuBar()->addMenu(QStringLiteral("&Kolom"));
  kolomMenu->addActions({add, duplicate});
  kolomMenu->addMenu(move);
  kolomMenu->addMenu(afwijking);
  kolomMenu->addAction(remove);
  kolomMenu->addSeparator();
  kolomMenu->addActions({previous, next, treeOrKolom});

  QMenu* dossierMenu = window.menuBar()->addMenu(QStringLiteral("Dossie&r"));
  dossierMenu->addActions({client, addLening, check});
  dossierMenu->addActions({overview, verloop});

  QMenu* helpMenu = window.menuBar()->addMenu(QStringLiteral("&Help"));
  helpMenu->addActions({record, eventLog, about});

  QToolBar* toolbar = window.addToolBar(QStringLiteral("Werkbalk"));
  toolbar->setObjectName(QStringLiteral("werkbalk"));
  toolbar->setMovable(false);
  toolbar->setToolButtonStyle(Qt::ToolButtonTextOnly);
  toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
  toolbar->addActions({create, open});
  toolbar->addSeparator();
  toolbar->addActions({add, duplicate});
  toolbar->addWidget(MenuButton(QStringLiteral("Verplaatsen"), move));
  toolbar->addAction(remove);
  toolbar->addSeparator();
  toolbar->addActions({client, check});

  ReachByKeys(*toolbar);

  // Not in a menu: opens one.
  window.addAction(moveByKey);
}

QList<QAction*> Actions::ForDossier() const {
  return {saveCopy, print,       pdf,    exportKolommen, exportPerioden, close,    add,     previous,
          next,     treeOrKolom, client, addLening,      check,          overview, verloop, record};
}

QList<QAction*> Actions::ForKolom() const {
  return {duplicate, remove, move->menuAction(), moveByKey, afwijking->menuAction()};
}

}  // namespace brivane::app
