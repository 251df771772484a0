#include "tests/toolkits/conformance/Screen.h"
#include <brivane/frame/Calendar.h>

/// Date boxes and the calendar that drops down.
namespace brivane::test {

using testing::IsEmpty;

class Dates : public OnScreen {
 protected:
  Dates() { Follow("txtDatum"); }

  [[nodiscard]] bool CalendarIsOpen() { return subject->CalendarIsOpen(Control("txtDatum")); }
  void ClickCalendarButton() { subject->ClickCalendarButton(Control("txtDatum")); }
};

INSTANTIATE_TEST_SUITE_P(Typing, Dates, testing::ValuesIn(Screens()), ScreenName);

TEST_P(Dates, TheCalendarDropsDownByKeyAndAPickIsHandedOver) {
  Box("txtDatum").SetDate(frame::MakeDate({2031, 4, 1}));
  for (const auto& [key, with] : {std::pair{Key::F4, With::None}, std::pair{Key::Down, With::Alt}}) {
    log.clear();
    Click("txtDatum");
    Press(key, with);
    ASSERT_TRUE(CalendarIsOpen());
    Press(Key::Right);
    Press(Key::Enter);
    EXPECT_FALSE(CalendarIsOpen());
    ASSERT_EQ(log.size(), 1U);
    EXPECT_EQ(Focused(), "txtDatum");
  }
  EXPECT_EQ(log.back(), "txtDatum = 03-04-2031");
}

TEST_P(Dates, EscapeClosesTheCalendarAndChangesNothing) {
  Box("txtDatum").SetDate(frame::MakeDate({2031, 4, 1}));
  Click("txtDatum");
  Press(Key::F4);
  Press(Key::Right);
  Press(Key::Escape);
  EXPECT_FALSE(CalendarIsOpen());
  Press(Key::Tab);
  EXPECT_EQ(Box("txtDatum").DateValue(), frame::MakeDate({2031, 4, 1}));
  EXPECT_THAT(log, IsEmpty());
}

TEST_P(Dates, AClickOnTheButtonDropsTheCalendarDown) {
  ClickCalendarButton();
  EXPECT_TRUE(CalendarIsOpen());
  Press(Key::Escape);
  EXPECT_FALSE(CalendarIsOpen());
}

TEST_P(Dates, ADisabledOrLockedBoxHasNoCalendar) {
  Control("txtDatum").Host().SetEnabled(false);
  ClickCalendarButton();
  EXPECT_FALSE(CalendarIsOpen());
  Control("txtDatum").Host().SetEnabled(true);
  Box("txtDatum").SetLocked(true);
  ClickCalendarButton();
  EXPECT_FALSE(CalendarIsOpen());
  Click("txtDatum");
  Press(Key::F4);
  EXPECT_FALSE(CalendarIsOpen());
}

}  // namespace brivane::test
