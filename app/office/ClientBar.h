#pragma once

#include <QFrame>
#include <functional>

class QAction;
class QPushButton;

namespace brivane::app {

class SpokenLabel;

/// The bar above a client of an office: who works in it or that there is no connection, what came about, and what could
/// not be stored. Where there is nothing to be said there is no bar. What it says is told to a screen reader at once.
class ClientBar final : public QFrame {
 public:
  /// A button for each action, there while the action can be done.
  explicit ClientBar(const QList<QAction*>& actions, QWidget* parent = nullptr);

  /// Who has it, or the connection; empty for nothing.
  void ShowState(const QString& text);
  /// What came about; stays until a person puts it away, or the next one.
  void ShowNotice(const QString& text);
  /// A text that was not stored; `again`: it can be put back now.
  void ShowUnstored(const QString& text, bool again);

  std::function<void()> noticePutAway;
  std::function<void()> putBack;
  std::function<void()> copied;
  std::function<void()> thrownAway;

 private:
  QWidget* MakeLine(SpokenLabel* label, const QList<QPushButton*>& buttons);
  void Show(SpokenLabel* label, QWidget* line, const QString& text);

  SpokenLabel* state_;
  SpokenLabel* notice_;
  SpokenLabel* unstored_;
  QWidget* stateLine_;
  QWidget* noticeLine_;
  QWidget* unstoredLine_;
  QPushButton* again_;
};

}  // namespace brivane::app
