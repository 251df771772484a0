#pragma once

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "app/screen/MainWindow.h"
#include "dossier/model/SampleCase.h"
#include "tests/app/screen/Dialogs.h"

namespace brivane::app {

/// Reads a loan file in a second process and answers its fields as JsonFields names them.
[[nodiscard]] QJsonObject ReadInSecondProcess(const QString& file);

/// The real window on a copy of the sample file.
class WindowTest : public testing::Test {
 protected:
  void SetUp() override {
    dossier::DossierFile::Maak(file_, dossier::VoorbeeldDossier());
    NewWindow();
  }

  void NewWindow() {
    window_.reset();
    window_ = std::make_unique<MainWindow>(eventLog_);
    window_->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
  }
  void Open() { ASSERT_TRUE(window_->Open(file_)); }

  [[nodiscard]] DossierScreen& Screen() { return *window_->Screen(); }
  [[nodiscard]] dossier::KolomGegevens Kolom(std::int16_t Len_Id, std::int16_t Vrij_Id) {
    const auto kolom = Screen().Dossier().FindKolom(Len_Id, Vrij_Id);
    EXPECT_TRUE(kolom) << Len_Id << "/" << Vrij_Id;
    return kolom ? kolom->Gegevens() : dossier::KolomGegevens();
  }

  /// What a second process reads in the file after the window has let it go.
  [[nodiscard]] QJsonObject ReadAfterClosing() {
    EXPECT_TRUE(window_->CloseDossier());
    return ReadInSecondProcess(file_);
  }

  /// Whether that place comes on the screen soon: the tree is followed out of its own events.
  [[nodiscard]] bool Comes(const Place& place) {
    return QTest::qWaitFor([&] { return Screen().Shown() == place; }, 2000);
  }

  /// Presses a key in whatever window has the focus.
  static void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(FocusWindow(), key, modifiers);
    QApplication::processEvents();
  }
  static void Type(const char* text) {
    for (; *text; ++text) QTest::keyClick(FocusWindow(), *text);
    QApplication::processEvents();
  }
  /// The window that has the focus. There is no window manager that gives it back when a dialog closes.
  [[nodiscard]] static QWindow* FocusWindow() {
    if (QGuiApplication::focusWindow() == nullptr) {
      QWidget* above = QApplication::activeModalWidget();
      for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!above && window->isVisible() && qobject_cast<QMainWindow*>(window)) above = window;
      }
      above->activateWindow();
      EXPECT_TRUE(QTest::qWaitForWindowActive(above));
    }
    return QGuiApplication::focusWindow();
  }
  /// Presses Tab until the focus is in what a screen reader calls that.
  static void TabTo(const QString& name) {
    for (int turn = 0; turn < 200; ++turn) {
      if (Focus() == name) return;
      PressKey(Qt::Key_Tab);
    }
    FAIL() << "Tab leads to no " << qPrintable(name);
  }
  /// What a screen reader calls the control that has the focus.
  [[nodiscard]] static QString Focus() {
    static_cast<void>(FocusWindow());
    QWidget* focus = QApplication::focusWidget();
    QAccessibleInterface* reader = focus ? QAccessible::queryAccessibleInterface(focus) : nullptr;
    return reader ? reader->text(QAccessible::Name) : QString();
  }

  QTemporaryDir folder_;
  QString file_ = folder_.filePath(QStringLiteral("test.dossier"));
  EventLog eventLog_{folder_.filePath(QStringLiteral("log"))};
  Dialogs dialogs_;
  std::unique_ptr<MainWindow> window_;
};

/// Presses a key in the window at hand.
inline Dialogs::Handler Pressing(Qt::Key key) {
  return [key](QWidget& window) { QTest::keyClick(window.windowHandle(), key); };
}

}  // namespace brivane::app
