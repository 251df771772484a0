#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <functional>
#include <memory>
#include <string>

#include "app/desk/UnfinishedText.h"
#include "dossier/office/OfficeStore.h"
#include "tests/app/screen/WindowTest.h"
#include "tests/dossier/office/TrialOffice.h"
#include "tests/support/Patience.h"
#include <brivane/frame/Handle.h>
#include <brivane/vrijekolom/Ontwerp.h>

namespace brivane::app {

inline constexpr char kFailed[] = "Er is een fout opgetreden.";
/// The column with a newspaper.
inline constexpr Place kKrant{0, 2};

/// A client of an office in the real window.
class ClientWindow : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    dialogs_.LetPass("verbinden");
    for (const UnfinishedText::Kept& kept : UnfinishedText::All()) UnfinishedText::Forget(kept.name);
    client_ = office_.Add();
  }
  void TearDown() override {
    for (const UnfinishedText::Kept& kept : UnfinishedText::All()) UnfinishedText::Forget(kept.name);
  }

  void OpenAs(MainWindow& window, const QString& account, const QString& by = {}) {
    ASSERT_TRUE(window.OpenClient({office_.Words(account) + (by.isEmpty() ? QString() : " host=" + by), client_}));
    // What opening leaves to be done aside comes first.
    dynamic_cast<dossier::OfficeStore&>(window.Screen()->Store()).Attend();
    ASSERT_TRUE(window.Screen()->GoTo(kKrant));
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window, test::kPatience));
    window.Screen()->Kolom().FocusOmschrijving();
  }
  static QString Text(MainWindow& window, const char* label) {
    const auto* found = window.findChild<QLabel*>(label);
    return found ? found->text() : QString();
  }
  static QString Bar(MainWindow& window) { return Text(window, "stand"); }
  static std::string Omschrijving(MainWindow& window) {
    return frame::Controls(window.Screen()->Kolom().Editor().Surface())[vrijekolom::TxtOm].Text();
  }
  static void Click(MainWindow& window, const char* text) {
    for (QPushButton* button : window.findChildren<QPushButton*>()) {
      if (button->text() == text && button->isVisible()) return button->click();
    }
    FAIL() << "no button " << text;
  }
  [[nodiscard]] std::string Stored() {
    auto reader = office_.Open(client_, "rob");
    return reader->Dossier()->FindKolom(0, 2)->Gegevens().Omschrijving;
  }
  /// Types a description in the window that is in front, and leaves the box; `before` it is left, where given.
  static void Describe(const char* text, const std::function<void()>& before = {}) {
    PressKey(Qt::Key_O, Qt::AltModifier);
    Type(text);
    if (before) before();
    PressKey(Qt::Key_Tab);
  }
  /// A message is to come that an edit failed, with all of these words and none of those; `answer` puts it away.
  void ExpectFailed(const QStringList& says = {}, const QStringList& says_not = {},
                    const Dialogs::Handler& answer = Pressing(Qt::Key_Return)) {
    dialogs_.ExpectMessage(kFailed, [=](QWidget& box) {
      const QString said = static_cast<QMessageBox&>(box).informativeText();
      for (const QString& words : says) EXPECT_TRUE(said.contains(words)) << qPrintable(words + " / " + said);
      for (const QString& words : says_not) EXPECT_FALSE(said.contains(words)) << qPrintable(words + " / " + said);
      answer(box);
    });
  }
  /// A file is to be asked for.
  void ExpectFileQuestion(const QString& file) {
    dialogs_.Expect([file](QWidget& window) {
      auto* box = window.findChild<QLineEdit*>("fileNameEdit");
      ASSERT_TRUE(box);
      box->setText(file);
      QTest::keyClick(window.windowHandle(), Qt::Key_Return);
    });
  }
  void Superuser(const QString& sql) {
    bool failed = false;
    const QString said = office_.Psql("postgres", sql, &failed);
    EXPECT_FALSE(failed) << said.toStdString();
  }

  dossier::TrialOffice office_;
  int client_ = 0;
};

}  // namespace brivane::app
