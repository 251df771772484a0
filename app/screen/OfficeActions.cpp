#include "app/screen/OfficeActions.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>

namespace brivane::app {
namespace {

QAction* MakeOfficeAction(QMainWindow& window, const char* text, const QKeySequence& key = {}) {
  auto* action = new QAction(QString::fromUtf8(text), &window);
  action->setShortcut(key);
  return action;
}

}  // namespace

OfficeActions::OfficeActions(QMainWindow& window)
    : menu(new QMenu(QStringLiteral("Kan&toor"), &window)),
      open(MakeOfficeAction(window, "&Kantoor openen…", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O))),
      toOffice(MakeOfficeAction(window, "&Naar kantoor…")),
      toFile(MakeOfficeAction(window, "Als &bestand bewaren…")),
      ask(MakeOfficeAction(window, "&Vragen")),
      takeOver(MakeOfficeAction(window, "&Overnemen")),
      handOver(MakeOfficeAction(window, "Over&dragen")),
      reconnect(MakeOfficeAction(window, "Opnieuw v&erbinden")) {
  menu->setToolTipsVisible(true);
  menu->addAction(open);
  menu->addSeparator();
  menu->addActions({toOffice, toFile});
  menu->addSeparator();
  menu->addActions({ask, takeOver, handOver, reconnect});
}

}  // namespace brivane::app
