#include "tests/toolkits/win32/SurfaceTest.h"
#include <brivane/frame/Calendar.h>
#include <brivane/toolkits/win32/controls/Calendar.h>
#include <brivane/toolkits/win32/controls/DateWindow.h>

/// Boxes worked by keys.
namespace brivane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Boxes : public SurfaceTest {
 protected:
  Boxes() {
    for (const char* name : {"txtNaam", "txtBedrag", "txtPercentage", "txtJaren", "txtDatum"}) Follow(name);
  }
};

TEST_F(Boxes, TheReasonStandsUnderItsBoxUntilSomethingIsTyped) {
  Focus("txtBedrag");
  TypeOver(L"12.50");
  Press(VK_TAB);
  const HWND bubble = Entry("txtBedrag").ReasonShown()->Handle();
  EXPECT_TRUE(IsWindowVisible(bubble));
  RECT reason{};
  RECT box{};
  GetWindowRect(bubble, &reason);
  GetWindowRect(WindowOf("txtBedrag"), &box);
  EXPECT_GE(reason.top, box.bottom);
  EXPECT_LE(reason.top, box.bottom + 4);
  EXPECT_EQ(reason.left, box.left);
  TypeOver(L"12,50");
  EXPECT_FALSE(IsWindow(bubble));
}

TEST_F(Boxes, TextOutsideAsciiIsTakenAndShown) {
  Focus("txtNaam");
  TypeOver(L"Zoë € 日");
  Press(VK_TAB);
  EXPECT_EQ(Box("txtNaam").Text(), "Zoë € 日");
  EXPECT_EQ(Typed("txtNaam"), "Zoë € 日");
}

TEST_F(Boxes, AnotherControlOfTheContainerDoesHandOver) {
  const HWND sibling = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 700, 500, 50, 20, stage_.Window(),
                                       nullptr, nullptr, nullptr);
  Focus("txtBedrag");
  TypeOver(L"5");
  SetFocus(sibling);
  stage_.Settle();
  EXPECT_THAT(log_, ElementsAre("txtBedrag = 5,00"));
  EXPECT_EQ(GetFocus(), sibling);

  refuse_ = true;
  Focus("txtBedrag");
  TypeOver(L"6");
  SetFocus(sibling);
  stage_.Settle();
  EXPECT_EQ(Focused(), "txtBedrag");
}

class Dates : public Boxes {
 protected:
  [[nodiscard]] win32::DateWindow& Date() { return Entry<win32::DateWindow>("txtDatum"); }
  [[nodiscard]] POINT Button() {
    RECT area{};
    GetClientRect(WindowOf("txtDatum"), &area);
    return {area.right + 8, area.bottom / 2};
  }
};

TEST_F(Dates, TheKeysMoveTheDay) {
  struct Case {
    WORD key;
    frame::YearMonthDay day;
  };
  for (const Case& c : {Case{VK_LEFT, {2031, 3, 30}}, Case{VK_RIGHT, {2031, 4, 1}}, Case{VK_UP, {2031, 3, 24}},
                        Case{VK_DOWN, {2031, 4, 7}}, Case{VK_PRIOR, {2031, 2, 28}}, Case{VK_NEXT, {2031, 4, 30}}}) {
    Box("txtDatum").SetDate(frame::MakeDate({2031, 3, 31}));
    Focus("txtDatum");
    Press(VK_F4);
    Press(c.key);
    Press(VK_RETURN);
    EXPECT_EQ(frame::Split(Box("txtDatum").DateValue()), c.day) << c.key;
  }
}

TEST_F(Dates, AClickOnTheButtonDropsTheCalendarDownAndAClickOnADayPicksIt) {
  Box("txtDatum").SetDate(frame::MakeDate({2031, 4, 1}));
  Click(WindowOf("txtDatum"), Button());
  const HWND calendar = Date().CalendarShown();
  ASSERT_NE(calendar, nullptr);
  // April 2031 begins on a Tuesday; the middle of the month stands in the middle of the calendar.
  Click(GetWindow(calendar, GW_CHILD));
  EXPECT_EQ(Date().CalendarShown(), nullptr);
  const frame::YearMonthDay day = frame::Split(Box("txtDatum").DateValue());
  EXPECT_EQ(day.month, 4);
  EXPECT_GE(day.day, 8);
  EXPECT_LE(day.day, 27);
  EXPECT_EQ(log_.size(), 1U);
  EXPECT_EQ(Focused(), "txtDatum");
}

TEST_F(Dates, ASecondClickOnTheButtonAndLeavingTheBoxCloseTheCalendar) {
  Click(WindowOf("txtDatum"), Button());
  Click(WindowOf("txtDatum"), Button());
  EXPECT_EQ(Date().CalendarShown(), nullptr);
  Click(WindowOf("txtDatum"), Button());
  Focus("txtNaam");
  EXPECT_EQ(Date().CalendarShown(), nullptr);
  EXPECT_THAT(log_, IsEmpty());
}

TEST_F(Dates, AClickOnSomethingThatTakesNoFocusClosesTheCalendar) {
  Click(WindowOf("txtDatum"), Button());
  Click(win32::Toolkit::WindowOf(*surface_), {790, 410});
  EXPECT_EQ(Date().CalendarShown(), nullptr);
  Click(WindowOf("txtDatum"), Button());
  Focus("txtDatum");
  EXPECT_EQ(Date().CalendarShown(), nullptr);
  EXPECT_EQ(Focused(), "txtDatum");
  EXPECT_THAT(log_, IsEmpty());
}

TEST_F(Dates, AnEmptyBoxOpensTheCalendarOnToday) {
  toolkit_.Desktop().clock = [] { return frame::MakeDate({2026, 11, 21}); };
  Focus("txtDatum");
  Press(VK_F4);
  Press(VK_RETURN);
  EXPECT_THAT(log_, ElementsAre("txtDatum = 21-11-2026"));
}

}  // namespace
}  // namespace brivane::test
