#pragma once

#include <QWidget>

class QAction;

namespace brivane::app {

/// What the window shows while no loan file is open: the ways to open one.
class StartPage final : public QWidget {
 public:
  /// One button for each action, in this order; the first takes the focus.
  explicit StartPage(const QList<QAction*>& actions, QWidget* parent = nullptr);
};

}  // namespace brivane::app
