#pragma once

#include <QFrame>
#include <QPointer>
#include <chrono>

class QLabel;
class QWidget;

namespace brivane::app {

/// What stands across a window while the program waits for the office, from the first second on: "Wacht op het
/// kantoor…". It is painted at once, without any event being handled: nothing that is typed or due meanwhile gets at
/// the editor.
class WaitNotice final : public QFrame {
 public:
  /// Waits are shown from now on, in whatever window is in front.
  static void Install();

 private:
  explicit WaitNotice(QWidget* window);
  void Say(std::chrono::seconds so_far);

  QLabel* text_;
};

}  // namespace brivane::app
