#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <deque>
#include <functional>

#include <brivane/toolkits/qt/widgets/QuestionBox.h>

namespace brivane::app {

/// Plays the person in front of the modal windows that are to come: each handler gets the next one, in its
/// event loop. A window that nobody expected fails the test and is closed.
class Dialogs {
 public:
  using Handler = std::function<void(QWidget& window)>;

  Dialogs() {
    QObject::connect(&clock_, &QTimer::timeout, [this] { Look(); });
    clock_.start(5);
  }
  ~Dialogs() { EXPECT_TRUE(queue_.empty()) << queue_.size() << " windows never came"; }
  Dialogs(const Dialogs&) = delete;
  Dialogs& operator=(const Dialogs&) = delete;

  void Expect(Handler handler) { queue_.push_back(std::move(handler)); }
  /// Nobody is there to see what comes up, until LookOn.
  void LookAway() { clock_.stop(); }
  void LookOn() { clock_.start(); }
  /// Windows of that name come and go by themselves, or do not come at all.
  void LetPass(const char* name) { passing_ = QString::fromLatin1(name); }
  /// Expects a message box with this text in it.
  void ExpectMessage(const QString& text, Handler answer) {
    Expect([text, answer](QWidget& window) {
      const auto* box = qobject_cast<QMessageBox*>(&window);
      EXPECT_TRUE(box && box->text().contains(text))
          << qPrintable(text) << " expected, not " << (box ? qPrintable(box->text()) : "another window");
      answer(window);
    });
  }

 private:
  void Look() {
    QWidget* window = QApplication::activeModalWidget();
    if (window == nullptr || window == handled_ || !window->isVisible()) return;
    if (!passing_.isEmpty() && window->objectName() == passing_) return;
    if (!window->isActiveWindow()) {
      window->activateWindow();
      return;
    }
    // Who answers on purpose has read it first.
    if (seen_ != window) {
      seen_ = window;
      since_.start();
    }
    const bool message = dynamic_cast<qt::QuestionBox*>(window) != nullptr;
    if (message && since_.elapsed() < controls::KeysUnderWay::kPause.count() + 20) return;
    handled_ = window;
    if (queue_.empty()) {
      const auto* box = qobject_cast<QMessageBox*>(window);
      ADD_FAILURE() << "unexpected window: " << qPrintable(window->windowTitle()) << ": "
                    << (box ? qPrintable(box->text()) : "");
      window->close();
      return;
    }
    // Out of the clock's own event: what the handler does may open another window.
    QTimer::singleShot(0, window, [handler = std::move(queue_.front()), window] { handler(*window); });
    queue_.pop_front();
  }

  QTimer clock_;
  QString passing_;
  std::deque<Handler> queue_;
  QPointer<QWidget> seen_;
  QElapsedTimer since_;
  QPointer<QWidget> handled_;  ///< null again when it is gone: the next one may take its address
};

}  // namespace brivane::app
