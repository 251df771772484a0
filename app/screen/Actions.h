#pragma once

#include <QList>

#include "app/screen/OfficeActions.h"

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

  OfficeActions office;

  QAction* undo;
  QAction* redo;
  QAction* author;

  QMenu* recent;  ///< filled by the window

  QAction* add;  ///< a column of amounts; the other two are in the same menu
  QAction* addGrowth;
  QAction* addPercentages;
  QMenu* addMenu;
  QAction* duplicate;
  QMenu* duplicateTo;  ///< one entry for each other loan, filled by the window
  QAction* duplicateByKey;
  QAction* remove;
  QMenu* move;       ///< one entry for each other loan, filled by the window
  QMenu* afwijking;  ///< one entry for each loan of the new situation, filled by the window
  QAction* moveByKey;
  QAction* previous;
  QAction* next;
  QAction* treeOrKolom;
  QAction* find;
  QMenu* sort;  ///< one entry for each cell of the list, whose number is its data

  QAction* client;
  QAction* addLening;
  QAction* renameLening;
  QAction* removeLening;
  QAction* history;
  QAction* check;
  QAction* overview;
  QAction* verloop;

  QAction* record;  ///< checked while a recording runs
  QAction* help;
  QAction* eventLog;
  QAction* about;

  /// What needs an open file; one that may be written; and one with a column on the screen.
  [[nodiscard]] QList<QAction*> ForDossier() const;
  [[nodiscard]] QList<QAction*> ForEditing() const;
  [[nodiscard]] QList<QAction*> ForKolom() const;
};

}  // namespace brivane::app
