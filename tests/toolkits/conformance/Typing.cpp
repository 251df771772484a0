#include "tests/toolkits/conformance/Screen.h"
#include <brivane/frame/Calendar.h>
#include <brivane/host/Error.h>

/// Boxes worked by keys.
namespace brivane::test {

using testing::ElementsAre;
using testing::IsEmpty;

class Boxes : public OnScreen {
 protected:
  Boxes() {
    for (const char* name : {"txtNaam", "txtBedrag", "txtPercentage", "txtJaren", "txtDatum"}) Follow(name);
  }
};

INSTANTIATE_TEST_SUITE_P(Typing, Boxes, testing::ValuesIn(Screens()), ScreenName);

TEST_P(Boxes, HandOverOnceWhenLeftAfterAnEdit) {
  Click("txtBedrag");
  TypeOver("1234,5");
  EXPECT_THAT(log, IsEmpty());
  Press(Key::Tab);
  EXPECT_THAT(log, ElementsAre("txtBedrag = 1.234,50"));
  EXPECT_EQ(Typed("txtBedrag"), "1.234,50");
  EXPECT_EQ(Focused(), "txtPercentage");
  Press(Key::Tab, With::Shift);
  EXPECT_EQ(Focused(), "txtBedrag");
  Press(Key::Tab);
  EXPECT_EQ(log.size(), 1U);
}

TEST_P(Boxes, HandOverOnEnterAndKeepTheFocus) {
  Click("txtBedrag");
  TypeOver("12");
  Press(Key::Enter);
  EXPECT_THAT(log, ElementsAre("txtBedrag = 12,00"));
  EXPECT_EQ(Focused(), "txtBedrag");
  Press(Key::Enter);
  Press(Key::Tab);
  EXPECT_EQ(log.size(), 1U);
}

TEST_P(Boxes, HandOverNothingWhenLeftWithoutAnEdit) {
  Click("txtBedrag");
  Press(Key::Tab);
  Press(Key::Tab);
  EXPECT_THAT(log, IsEmpty());
}

TEST_P(Boxes, TakeThePointAndTheCommaOfTheKeypadAsTheDecimalSign) {
  Click("txtBedrag");
  Press('1');
  Press('2');
  Press(Key::KeypadPoint);
  Press('5');
  Press(Key::Tab);
  Press('3');
  Press(Key::KeypadComma);
  Press('7');
  Press(Key::Tab);
  EXPECT_THAT(log, ElementsAre("txtBedrag = 12,50", "txtPercentage = 3,7"));
}

TEST_P(Boxes, TakeThePointOfTheKeypadAsItIsWhereThereAreNoDecimals) {
  Click("txtNaam");
  Press('1');
  Press(Key::KeypadPoint);
  Press('5');
  Press(Key::Tab);
  EXPECT_EQ(Box("txtNaam").Text(), "1.5");
}

TEST_P(Boxes, ReckonSumsOutAndSayTheOutcomeMeanwhile) {
  Click("txtBedrag");
  TypeOver("1200/12");
  EXPECT_EQ(Note("txtBedrag"), "= 100,00");
  Press(Key::Tab);
  EXPECT_EQ(Note("txtBedrag"), "");
  EXPECT_EQ(Typed("txtBedrag"), "100,00");
  TypeOver("100/8");
  EXPECT_EQ(Note("txtPercentage"), "= 12,5");
  Press(Key::Tab);
  TypeOver("60+7");
  EXPECT_EQ(Note("txtJaren"), "");
  Press(Key::Tab);
  EXPECT_EQ(Reason("txtJaren"), "Vul een geheel getal in, zonder cijfers achter de komma.");
  EXPECT_THAT(log, ElementsAre("txtBedrag = 100,00", "txtPercentage = 12,5"));
}

TEST_P(Boxes, RefuseASumThatHasNoOutcome) {
  Box("txtBedrag").SetNumber(7);
  Click("txtBedrag");
  TypeOver("10/0");
  EXPECT_EQ(Note("txtBedrag"), "");
  Press(Key::Tab);
  EXPECT_EQ(Focused(), "txtBedrag");
  EXPECT_EQ(Reason("txtBedrag"), "Delen door nul kan niet.");
  Press(Key::Escape);
  EXPECT_EQ(Typed("txtBedrag"), "7,00");
  EXPECT_THAT(log, IsEmpty());
}

TEST_P(Boxes, ReadAPointOfTheMainKeysAsThousands) {
  Click("txtBedrag");
  TypeOver("1.500");
  Press(Key::Tab);
  EXPECT_EQ(Box("txtBedrag").Number(), 1500);
}

TEST_P(Boxes, RefuseMalformedTypingBesideTheBoxAndKeepFocusAndText) {
  Box("txtBedrag").SetNumber(7);
  Click("txtBedrag");
  TypeOver("12.50");
  Press(Key::Tab);
  EXPECT_THAT(log, IsEmpty());
  EXPECT_EQ(Focused(), "txtBedrag");
  EXPECT_EQ(Typed("txtBedrag"), "12.50");
  EXPECT_EQ(Reason("txtBedrag"), "Bedoelt u 12,50 of 1.250? Typ een komma voor de decimalen.");
  EXPECT_EQ(Box("txtBedrag").Number(), 7);
  TypeOver("12,50");
  EXPECT_EQ(Reason("txtBedrag"), "");
  Press(Key::Tab);
  EXPECT_THAT(log, ElementsAre("txtBedrag = 12,50"));
}

TEST_P(Boxes, RefusedKeepTheFocusFromAClickAndDropIt) {
  Click("txtDatum");
  TypeOver("31-2-2031");
  for (const char* name : {"jnDiep", "chkVinkje", "cboTermijn", "cmdDoen", "txtNaam", "lvwLijst", "hntDiep"}) {
    Click(name);
    EXPECT_EQ(Focused(), "txtDatum") << name;
  }
  EXPECT_EQ(Get<controls::JaNee>("jnDiep").Value(), host::kNee);
  EXPECT_EQ(Get<controls::CheckBox>("chkVinkje").Value(), host::kUnticked);
  EXPECT_EQ(Reason("txtDatum"), "31 februari 2031 bestaat niet.");
}

TEST_P(Boxes, HandOverBeforeAMnemonicPressesAButton) {
  subscriptions += Get<controls::Button>("cmdDoen").Click.Connect([this] { log.emplace_back("pressed"); });
  Click("txtBedrag");
  TypeOver("5");
  Press('D', With::Alt);
  // A button that a mnemonic presses may stay down for a moment.
  EXPECT_TRUE(subject->Await([this] { return log.size() == 2; }));
  EXPECT_THAT(log, ElementsAre("txtBedrag = 5,00", "pressed"));
}

TEST_P(Boxes, ALabelsMnemonicGoesToItsBox) {
  Click("txtDatum");
  Press('N', With::Alt);
  EXPECT_EQ(Focused(), "txtNaam");
}

TEST_P(Boxes, RefusedByTheControlKeepFocusAndText) {
  refuse = true;
  Box("txtDatum").SetDate(frame::MakeDate({2024, 1, 31}));
  Click("txtDatum");
  TypeOver("1-4-2031");
  Press(Key::Tab);
  EXPECT_THAT(log, ElementsAre("txtDatum = 01-04-2031"));
  EXPECT_EQ(Focused(), "txtDatum");
  EXPECT_EQ(Typed("txtDatum"), "1-4-2031");
  EXPECT_EQ(Reason("txtDatum"), "");
  Press(Key::Tab);
  EXPECT_EQ(log.size(), 2U);
  refuse = false;
  Press(Key::Tab);
  EXPECT_EQ(log.size(), 3U);
  EXPECT_EQ(Typed("txtDatum"), "01-04-2031");
}

TEST_P(Boxes, EscapePutsBackWhatStoodThereAlsoAfterARefusal) {
  Box("txtDatum").SetDate(frame::MakeDate({2024, 1, 31}));
  Click("txtDatum");
  TypeOver("1-4-2031");
  Press(Key::Escape);
  EXPECT_EQ(Typed("txtDatum"), "31-01-2024");
  Press(Key::Tab);
  EXPECT_THAT(log, IsEmpty());

  refuse = true;
  Click("txtDatum");
  TypeOver("1-4-2031");
  Press(Key::Tab);
  Press(Key::Escape);
  EXPECT_EQ(Typed("txtDatum"), "31-01-2024");
  EXPECT_EQ(Box("txtDatum").DateValue(), frame::MakeDate({2024, 1, 31}));
  Press(Key::Tab);
  EXPECT_EQ(log.size(), 1U);
}

TEST_P(Boxes, AnEmptiedBoxIsEmpty) {
  Box("txtPercentage").SetNumber(7);
  Click("txtPercentage");
  TypeOver("");
  Press(Key::Tab);
  EXPECT_EQ(Box("txtPercentage").Content(), controls::BoxValue());
  EXPECT_EQ(Typed("txtPercentage"), "");
}

TEST_P(Boxes, AnEmptiedAmountIsTheZeroThatItCountsFor) {
  Box("txtBedrag").SetNumber(7);
  Click("txtBedrag");
  TypeOver("");
  Press(Key::Tab);
  EXPECT_EQ(Typed("txtBedrag"), "0,00");
  EXPECT_EQ(Box("txtBedrag").Content(), controls::BoxValue(0.0));
  EXPECT_EQ(log.size(), 1U);
}

TEST_P(Boxes, DecimalsThatAreNotShownSurviveARetypedText) {
  Box("txtBedrag").SetNumber(1036.9994);
  Click("txtBedrag");
  TypeOver("1.037,00");
  Press(Key::Tab);
  EXPECT_EQ(log.size(), 1U);
  EXPECT_EQ(Box("txtBedrag").Number(), 1036.9994);
}

TEST_P(Boxes, WhatCodeWritesWhileTypingReplacesTheTyping) {
  Box("txtBedrag").SetNumber(7);
  Click("txtBedrag");
  TypeOver("12.50");
  Box("txtBedrag").SetNumber(7);
  EXPECT_EQ(Typed("txtBedrag"), "7,00");
  Press(Key::Tab);
  EXPECT_THAT(log, IsEmpty());
}

TEST_P(Boxes, AnotherWindowDoesNotHandOver) {
  Click("txtBedrag");
  TypeOver("5");
  subject->LeaveWindow();
  EXPECT_THAT(log, IsEmpty());
  subject->ReturnToWindow();
  EXPECT_EQ(Focused(), "txtBedrag");
  Press(Key::Tab);
  EXPECT_THAT(log, ElementsAre("txtBedrag = 5,00"));
}

TEST_P(Boxes, AHostHandsOverWhatIsBeingTyped) {
  controls::Surface& area = controls::Surface::Of(*surface);
  controls::PendingEdits& pending = subject->Toolkit().Pending();
  EXPECT_TRUE(pending.Commit(area));
  Click("txtBedrag");
  TypeOver("12.50");
  EXPECT_FALSE(pending.Commit(area));
  TypeOver("12,50");
  EXPECT_TRUE(pending.Commit(area));
  EXPECT_THAT(log, ElementsAre("txtBedrag = 12,50"));
}

TEST_P(Boxes, AFailureIsToldAndGoesNoFurther) {
  subscriptions.Reset();
  host::Subscription failing =
      Box("txtNaam").Validation.Connect([](bool&) { throw host::Error(host::ErrorNumber::ObjectMissing); });
  Click("txtNaam");
  TypeOver("x");
  Press(Key::Tab);
  EXPECT_THAT(log, ElementsAre("message Kwandero: Er is een fout opgetreden.\r\n91: Object missing"));
  subject->Toolkit().SetFailureListener([this](const host::Error& failure) { log.push_back(failure.Description()); });
  Click("txtNaam");
  TypeOver("y");
  Press(Key::Tab);
  EXPECT_EQ(log.back(), "Object missing");
  failing = Box("txtNaam").Validation.Connect([](bool&) { throw 5; });
  Click("txtNaam");
  TypeOver("z");
  Press(Key::Tab);
  EXPECT_EQ(log.size(), 3U);
}

TEST_P(Boxes, ALockedBoxTakesTheFocusButNoTyping) {
  Box("txtTotaal").SetNumber(3);
  Click("txtTotaal");
  EXPECT_EQ(Focused(), "txtTotaal");
  TypeOver("5");
  Press(Key::KeypadPoint);
  EXPECT_EQ(Typed("txtTotaal"), "3,00");
}

TEST_P(Boxes, ABoxMayTakeItsSurfaceAwayWhenItIsLeft) {
  for (const Key key : {Key::Tab, Key::Enter}) {
    surface = subject->Toolkit().MakeSurface(kSurface);
    subject->Show(controls::Surface::Of(*surface));
    subscriptions += Box("txtNaam").Validation.Connect([this](bool&) { surface.reset(); });
    Click("txtNaam");
    TypeOver("x");
    Press(key);
    EXPECT_EQ(surface, nullptr);
    EXPECT_TRUE(subject->IsBare());
  }
}

}  // namespace brivane::test
