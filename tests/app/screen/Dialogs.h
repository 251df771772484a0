#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <deque>
#include <functional>

#include "toolkits/qt/widgets/QuestionBox.h"

namespace brivane::dossier {

/// Plays the person in front of the modal windows that are to come: each handler gets the next one, in its
/// event loop. A window that nobody expected fails the test and is closed.
class Dialogen {
 public:
  using Behandeling = std::function<void(QWidget& venster)>;

  Dialogen() {
    QObject::connect(&klok_, &QTimer::timeout, [this] { Kijk(); });
    klok_.start(5);
  }
  ~Dialogen() { EXPECT_TRUE(wachtrij_.empty()) << wachtrij_.size() << " windows never came"; }
  Dialogen(const Dialogen&) = delete;
  Dialogen& operator=(const Dialogen&) = delete;

  void Verwacht(Behandeling behandeling) { wachtrij_.push_back(std::move(behandeling)); }
  /// Expects a message box with this text in it.
  void VerwachtMelding(const QString& tekst, Behandeling antwoord) {
    Verwacht([tekst, antwoord](QWidget& venster) {
      const auto* bericht = qobject_cast<QMessageBox*>(&venster);
      EXPECT_TRUE(bericht && bericht->text().contains(tekst))
          << qPrintable(tekst) << " expected, not " << (bericht ? qPrintable(bericht->text()) : "another window");
      antwoord(venster);
    });
  }

 private:
  void Kijk() {
    QWidget* venster = QApplication::activeModalWidget();
    if (venster == nullptr || venster == behandeld_ || !venster->isVisible()) return;
    if (!venster->isActiveWindow()) {
      venster->activateWindow();
      return;
    }
    // Who answers on purpose has read it first.
    if (gezien_ != venster) {
      gezien_ = venster;
      sinds_.start();
    }
    const bool bericht = dynamic_cast<qt::QuestionBox*>(venster) != nullptr;
    if (bericht && sinds_.elapsed() < controls::KeysUnderWay::kPause.count() + 20) return;
    behandeld_ = venster;
    if (wachtrij_.empty()) {
      const auto* onverwacht = qobject_cast<QMessageBox*>(venster);
      ADD_FAILURE() << "unexpected window: " << qPrintable(venster->windowTitle()) << ": "
                    << (onverwacht ? qPrintable(onverwacht->text()) : "");
      venster->close();
      return;
    }
    // Out of the clock's own event: what the handler does may open another window.
    QTimer::singleShot(0, venster, [behandeling = std::move(wachtrij_.front()), venster] { behandeling(*venster); });
    wachtrij_.pop_front();
  }

  QTimer klok_;
  std::deque<Behandeling> wachtrij_;
  QPointer<QWidget> gezien_;
  QElapsedTimer sinds_;
  QPointer<QWidget> behandeld_;  ///< null again when it is gone: the next one may take its address
};

}  // namespace brivane::dossier
