#pragma once

#include <QList>

class QAction;
class QMenu;
class QMainWindow;

namespace brivane::app {

/// Everything the window can be told to do: texts, shortcuts, menus and toolbar. The window connects them.
///
/// The menus' letters are those that no box of the editor goes by.
struct Actions {
  /// Makes the actions as children of the window and puts them in its menu bar and toolbar.
  explicit Actions(QMainWindow& window);

  QAction* create;
  QAction* open;
  QAction* sample;
  QAction* saveCopy;
  QAction* print;
  QAction* pdf;
  QAction* exportKolommen;
  QAction* exportPerioden;
  QAction* close;
  QAction* quit;

  QAction* add;
  QAction* duplicate;
  QAction* remove;
  QMenu* move;       ///< one entry for each other loan, filled by the window
  QMenu* afwijking;  ///< one entry for each loan of the new situation, filled by the window
  QAction* moveByKey;
  QAction* previous;
  QAction* next;
  QAction* treeOrKolom;

  QAction* client;
  QAction* addLening;
  QAction* check;
  QAction* overview;
  QAction* verloop;

  QAction* record;  ///< checked while a recording runs
  QAction* eventLog;
  QAction* about;

  /// What needs an open file, and what needs a column on the screen.
  [[nodiscard]] QList<QAction*> ForDossier() const;
  [[nodiscard]] QList<QAction*> ForKolom() const;
};

}  // namespace brivane::app
