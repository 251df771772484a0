#include <QAction>
#include <QCalendarWidget>
#include <QPushButton>
#include <QTest>
#include <algorithm>
#include <cmath>

#include "tests/toolkits/qt/SurfaceTest.h"
#include <brivane/frame/Calendar.h>
#include <brivane/toolkits/qt/widgets/DateBox.h>

/// The calendar that drops down from a date box.
namespace brivane::test {
namespace {

class CalendarTest : public SurfaceTest {
 protected:
  CalendarTest() {
    toolkit_.Desktop().clock = [] { return frame::MakeDate({2026, 11, 22}); };
    subscriptions_ +=
        Date().Validation.Connect([this](bool&) { log_.push_back(std::to_string(Date().DateValue().Days())); });
  }
  ~CalendarTest() override { QApplication::setPalette({}); }

  [[nodiscard]] controls::TextBox& Date() { return dynamic_cast<controls::TextBox&>(Control("txtDatum")); }
  [[nodiscard]] QWidget& Open() {
    auto& box = Entry<qt::DateBox>("txtDatum");
    box.OpenCalendar();
    QApplication::processEvents();
    return *box.Calendar();
  }
  [[nodiscard]] static QPushButton& Button(QWidget& popup) { return *popup.findChild<QPushButton*>(); }
};

/// How much brighter one colour is than another, as readers see it; 1 for the same, 21 for black on white.
double Contrast(const QColor& one, const QColor& other) {
  const auto light = [](const QColor& color) {
    const auto part = [](double value) {
      return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
  };
  const double a = light(one);
  const double b = light(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

TEST_F(CalendarTest, HasAButtonThatPicksToday) {
  Date().SetDate(frame::MakeDate({2031, 4, 1}));
  QTest::mouseClick(&Button(Open()), Qt::LeftButton);
  QApplication::processEvents();
  EXPECT_EQ(Entry<qt::DateBox>("txtDatum").Calendar(), nullptr);
  EXPECT_EQ(Date().DateValue(), frame::MakeDate({2026, 11, 22}));
  EXPECT_EQ(log_.size(), 1U);
  EXPECT_EQ(Focused(), "txtDatum");
}

TEST_F(CalendarTest, HasThatButtonByItsLetterAndByTabAndEnterToo) {
  (void)Open();
  Press(Qt::Key_V, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return log_.size() == 1; }, 1000));
  QWidget& popup = Open();
  for (int i = 0; i < 8 && !Button(popup).hasFocus(); ++i) Press(Qt::Key_Tab);
  ASSERT_TRUE(Button(popup).hasFocus());
  Press(Qt::Key_Return);
  EXPECT_EQ(log_.size(), 2U);
  EXPECT_EQ(Date().DateValue(), frame::MakeDate({2026, 11, 22}));
}

TEST_F(CalendarTest, ClosesByEscapeFromItsButton) {
  QWidget& popup = Open();
  Button(popup).setFocus();
  Press(Qt::Key_Escape);
  EXPECT_EQ(Entry<qt::DateBox>("txtDatum").Calendar(), nullptr);
  EXPECT_TRUE(log_.empty());
}

TEST_F(CalendarTest, ShowsWeekendsThatCanBeReadOnLightAndDarkPaper) {
  for (const QColor& paper : {QColor(Qt::white), QColor(0x26, 0x27, 0x2a), QColor(Qt::black)}) {
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Base, paper);
    palette.setColor(QPalette::AlternateBase, paper);
    QApplication::setPalette(palette);
    QWidget& popup = Open();
    const auto& calendar = *popup.findChild<QCalendarWidget*>();
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
      EXPECT_GE(Contrast(calendar.weekdayTextFormat(day).foreground().color(), paper), 7) << paper.name().toStdString();
    popup.close();
    QApplication::processEvents();
  }
}

/// The calendar is open while the desktop goes dark.
TEST_F(CalendarTest, FollowsThePalette) {
  const auto& calendar = *Open().findChild<QCalendarWidget*>();
  const auto weekend = [&] { return calendar.weekdayTextFormat(Qt::Sunday).foreground().color(); };
  const QColor before = weekend();
  QPalette palette = QApplication::palette();
  palette.setColor(QPalette::Base, Qt::black);
  QApplication::setPalette(palette);
  QApplication::processEvents();
  EXPECT_NE(weekend(), before);
  EXPECT_GE(Contrast(weekend(), Qt::black), 7);
}

/// As any key of a window: a date that nobody went to leaves it alone.
TEST_F(CalendarTest, StepsLeaveTheWindowsShortcutsAloneWhereCodePutTheFocus) {
  int shortcuts = 0;
  QAction next;
  next.setShortcut(QKeySequence(Qt::CTRL | Qt::Key_PageDown));
  QObject::connect(&next, &QAction::triggered, [&] { ++shortcuts; });
  window_.addAction(&next);
  Date().SetDate(frame::MakeDate({2031, 4, 1}));
  Date().SetFocus();
  Press(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(shortcuts, 1);
  EXPECT_EQ(Entry("txtDatum").text(), "01-04-2031");
  // Somebody who types there means the date, and so does who goes there.
  Press(Qt::Key_PageDown);
  Press(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Entry("txtDatum").text(), "01-05-2032");
  Press(Qt::Key_Escape);
  Focus("txtNaam");
  Focus("txtDatum");
  Press(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Entry("txtDatum").text(), "01-04-2032");
  EXPECT_EQ(shortcuts, 1);
}

}  // namespace
}  // namespace brivane::test
