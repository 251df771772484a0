#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

class QDialog;
class QMainWindow;
class QTextBrowser;
class QWidget;

namespace brivane::app {

/// The help beside the work: the field that has the focus, and the keys of where it stands. It is no question: the work
/// goes on beside it, and it follows the focus. F1 or Escape puts it away.
///
/// It hears F1 in a window that stands in front too, where no menu is in reach.
class HelpDesk final : public QObject {
 public:
  /// Child of the window, whose screens it explains.
  explicit HelpDesk(QMainWindow& window);

  /// Shows the help of where the focus is now.
  void Show();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeWindow(QWidget* above);
  void Follow(const QWidget* focus);

  QMainWindow& window_;
  QPointer<QDialog> dialog_;
  QTextBrowser* text_ = nullptr;  ///< of the dialog
};

/// The help of a widget as a page: its field where it is one, the keys of its place, and those that work everywhere.
[[nodiscard]] QString HelpPage(const QWidget* focus);

}  // namespace brivane::app
