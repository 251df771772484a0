#pragma once

#include <QList>

class QAction;
class QMainWindow;
class QMenu;

namespace brivane::app {

/// What the window can be told to do with an office and its clients.
struct OfficeActions {
  explicit OfficeActions(QMainWindow& window);

  QMenu* menu;
  QAction* open;
  QAction* toOffice;
  QAction* toFile;
  QAction* ask;
  QAction* takeOver;
  QAction* handOver;
  QAction* reconnect;
};

}  // namespace brivane::app
