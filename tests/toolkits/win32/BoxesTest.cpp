#include "controls/Choices.h"
#include "controls/Plain.h"
#include "frame/Calendar.h"
#include "tests/toolkits/win32/SurfaceTest.h"
#include "toolkits/win32/controls/Calendar.h"
#include "toolkits/win32/controls/DateWindow.h"

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

TEST_F(Boxes, HandOverOnceWhenLeftAfterAnEdit) {
  Focus("txtBedrag");
  TypeOver(L"1234,5");
  EXPECT_THAT(log_, IsEmpty());
  Press(VK_TAB);
  EXPECT_THAT(log_, ElementsAre("txtBedrag = 1.234,50"));
  EXPECT_EQ(Typed("txtBedrag"), "1.234,50");
  EXPECT_EQ(Focused(), "txtPercentage");
  Press(VK_TAB, With::Shift);
  EXPECT_EQ(Focused(), "txtBedrag");
  Press(VK_TAB);
  EXPECT_EQ(log_.size(), 1U);
}

TEST_F(Boxes, HandOverOnEnterAndKeepTheFocus) {
  Focus("txtBedrag");
  TypeOver(L"12");
  Press(VK_RETURN);
  EXPECT_THAT(log_, ElementsAre("txtBedrag = 12,00"));
  EXPECT_EQ(Focused(), "txtBedrag");
  Press(VK_RETURN);
  Press(VK_TAB);
  EXPECT_EQ(log_.size(), 1U);
}

TEST_F(Boxes, HandOverNothingWhenLeftWithoutAnEdit) {
  Focus("txtBedrag");
  Press(VK_TAB);
  Press(VK_TAB);
  EXPECT_THAT(log_, IsEmpty());
}

TEST_F(Boxes, TakeThePointOfTheKeypadAsTheDecimalSign) {
  Focus("txtBedrag");
  Press('1');
  Press('2');
  Press(VK_DECIMAL);
  Press('5');
  Press(VK_TAB);
  Press('3');
  Press(VK_SEPARATOR);
  Press('7');
  Press(VK_TAB);
  EXPECT_THAT(log_, ElementsAre("txtBedrag = 12,50", "txtPercentage = 3,7"));
}

TEST_F(Boxes, TakeThePointOfTheKeypadAsItIsWhereThereAreNoDecimals) {
  Focus("txtNaam");
  Press('1');
  Press(VK_DECIMAL);
  Press('5');
  Press(VK_TAB);
  EXPECT_EQ(Box("txtNaam").Text(), "1.5");
}

TEST_F(Boxes, ReadAPointOfTheMainKeysAsThousands) {
  Focus("txtBedrag");
  TypeOver(L"1.500");
  Press(VK_TAB);
  EXPECT_EQ(Box("txtBedrag").Number(), 1500);
}

TEST_F(Boxes, RefuseMalformedTypingBesideTheBoxAndKeepFocusAndText) {
  Box("txtBedrag").SetNumber(7);
  Focus("txtBedrag");
  TypeOver(L"12.50");
  Press(VK_TAB);
  EXPECT_THAT(log_, IsEmpty());
  EXPECT_EQ(Focused(), "txtBedrag");
  EXPECT_EQ(Typed("txtBedrag"), "12.50");
  EXPECT_EQ(Reason("txtBedrag"), "Bedoelt u 12,50 of 1.250? Typ een komma voor de decimalen.");
  EXPECT_EQ(Box("txtBedrag").Number(), 7);

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
  EXPECT_EQ(Reason("txtBedrag"), "");
  EXPECT_FALSE(IsWindow(bubble));
  Press(VK_TAB);
  EXPECT_THAT(log_, ElementsAre("txtBedrag = 12,50"));
}

TEST_F(Boxes, RefusedKeepTheFocusFromAClickAndDropIt) {
  Focus("txtDatum");
  TypeOver(L"31-2-2031");
  for (const char* name : {"jnDiep", "chkVinkje", "cboTermijn", "cmdDoen", "txtNaam", "lvwLijst", "hntDiep"}) {
    Click(WindowOf(name));
    EXPECT_EQ(Focused(), "txtDatum") << name;
  }
  EXPECT_EQ(static_cast<controls::JaNee&>(Control("jnDiep")).Value(), host::kNee);
  EXPECT_EQ(static_cast<controls::CheckBox&>(Control("chkVinkje")).Value(), host::kUnticked);
  EXPECT_EQ(Reason("txtDatum"), "31 februari 2031 bestaat niet.");
}

TEST_F(Boxes, HandOverBeforeAMnemonicPressesAButton) {
  subscriptions_ +=
      static_cast<controls::Button&>(Control("cmdDoen")).Click.Connect([this] { log_.emplace_back("pressed"); });
  Focus("txtBedrag");
  TypeOver(L"5");
  Press('D', With::Alt);
  EXPECT_THAT(log_, ElementsAre("txtBedrag = 5,00", "pressed"));
}

TEST_F(Boxes, ALabelsMnemonicGoesToItsBox) {
  Focus("txtDatum");
  Press('N', With::Alt);
  EXPECT_EQ(Focused(), "txtNaam");
}

TEST_F(Boxes, RefusedByTheControlKeepFocusAndText) {
  refuse_ = true;
  Box("txtDatum").SetDate(frame::MakeDate({2024, 1, 31}));
  Focus("txtDatum");
  TypeOver(L"1-4-2031");
  Press(VK_TAB);
  EXPECT_THAT(log_, ElementsAre("txtDatum = 01-04-2031"));
  EXPECT_EQ(Focused(), "txtDatum");
  EXPECT_EQ(Typed("txtDatum"), "1-4-2031");
  EXPECT_EQ(Reason("txtDatum"), "");
  Press(VK_TAB);
  EXPECT_EQ(log_.size(), 2U);
  refuse_ = false;
  Press(VK_TAB);
  EXPECT_EQ(log_.size(), 3U);
  EXPECT_EQ(Typed("txtDatum"), "01-04-2031");
}

TEST_F(Boxes, EscapePutsBackWhatStoodThereAlsoAfterARefusal) {
  Box("txtDatum").SetDate(frame::MakeDate({2024, 1, 31}));
  Focus("txtDatum");
  TypeOver(L"1-4-2031");
  Press(VK_ESCAPE);
  EXPECT_EQ(Typed("txtDatum"), "31-01-2024");
  Press(VK_TAB);
  EXPECT_THAT(log_, IsEmpty());

  refuse_ = true;
  Focus("txtDatum");
  TypeOver(L"1-4-2031");
  Press(VK_TAB);
  Press(VK_ESCAPE);
  EXPECT_EQ(Typed("txtDatum"), "31-01-2024");
  EXPECT_EQ(Box("txtDatum").DateValue(), frame::MakeDate({2024, 1, 31}));
  Press(VK_TAB);
  EXPECT_EQ(log_.size(), 1U);
}

TEST_F(Boxes, AnEmptiedBoxIsEmpty) {
  Box("txtBedrag").SetNumber(7);
  Focus("txtBedrag");
  TypeOver(L"");
  Press(VK_TAB);
  EXPECT_EQ(Box("txtBedrag").Content(), controls::BoxValue());
}

TEST_F(Boxes, DecimalsThatAreNotShownSurviveARetypedText) {
  Box("txtBedrag").SetNumber(1036.9994);
  Focus("txtBedrag");
  TypeOver(L"1.037,00");
  Press(VK_TAB);
  EXPECT_EQ(log_.size(), 1U);
  EXPECT_EQ(Box("txtBedrag").Number(), 1036.9994);
}

TEST_F(Boxes, WhatCodeWritesWhileTypingReplacesTheTyping) {
  Box("txtBedrag").SetNumber(7);
  Focus("txtBedrag");
  TypeOver(L"12.50");
  Box("txtBedrag").SetNumber(7);
  EXPECT_EQ(Typed("txtBedrag"), "7,00");
  Press(VK_TAB);
  EXPECT_THAT(log_, IsEmpty());
}

TEST_F(Boxes, TextOutsideAsciiIsTakenAndShown) {
  Focus("txtNaam");
  TypeOver(L"Zoë € 日");
  Press(VK_TAB);
  EXPECT_EQ(Box("txtNaam").Text(), "Zoë € 日");
  EXPECT_EQ(Typed("txtNaam"), "Zoë € 日");
}

TEST_F(Boxes, AnotherWindowDoesNotHandOverButAnotherControlOfTheContainerDoes) {
  Focus("txtBedrag");
  TypeOver(L"5");
  const HWND other =
      CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr, nullptr, nullptr);
  SetForegroundWindow(other);
  SetFocus(other);
  stage_.Settle();
  EXPECT_THAT(log_, IsEmpty());
  DestroyWindow(other);
  SetForegroundWindow(stage_.Window());
  const HWND sibling = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 700, 500, 50, 20, stage_.Window(),
                                       nullptr, nullptr, nullptr);
  SetFocus(WindowOf("txtBedrag"));
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

TEST_F(Boxes, AHostHandsOverWhatIsBeingTyped) {
  EXPECT_TRUE(toolkit_.CommitPending(*surface_));
  Focus("txtBedrag");
  TypeOver(L"12.50");
  EXPECT_FALSE(toolkit_.CommitPending(*surface_));
  TypeOver(L"12,50");
  EXPECT_TRUE(toolkit_.CommitPending(*surface_));
  EXPECT_THAT(log_, ElementsAre("txtBedrag = 12,50"));
}

TEST_F(Boxes, AFailureIsToldAndDoesNotCrossTheWindowProcedure) {
  subscriptions_.Reset();
  host::Subscription listener =
      Box("txtNaam").Validation.Connect([](bool&) { throw host::Error(host::ErrorNumber::ObjectMissing); });
  Focus("txtNaam");
  TypeOver(L"x");
  Press(VK_TAB);
  EXPECT_THAT(log_, ElementsAre("message Kwandero: Er is een fout opgetreden.\r\n91: Object missing"));
  toolkit_.SetFailureListener([this](const host::Error& failure) { log_.push_back(failure.Description()); });
  Focus("txtNaam");
  TypeOver(L"y");
  Press(VK_TAB);
  EXPECT_EQ(log_.back(), "Object missing");
  listener = Box("txtNaam").Validation.Connect([](bool&) { throw 5; });
  Focus("txtNaam");
  TypeOver(L"z");
  Press(VK_TAB);
  EXPECT_EQ(log_.size(), 3U);
}

TEST_F(Boxes, ALockedBoxTakesTheFocusButNoTyping) {
  Box("txtTotaal").SetNumber(3);
  Focus("txtTotaal");
  EXPECT_EQ(Focused(), "txtTotaal");
  TypeOver(L"5");
  Press(VK_DECIMAL);
  EXPECT_EQ(Typed("txtTotaal"), "3,00");
}

TEST_F(Boxes, ABoxMayTakeItsSurfaceAwayWhenItIsLeft) {
  subscriptions_ += Box("txtNaam").Validation.Connect([this](bool&) { surface_.reset(); });
  Focus("txtNaam");
  TypeOver(L"x");
  Press(VK_TAB);
  EXPECT_EQ(surface_, nullptr);
  EXPECT_EQ(GetWindow(stage_.Window(), GW_CHILD), nullptr);
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

TEST_F(Dates, TheCalendarDropsDownByKeyAndAPickIsHandedOver) {
  Box("txtDatum").SetDate(frame::MakeDate({2031, 4, 1}));
  for (const auto& [key, with] : {std::pair{WORD{VK_F4}, With::None}, std::pair{WORD{VK_DOWN}, With::Alt}}) {
    log_.clear();
    Focus("txtDatum");
    Press(key, with);
    ASSERT_NE(Date().CalendarShown(), nullptr);
    EXPECT_TRUE(IsWindowVisible(Date().CalendarShown()));
    Press(VK_RIGHT);
    Press(VK_RETURN);
    EXPECT_EQ(Date().CalendarShown(), nullptr);
    ASSERT_EQ(log_.size(), 1U);
    EXPECT_EQ(Focused(), "txtDatum");
  }
  EXPECT_EQ(log_.back(), "txtDatum = 03-04-2031");
}

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

TEST_F(Dates, EscapeClosesTheCalendarAndChangesNothing) {
  Box("txtDatum").SetDate(frame::MakeDate({2031, 4, 1}));
  Focus("txtDatum");
  Press(VK_F4);
  Press(VK_RIGHT);
  Press(VK_ESCAPE);
  EXPECT_EQ(Date().CalendarShown(), nullptr);
  Press(VK_TAB);
  EXPECT_EQ(Box("txtDatum").DateValue(), frame::MakeDate({2031, 4, 1}));
  EXPECT_THAT(log_, IsEmpty());
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

TEST_F(Dates, ADisabledOrLockedBoxHasNoCalendar) {
  Control("txtDatum").Host().SetEnabled(false);
  Click(WindowOf("txtDatum"), Button());
  EXPECT_EQ(Date().CalendarShown(), nullptr);
  Control("txtDatum").Host().SetEnabled(true);
  Box("txtDatum").SetLocked(true);
  Click(WindowOf("txtDatum"), Button());
  Press(VK_F4);
  EXPECT_EQ(Date().CalendarShown(), nullptr);
}

}  // namespace
}  // namespace brivane::test
