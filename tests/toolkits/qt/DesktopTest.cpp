#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <brivane/frame/Calendar.h>
#include <brivane/toolkits/qt/Desktop.h>

namespace brivane::qt {
namespace {

/// Opens a message box, presses a key in it, and gives the captions of its buttons.
host::MessageAnswer Answer(host::MessageStyle style, Qt::Key key, QStringList* seen = nullptr) {
  Desktop desktop;
  desktop.pause = {};
  QTimer::singleShot(0, [key, seen] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    if (seen != nullptr) {
      seen->append(box->windowTitle());
      seen->append(box->text());
      for (const QAbstractButton* button : box->buttons()) seen->append(button->text());
    }
    QTest::keyClick(box, key);
  });
  return desktop.MessageBox("Onjuiste invoer", "Een\r\nTwee", style);
}

TEST(QtDesktop, AMessageBoxHasDutchButtons) {
  QStringList seen;
  EXPECT_EQ(Answer(host::MessageStyle::OkExclamation, Qt::Key_Return, &seen), host::MessageAnswer::Ok);
  EXPECT_EQ(seen, (QStringList{"Onjuiste invoer", "Een\nTwee", "OK"}));
  EXPECT_EQ(Answer(host::MessageStyle::OkExclamation, Qt::Key_Escape), host::MessageAnswer::Ok);
}

TEST(QtDesktop, AQuestionHasDutchButtonsAndEscapeIsNo) {
  QStringList seen;
  EXPECT_EQ(Answer(host::MessageStyle::YesNoQuestion, Qt::Key_Escape, &seen), host::MessageAnswer::No);
  EXPECT_EQ(seen.mid(2), (QStringList{"&Ja", "&Nee"}));
}

TEST(QtDesktop, WholeNumbersAreGroupedByTheLocaleAndHalvesGoAwayFromZero) {
  struct Case {
    double number;
    const char* dutch;
  };
  const Desktop desktop;
  const QLocale before;
  QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
  for (const Case& c : {Case{0, "0"}, Case{2.5, "3"}, Case{-2.5, "-3"}, Case{-0.4, "0"}, Case{25000, "25.000"},
                        Case{1234567.4, "1.234.567"}})
    EXPECT_EQ(desktop.FormatWhole(c.number), c.dutch) << c.number;
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  EXPECT_EQ(desktop.FormatWhole(25000), "25,000");
  QLocale::setDefault(before);
}

TEST(QtDesktop, TellsTitleScreenAndDate) {
  Desktop desktop;
  EXPECT_EQ(desktop.ApplicationTitle(), "Dossier");
  EXPECT_EQ(desktop.TwipsPerPixelX(), 15);
  EXPECT_EQ(desktop.TwipsPerPixelY(), 15);
  EXPECT_GE(desktop.Today(), frame::MakeDate({2020, 1, 1}));
  desktop.clock = [] { return frame::MakeDate({2026, 11, 21}); };
  EXPECT_EQ(desktop.Today(), frame::MakeDate({2026, 11, 21}));
}

TEST(QtDesktop, PendingEventsRun) {
  Desktop desktop;
  bool ran = false;
  QTimer::singleShot(0, [&] { ran = true; });
  desktop.DoPendingEvents();
  EXPECT_TRUE(ran);
}

TEST(QtDesktop, LeavesThePointerOfTheHostAsItIs) {
  Desktop desktop;
  QApplication::setOverrideCursor(Qt::WaitCursor);
  desktop.ResetMousePointer();
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  QApplication::restoreOverrideCursor();
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace brivane::qt
