#pragma once

#include <QWidget>

class QAction;

namespace brivane::dossier {

/// What the window shows while no loan file is open: the ways to open one.
class Startpagina final : public QWidget {
 public:
  /// One button for each action, in this order; the first takes the focus.
  explicit Startpagina(const QList<QAction*>& acties, QWidget* parent = nullptr);
};

}  // namespace brivane::dossier
