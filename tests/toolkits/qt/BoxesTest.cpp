#include <QTest>

#include "frame/Calendar.h"
#include "tests/toolkits/qt/SurfaceTest.h"
#include "toolkits/qt/widgets/DateBox.h"

/// Boxes worked by keys alone.
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
  TypeOver("1234,5");
  EXPECT_THAT(log_, IsEmpty());
  Press(Qt::Key_Tab);
  EXPECT_THAT(log_, ElementsAre("txtBedrag = 1.234,50"));
  EXPECT_EQ(Entry("txtBedrag").text(), "1.234,50");
  EXPECT_EQ(Focused(), "txtPercentage");
  Press(Qt::Key_Backtab);
  Press(Qt::Key_Tab);
  EXPECT_EQ(log_.size(), 1U);
}

TEST_F(Boxes, HandOverOnEnterAndKeepTheFocus) {
  Focus("txtBedrag");
  TypeOver("12");
  Press(Qt::Key_Return);
  EXPECT_THAT(log_, ElementsAre("txtBedrag = 12,00"));
  EXPECT_EQ(Focused(), "txtBedrag");
  Press(Qt::Key_Return);
  Press(Qt::Key_Tab);
  EXPECT_EQ(log_.size(), 1U);
}

TEST_F(Boxes, HandOverNothingWhenLeftWithoutAnEdit) {
  Focus("txtBedrag");
  Press(Qt::Key_Tab);
  Press(Qt::Key_Tab);
  EXPECT_THAT(log_, IsEmpty());
}

TEST_F(Boxes, TakeThePointAndTheCommaOfTheKeypadAsTheDecimalSign) {
  Focus("txtBedrag");
  Press(Qt::Key_1);
  Press(Qt::Key_2);
  Press(Qt::Key_Period, Qt::KeypadModifier);
  Press(Qt::Key_5);
  Press(Qt::Key_Tab);
  Press(Qt::Key_3);
  Press(Qt::Key_Comma, Qt::KeypadModifier);
  Press(Qt::Key_7);
  Press(Qt::Key_Tab);
  EXPECT_THAT(log_, ElementsAre("txtBedrag = 12,50", "txtPercentage = 3,7"));
}

TEST_F(Boxes, ReadAPointOfTheMainKeysAsThousands) {
  Focus("txtBedrag");
  TypeOver("1.500");
  Press(Qt::Key_Tab);
  EXPECT_EQ(Box("txtBedrag").Number(), 1500);
}

TEST_F(Boxes, RefuseMalformedTypingBesideTheBoxAndKeepFocusAndText) {
  Box("txtBedrag").SetNumber(7);
  Focus("txtBedrag");
  TypeOver("12.50");
  Press(Qt::Key_Tab);
  EXPECT_THAT(log_, IsEmpty());
  EXPECT_EQ(Focused(), "txtBedrag");
  EXPECT_EQ(Entry("txtBedrag").text(), "12.50");
  EXPECT_EQ(qt::Bubble::ReasonOf(Entry("txtBedrag")), "Bedoelt u 12,50 of 1.250? Typ een komma voor de decimalen.");
  EXPECT_EQ(Entry("txtBedrag").accessibleDescription(), qt::Bubble::ReasonOf(Entry("txtBedrag")));
  EXPECT_EQ(Box("txtBedrag").Number(), 7);
  TypeOver("12,50");
  EXPECT_EQ(qt::Bubble::ReasonOf(Entry("txtBedrag")), "");
  Press(Qt::Key_Tab);
  EXPECT_THAT(log_, ElementsAre("txtBedrag = 12,50"));
}

TEST_F(Boxes, RefusedKeepTheFocusFromAClickAndDropIt) {
  Focus("txtDatum");
  TypeOver("31-2-2031");
  Do(Control("jnDiep"), controls::Toggle{host::kJa});
  EXPECT_EQ(Focused(), "txtDatum");
  EXPECT_EQ(static_cast<host::JaNee&>(Control("jnDiep").Host()).Value(), host::kNee);
  EXPECT_EQ(qt::Bubble::ReasonOf(Entry("txtDatum")), "31 februari 2031 bestaat niet.");
}

TEST_F(Boxes, HandOverBeforeAMnemonicPressesAButton) {
  subscriptions_ +=
      static_cast<host::Button&>(Control("cmdDoen").Host()).Click.Connect([this] { log_.emplace_back("pressed"); });
  Focus("txtBedrag");
  TypeOver("5");
  Press(Qt::Key_D, Qt::AltModifier);
  // A button that a mnemonic presses stays down for a moment.
  EXPECT_TRUE(QTest::qWaitFor([this] { return log_.size() == 2; }));
  EXPECT_THAT(log_, ElementsAre("txtBedrag = 5,00", "pressed"));
}

TEST_F(Boxes, ALabelsMnemonicGoesToItsBox) {
  Focus("txtDatum");
  Press(Qt::Key_N, Qt::AltModifier);
  EXPECT_EQ(Focused(), "txtNaam");
}

TEST_F(Boxes, RefusedByTheControlKeepFocusAndText) {
  refuse_ = true;
  Box("txtDatum").SetDate(frame::MakeDate({2024, 1, 31}));
  Focus("txtDatum");
  TypeOver("1-4-2031");
  Press(Qt::Key_Tab);
  EXPECT_THAT(log_, ElementsAre("txtDatum = 01-04-2031"));
  EXPECT_EQ(Focused(), "txtDatum");
  EXPECT_EQ(Entry("txtDatum").text(), "1-4-2031");
  EXPECT_EQ(qt::Bubble::ReasonOf(Entry("txtDatum")), "");
  Press(Qt::Key_Tab);
  EXPECT_EQ(log_.size(), 2U);
  refuse_ = false;
  Press(Qt::Key_Tab);
  EXPECT_EQ(log_.size(), 3U);
  EXPECT_EQ(Entry("txtDatum").text(), "01-04-2031");
}

TEST_F(Boxes, EscapePutsBackWhatStoodThereAlsoAfterARefusal) {
  Box("txtDatum").SetDate(frame::MakeDate({2024, 1, 31}));
  Focus("txtDatum");
  TypeOver("1-4-2031");
  Press(Qt::Key_Escape);
  EXPECT_EQ(Entry("txtDatum").text(), "31-01-2024");
  Press(Qt::Key_Tab);
  EXPECT_THAT(log_, IsEmpty());

  refuse_ = true;
  Focus("txtDatum");
  TypeOver("1-4-2031");
  Press(Qt::Key_Tab);
  Press(Qt::Key_Escape);
  EXPECT_EQ(Entry("txtDatum").text(), "31-01-2024");
  EXPECT_EQ(Box("txtDatum").DateValue(), frame::MakeDate({2024, 1, 31}));
  Press(Qt::Key_Tab);
  EXPECT_EQ(log_.size(), 1U);
}

TEST_F(Boxes, AnEmptiedBoxIsEmpty) {
  Box("txtBedrag").SetNumber(7);
  Focus("txtBedrag");
  TypeOver("");
  Press(Qt::Key_Tab);
  EXPECT_EQ(Box("txtBedrag").Content(), controls::BoxValue());
}

TEST_F(Boxes, DecimalsThatAreNotShownSurviveARetypedText) {
  Box("txtBedrag").SetNumber(1036.9994);
  Focus("txtBedrag");
  TypeOver("1.037,00");
  Press(Qt::Key_Tab);
  EXPECT_EQ(Box("txtBedrag").Number(), 1036.9994);
}

TEST_F(Boxes, WhatCodeWritesWhileTypingReplacesTheTyping) {
  Box("txtBedrag").SetNumber(7);
  Focus("txtBedrag");
  TypeOver("12.50");
  Box("txtBedrag").SetNumber(7);
  EXPECT_EQ(Entry("txtBedrag").text(), "7,00");
  Press(Qt::Key_Tab);
  EXPECT_THAT(log_, IsEmpty());
}

TEST_F(Boxes, AnotherWindowDoesNotHandOver) {
  Focus("txtBedrag");
  TypeOver("5");
  QWidget other;
  ShowActive(other);
  EXPECT_THAT(log_, IsEmpty());
  other.hide();
  ShowActive(window_);
  Press(Qt::Key_Tab);
  EXPECT_THAT(log_, ElementsAre("txtBedrag = 5,00"));
}

TEST_F(Boxes, AFailureIsToldAndDoesNotCrossTheEventLoop) {
  subscriptions_.Reset();
  host::Subscription listener =
      Box("txtNaam").Validation.Connect([](bool&) { throw host::Error(host::ErrorNumber::ObjectMissing); });
  Focus("txtNaam");
  TypeOver("x");
  Press(Qt::Key_Tab);
  EXPECT_THAT(log_, ElementsAre("message Kwandero: Er is een fout opgetreden.\r\n91: Object missing"));
  toolkit_.SetFailureListener([this](const host::Error& failure) { log_.push_back(failure.Description()); });
  Focus("txtNaam");
  TypeOver("y");
  Press(Qt::Key_Tab);
  EXPECT_EQ(log_.back(), "Object missing");
  listener = Box("txtNaam").Validation.Connect([](bool&) { throw 5; });
  Focus("txtNaam");
  TypeOver("z");
  Press(Qt::Key_Tab);
  EXPECT_EQ(log_.size(), 3U);
}

TEST_F(Boxes, ALockedBoxTakesTheFocusButNoTyping) {
  Box("txtTotaal").SetNumber(3);
  Focus("txtTotaal");
  EXPECT_EQ(Focused(), "txtTotaal");
  TypeOver("5");
  EXPECT_EQ(Entry("txtTotaal").text(), "3,00");
}

class Dates : public Boxes {
 protected:
  [[nodiscard]] qt::DateBox& Date() { return Entry<qt::DateBox>("txtDatum"); }
};

TEST_F(Dates, TheCalendarDropsDownByKeyAndAPickIsHandedOver) {
  Box("txtDatum").SetDate(frame::MakeDate({2031, 4, 1}));
  for (const auto& [key, modifiers] : {std::pair{Qt::Key_F4, Qt::KeyboardModifiers()},
                                       std::pair{Qt::Key_Down, Qt::KeyboardModifiers(Qt::AltModifier)}}) {
    log_.clear();
    Focus("txtDatum");
    Press(key, modifiers);
    ASSERT_NE(Date().Calendar(), nullptr);
    EXPECT_TRUE(Date().Calendar()->isVisible());
    Press(Qt::Key_Right);
    Press(Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(Date().Calendar(), nullptr);
    ASSERT_EQ(log_.size(), 1U);
    EXPECT_EQ(Focused(), "txtDatum");
  }
  EXPECT_EQ(log_.back(), "txtDatum = 03-04-2031");
}

TEST_F(Dates, EscapeClosesTheCalendarAndChangesNothing) {
  Box("txtDatum").SetDate(frame::MakeDate({2031, 4, 1}));
  Focus("txtDatum");
  Press(Qt::Key_F4);
  Press(Qt::Key_Right);
  Press(Qt::Key_Escape);
  QApplication::processEvents();
  EXPECT_EQ(Date().Calendar(), nullptr);
  Press(Qt::Key_Tab);
  EXPECT_EQ(Box("txtDatum").DateValue(), frame::MakeDate({2031, 4, 1}));
  EXPECT_THAT(log_, IsEmpty());
}

TEST_F(Dates, AClickOnTheIconDropsTheCalendarDown) {
  Click(Date(), QPoint(Date().width() - 12, Date().height() / 2));
  ASSERT_NE(Date().Calendar(), nullptr);
  Press(Qt::Key_Escape);
  QApplication::processEvents();
}

TEST_F(Dates, ADisabledBoxHasNoCalendar) {
  Control("txtDatum").Host().SetEnabled(false);
  Click(Date(), QPoint(Date().width() - 12, Date().height() / 2));
  EXPECT_EQ(Date().Calendar(), nullptr);
}

}  // namespace
}  // namespace brivane::test
