#pragma once

#include <QWidget>
#include <functional>

class QAction;
class QListWidget;

namespace brivane::app {

/// What the window shows while no loan file is open: the ways to open one, and those that were open lately.
class StartPage final : public QWidget {
 public:
  /// One button for each action, in this order; the first takes the focus.
  explicit StartPage(const QList<QAction*>& actions, QWidget* parent = nullptr);

  /// Shows which files were open lately, as the settings have them now.
  void Refresh();

  std::function<void(const QString& file)> opened;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QWidget* MakeRecent();
  void Remove();

  QWidget* recent_;
  QListWidget* files_ = nullptr;
};

}  // namespace brivane::app
