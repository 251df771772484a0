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

namespace brivane::dossier {

/// Reads a loan file in a second process and answers its fields as Jsonvelden names them.
[[nodiscard]] QJsonObject LeesInTweedeProces(const QString& bestand);

/// The real window on a copy of the sample file.
class Venstertest : public testing::Test {
 protected:
  void SetUp() override {
    DossierBestand::Maak(bestand_, VoorbeeldDossier());
    NieuwVenster();
  }

  void NieuwVenster() {
    venster_.reset();
    venster_ = std::make_unique<Hoofdvenster>(logboek_);
    venster_->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(venster_.get()));
  }
  void Open() { ASSERT_TRUE(venster_->Open(bestand_)); }

  [[nodiscard]] Dossierscherm& Scherm() { return *venster_->Scherm(); }
  [[nodiscard]] KolomGegevens Kolom(std::int16_t Len_Id, std::int16_t Vrij_Id) {
    const auto kolom = Scherm().Gegevens().ZoekKolom(Len_Id, Vrij_Id);
    EXPECT_TRUE(kolom) << Len_Id << "/" << Vrij_Id;
    return kolom ? kolom->Gegevens() : KolomGegevens();
  }

  /// What a second process reads in the file after the window has let it go.
  [[nodiscard]] QJsonObject LeesNaSluiten() {
    EXPECT_TRUE(venster_->SluitDossier());
    return LeesInTweedeProces(bestand_);
  }

  /// Whether that place comes on the screen soon: the tree is followed out of its own events.
  [[nodiscard]] bool Komt(const Plek& plek) {
    return QTest::qWaitFor([&] { return Scherm().Getoond() == plek; }, 2000);
  }

  /// Presses a key in whatever window has the focus.
  static void Toets(Qt::Key toets, Qt::KeyboardModifiers ermee = Qt::NoModifier) {
    QTest::keyClick(FocusVenster(), toets, ermee);
    QApplication::processEvents();
  }
  static void Typ(const char* tekst) {
    for (; *tekst; ++tekst) QTest::keyClick(FocusVenster(), *tekst);
    QApplication::processEvents();
  }
  /// The window that has the focus. There is no window manager that gives it back when a dialog closes.
  [[nodiscard]] static QWindow* FocusVenster() {
    if (QGuiApplication::focusWindow() == nullptr) {
      QWidget* boven = QApplication::activeModalWidget();
      for (QWidget* venster : QApplication::topLevelWidgets()) {
        if (!boven && venster->isVisible() && qobject_cast<QMainWindow*>(venster)) boven = venster;
      }
      boven->activateWindow();
      EXPECT_TRUE(QTest::qWaitForWindowActive(boven));
    }
    return QGuiApplication::focusWindow();
  }
  /// Presses Tab until the focus is in what a screen reader calls that.
  static void TabNaar(const QString& naam) {
    for (int keer = 0; keer < 200; ++keer) {
      if (Focus() == naam) return;
      Toets(Qt::Key_Tab);
    }
    FAIL() << "Tab leads to no " << qPrintable(naam);
  }
  /// What a screen reader calls the control that has the focus.
  [[nodiscard]] static QString Focus() {
    static_cast<void>(FocusVenster());
    QWidget* focus = QApplication::focusWidget();
    QAccessibleInterface* voorlezer = focus ? QAccessible::queryAccessibleInterface(focus) : nullptr;
    return voorlezer ? voorlezer->text(QAccessible::Name) : QString();
  }

  QTemporaryDir map_;
  QString bestand_ = map_.filePath(QStringLiteral("test.dossier"));
  Logboek logboek_{map_.filePath(QStringLiteral("log"))};
  Dialogen dialogen_;
  std::unique_ptr<Hoofdvenster> venster_;
};

/// Presses a key in the window at hand.
inline Dialogen::Behandeling Druk(Qt::Key toets) {
  return [toets](QWidget& venster) { QTest::keyClick(venster.windowHandle(), toets); };
}

}  // namespace brivane::dossier
