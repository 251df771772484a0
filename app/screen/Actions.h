#pragma once

#include <QList>

class QAction;
class QMenu;
class QMainWindow;

namespace brivane::dossier {

/// Everything the window can be told to do: texts, shortcuts, menus and toolbar. The window connects them.
///
/// The menus' letters are those that no box of the editor goes by.
struct Acties {
  /// Makes the actions as children of the window and puts them in its menu bar and toolbar.
  explicit Acties(QMainWindow& venster);

  QAction* nieuw;
  QAction* openen;
  QAction* voorbeeld;
  QAction* kopie;
  QAction* sluiten;
  QAction* afsluiten;

  QAction* toevoegen;
  QAction* dupliceren;
  QAction* verwijderen;
  QMenu* verplaatsen;  ///< one entry for each other loan, filled by the window
  QMenu* afwijking;    ///< one entry for each loan of the new situation, filled by the window
  QAction* verplaatsenMetToets;
  QAction* vorige;
  QAction* volgende;
  QAction* boomOfKolom;

  QAction* client;
  QAction* leningToevoegen;
  QAction* controleren;

  QAction* opnemen;  ///< checked while a recording runs
  QAction* logboek;
  QAction* over;

  /// What needs an open file, and what needs a column on the screen.
  [[nodiscard]] QList<QAction*> VoorDossier() const;
  [[nodiscard]] QList<QAction*> VoorKolom() const;
};

}  // namespace brivane::dossier
