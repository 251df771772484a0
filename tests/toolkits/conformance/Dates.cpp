#include "tests/toolkits/conformance/Screen.h"
#include <brivane/frame/Calendar.h>

/// Date boxes and the calendar that drops down.
namespace brivane::test {

using testing::ElementsAre;
using testing::IsEmpty;

class Dates : public OnScreen {
 protected:
  Dates() { Follow("txtDatum"); }

  [[nodiscard]] bool CalendarIsOpen() { return subject->CalendarIsOpen(Control("txtDatum")); }
  void GiveFocus(std::string_view name) { subject->GiveFocus(Control(name)); }
  void ClickCalendarButton() { subject->ClickCalendarButton(Control("txtDatum")); }
};

INSTANTIATE_TEST_SUITE_P(Typing, Dates, testing::ValuesIn(Screens()), ScreenName);

class TypedDates : public Dates {
 protected:
  TypedDates() {
    Follow("txtTot");
    subject->SetToday(frame::MakeDate({2026, 11, 22}));
  }
};

INSTANTIATE_TEST_SUITE_P(Typing, TypedDates, testing::ValuesIn(Screens()), ScreenName);

TEST_P(TypedDates, AreReadInShortAndSaidInWordsMeanwhile) {
  Click("txtDatum");
  TypeOver("t");
  EXPECT_EQ(Typed("txtDatum"), "t");
  EXPECT_EQ(Note("txtDatum"), "zondag 22 november 2026");
  EXPECT_EQ(Reason("txtDatum"), "");
  Press(Key::Enter);
  EXPECT_EQ(Note("txtDatum"), "");
  EXPECT_EQ(Typed("txtDatum"), "22-11-2026");
  TypeOver("1-4");
  EXPECT_EQ(Note("txtDatum"), "woensdag 1 april 2026");
  Press(Key::Enter);
  GiveFocus("txtTot");
  TypeOver("18m");
  EXPECT_EQ(Note("txtTot"), "vrijdag 1 oktober 2027");
  Press(Key::Enter);
  EXPECT_THAT(log, ElementsAre("txtDatum = 22-11-2026", "txtDatum = 01-04-2026", "txtTot = 01-10-2027"));
}

TEST_P(TypedDates, AreRefusedBesideTheBoxInPlaceOfTheNote) {
  GiveFocus("txtTot");
  TypeOver("3j");
  EXPECT_EQ(Note("txtTot"), "");
  Press(Key::Enter);
  EXPECT_EQ(Reason("txtTot"), "\"3j\" telt vanaf \"Datum\", en daar staat geen datum.");
  TypeOver("v");
  EXPECT_EQ(Reason("txtTot"), "");
  EXPECT_EQ(Note("txtTot"), "zondag 22 november 2026");
  Press(Key::Escape);
  EXPECT_EQ(Note("txtTot"), "");
  EXPECT_EQ(Typed("txtTot"), "");
  EXPECT_THAT(log, IsEmpty());
}

TEST_P(TypedDates, MoveByKeysAndAreHandedOverOnce) {
  Box("txtDatum").SetDate(frame::MakeDate({2031, 1, 31}));
  Click("txtDatum");
  Press(Key::PageDown);
  EXPECT_EQ(Typed("txtDatum"), "28-02-2031");
  subject->Type("+");
  EXPECT_EQ(Typed("txtDatum"), "01-03-2031");
  subject->Type("-");
  subject->Type("-");
  EXPECT_EQ(Typed("txtDatum"), "27-02-2031");
  Press(Key::PageUp, With::Control);
  EXPECT_EQ(Typed("txtDatum"), "27-02-2030");
  Press(Key::PageDown, With::Control);
  Press(Key::PageUp);
  EXPECT_EQ(Typed("txtDatum"), "27-01-2031");
  EXPECT_EQ(Note("txtDatum"), "maandag 27 januari 2031");
  EXPECT_THAT(log, IsEmpty());
  Press(Key::Tab);
  EXPECT_THAT(log, ElementsAre("txtDatum = 27-01-2031"));
  EXPECT_EQ(Note("txtDatum"), "");
}

TEST_P(TypedDates, ThatWereMovedArePutBackByEscape) {
  Box("txtDatum").SetDate(frame::MakeDate({2031, 4, 1}));
  Click("txtDatum");
  Press(Key::PageDown);
  Press(Key::Escape);
  EXPECT_EQ(Typed("txtDatum"), "01-04-2031");
  Press(Key::Tab);
  EXPECT_THAT(log, IsEmpty());
}

TEST_P(TypedDates, KeepTheirHyphensAndLettersWhereTheyAreTyped) {
  Click("txtDatum");
  TypeOver("1-4-2031");
  EXPECT_EQ(Typed("txtDatum"), "1-4-2031");
  Press(Key::Enter);
  Click("txtNaam");
  TypeOver("t+v-");
  Press(Key::PageDown);
  EXPECT_EQ(Typed("txtNaam"), "t+v-");
  EXPECT_EQ(Note("txtNaam"), "");
  EXPECT_THAT(log, ElementsAre("txtDatum = 01-04-2031"));
}

TEST_P(TypedDates, StayWhereTheBoxIsLocked) {
  Box("txtDatum").SetDate(frame::MakeDate({2031, 4, 1}));
  Box("txtDatum").SetLocked(true);
  Click("txtDatum");
  Press(Key::PageDown);
  Press(Key::PageDown, With::Control);
  subject->Type("+");
  EXPECT_EQ(Typed("txtDatum"), "01-04-2031");
  Press(Key::Tab);
  EXPECT_THAT(log, IsEmpty());
}

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

TEST_P(TypedDates, ThatArePickedGoByTheKeysOfTheCalendar) {
  Box("txtDatum").SetDate(frame::MakeDate({2031, 3, 31}));
  Click("txtDatum");
  Press(Key::F4);
  Press(Key::PageUp);
  Press(Key::PageUp, With::Control);
  Press(Key::Down);
  Press(Key::Enter);
  EXPECT_THAT(log, ElementsAre("txtDatum = 07-03-2030"));
  Press(Key::F4);
  Press(Key::Home);
  Press(Key::Left);
  Press(Key::Enter);
  EXPECT_EQ(log.back(), "txtDatum = 21-11-2026");
  Press(Key::F4);
  Press(Key::PageDown);
  Press(Key::PageDown, With::Control);
  Press(Key::Enter);
  EXPECT_EQ(log.back(), "txtDatum = 21-12-2027");
  EXPECT_EQ(Focused(), "txtDatum");
}

TEST_P(TypedDates, ThatArePickedBeginAtTodayWhereNoneIsThere) {
  Click("txtDatum");
  Press(Key::F4);
  Press(Key::Enter);
  EXPECT_THAT(log, ElementsAre("txtDatum = 22-11-2026"));
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
