#include "app/screen/Actions.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

#include "app/screen/KolommenModel.h"
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
  QObject::connect(menu->menuAction(), &QAction::changed, button, [button, menu] {
    button->setEnabled(menu->menuAction()->isEnabled());
    button->setToolTip(menu->menuAction()->toolTip());
  });
  return button;
}

/// Does the first of a menu; its arrow opens the menu.
QToolButton* AddButton(QAction* first, QMenu* menu) {
  auto* button = new QToolButton;
  button->setDefaultAction(first);
  button->setMenu(menu);
  button->setPopupMode(QToolButton::MenuButtonPopup);
  button->setToolButtonStyle(Qt::ToolButtonTextOnly);
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
      office(window),
      undo(MakeAction(window, "&Ongedaan maken", QKeySequence(Qt::CTRL | Qt::Key_Z))),
      redo(MakeAction(window, "Opn&ieuw")),
      author(MakeAction(window, "&Naam van de adviseur…")),
      recent(new QMenu(QStringLiteral("&Recent"), &window)),
      add(MakeAction(window, "&Bedragen", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N))),
      addGrowth(MakeAction(window, "Bedragen met &groei", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_G))),
      addPercentages(MakeAction(window, "&Percentages", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E))),
      addMenu(new QMenu(QStringLiteral("&Toevoegen"), &window)),
      duplicate(MakeAction(window, "&Dupliceren", QKeySequence(Qt::CTRL | Qt::Key_D))),
      duplicateTo(new QMenu(QStringLiteral("D&upliceren naar"), &window)),
      duplicateByKey(MakeAction(window, "Dupliceren naar", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_D))),
      remove(MakeAction(window, "Ve&rwijderen", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Delete))),
      move(new QMenu(QStringLiteral("&Verplaatsen naar"), &window)),
      afwijking(new QMenu(QStringLiteral("&Afwijking maken in"), &window)),
      moveByKey(MakeAction(window, "Verplaatsen", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_M))),
      previous(MakeAction(window, "V&orige kolom", QKeySequence(Qt::CTRL | Qt::Key_PageUp))),
      next(MakeAction(window, "Vol&gende kolom", QKeySequence(Qt::CTRL | Qt::Key_PageDown))),
      treeOrKolom(MakeAction(window, "Naar &lijst of kolom", QKeySequence(Qt::Key_F6))),
      find(MakeAction(window, "&Zoeken in de lijst", QKeySequence(Qt::CTRL | Qt::Key_F))),
      sort(new QMenu(QStringLiteral("&Sorteren op"), &window)),
      client(MakeAction(window, "&Cliëntgegevens…", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C))),
      addLening(MakeAction(window, "&Lening toevoegen…")),
      renameLening(MakeAction(window, "Lening &hernoemen…")),
      removeLening(MakeAction(window, "Lening &verwijderen")),
      history(MakeAction(window, "&Wijzigingen…", QKeySequence(Qt::Key_F8))),
      check(MakeAction(window, "Dossier c&ontroleren", QKeySequence(Qt::Key_F7))),
      overview(MakeAction(window, "Over&zicht", QKeySequence(Qt::Key_F9))),
      verloop(MakeAction(window, "&Verloop", QKeySequence(Qt::SHIFT | Qt::Key_F9))),
      record(MakeAction(window, "Op&nemen…")),
      help(MakeAction(window, "&Toetsen en uitleg", QKeySequence(Qt::Key_F1))),
      eventLog(MakeAction(window, "&Logboek…")),
      about(MakeAction(window, "&Over Dossier…")) {
  // In a date box that somebody went to, Control with these keys moves the date by a year.
  previous->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_PageUp), QKeySequence(Qt::ALT | Qt::Key_PageUp)});
  next->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_PageDown), QKeySequence(Qt::ALT | Qt::Key_PageDown)});
  redo->setShortcuts({QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
  record->setCheckable(true);
  QObject::connect(record, &QAction::toggled, record, [record = record](bool running) {
    record->setText(running ? QStringLiteral("Opname stoppe&n") : QStringLiteral("Op&nemen…"));
  });
  // The toolbar has no menu title before it.
  add->setIconText(QStringLiteral("Kolom toevoegen"));
  add->setToolTip(QStringLiteral("Vrije kolom met een bedrag per jaar toevoegen"));
  addGrowth->setToolTip(QStringLiteral("Vrije kolom met een bedrag en een groeipercentage per jaar toevoegen"));
  addPercentages->setToolTip(QStringLiteral("Vrije kolom met een percentage per jaar toevoegen"));
  addMenu->addActions({add, addGrowth, addPercentages});
  const char* const cells[] = {"&Naam", "&Stand", "&Bedrag", "&Termijn", "&Aanvangsdatum"};
  for (int cell = 0; cell < KolommenModel::kCells; ++cell)
    sort->addAction(QString::fromUtf8(cells[cell]))->setData(cell);
  sort->addAction(QStringLiteral("&Volgorde van toevoegen"))->setData(KolommenModel::kEigenVolgorde);
  create->setIconText(QStringLiteral("Nieuw"));
  check->setIconText(QStringLiteral("Controleren"));

  QMenu* fileMenu = window.menuBar()->addMenu(QStringLiteral("Bes&tand"));
  fileMenu->addActions({create, open});
  fileMenu->addMenu(recent);
  fileMenu->addMenu(office.menu);
  fileMenu->addAction(sample);
  fileMenu->addSeparator();
  fileMenu->addAction(saveCopy);
  fileMenu->addActions({print, pdf});
  fileMenu->addMenu(QStringLiteral("E&xporteren naar CSV"))->addActions({exportKolommen, exportPerioden});
  fileMenu->addActions({close, quit});

  QMenu* editMenu = window.menuBar()->addMenu(QStringLiteral("Be&werken"));
  editMenu->addActions({undo, redo});
  editMenu->addSeparator();
  editMenu->addAction(author);

  QMenu* kolomMenu = window.menuBar()->addMenu(QStringLiteral("&Kolom"));
  kolomMenu->addMenu(addMenu);
  kolomMenu->addAction(duplicate);
  kolomMenu->addMenu(duplicateTo);
  kolomMenu->addMenu(move);
  kolomMenu->addMenu(afwijking);
  kolomMenu->addAction(remove);
  kolomMenu->addSeparator();
  kolomMenu->addActions({previous, next, treeOrKolom, find});
  kolomMenu->addMenu(sort);

  QMenu* dossierMenu = window.menuBar()->addMenu(QStringLiteral("Dossie&r"));
  dossierMenu->addActions({client, addLening, renameLening, removeLening, check, history});
  dossierMenu->addActions({overview, verloop});

  QMenu* helpMenu = window.menuBar()->addMenu(QStringLiteral("&Help"));
  helpMenu->addActions({help, record, eventLog, about});

  QToolBar* toolbar = window.addToolBar(QStringLiteral("Werkbalk"));
  toolbar->setObjectName(QStringLiteral("werkbalk"));
  toolbar->setMovable(false);
  toolbar->setToolButtonStyle(Qt::ToolButtonTextOnly);
  toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
  toolbar->addActions({create, open});
  toolbar->addSeparator();
  toolbar->addWidget(AddButton(add, addMenu));
  toolbar->addAction(duplicate);
  toolbar->addWidget(MenuButton(QStringLiteral("Verplaatsen"), move));
  toolbar->addAction(remove);
  toolbar->addSeparator();
  toolbar->addActions({client, check});

  ReachByKeys(*toolbar);

  // Not in a menu: each opens one.
  window.addActions({moveByKey, duplicateByKey});
  for (QMenu* menu : {fileMenu, kolomMenu, dossierMenu, helpMenu, addMenu, duplicateTo, move, afwijking, sort})
    menu->setToolTipsVisible(true);
}

QList<QAction*> Actions::ForDossier() const {
  return {saveCopy,           print,  pdf,   exportKolommen, exportPerioden, close,   previous, next, treeOrKolom, find,
          sort->menuAction(), client, check, history,        overview,       verloop, record};
}

QList<QAction*> Actions::ForEditing() const {
  return {add, addGrowth, addPercentages, addMenu->menuAction(), addLening, renameLening};
}

QList<QAction*> Actions::ForKolom() const {
  return {duplicate, duplicateTo->menuAction(), duplicateByKey, remove, move->menuAction(),
          moveByKey, afwijking->menuAction()};
}

}  // namespace brivane::app
