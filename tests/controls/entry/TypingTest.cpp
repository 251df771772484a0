#include "tests/controls/entry/EntryDesk.h"
#include <brivane/controls/entry/Typing.h>
#include <brivane/frame/Calendar.h>

/// What a box makes of keys before it has content, and says of it.
namespace brivane::controls {

using frame::Format;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Notes, SayWhatIsNotWritten) {
  const DateOrigin origin{.today = frame::MakeDate({2026, 11, 22})};
  struct Case {
    const char* typed;
    Format format;
    const char* note;
  };
  const Case kTable[] = {
      {"10+5", Format::Amount, "= 15,00"},
      {"1200/7", Format::Amount, "= 171,43"},
      {"€ -", Format::Amount, "= 0,00"},
      {"10+", Format::Amount, ""},
      {"10", Format::Amount, ""},
      {"12,50 €", Format::Amount, ""},
      {"-10", Format::Amount, ""},
      {"", Format::Amount, ""},
      {"100/8", Format::Number, "= 12,5"},
      {"10+5", Format::WholeNumber, ""},
      {"10+5", Format::Text, ""},
      {"t", Format::Date, "zondag 22 november 2026"},
      {"1-4", Format::Date, "woensdag 1 april 2026"},
      {"1-4-31", Format::Date, "dinsdag 1 april 2031"},
      {"1-", Format::Date, ""},
      {"", Format::Date, ""},
      {"t", Format::Text, ""},
  };
  for (const Case& row : kTable)
    EXPECT_EQ(NoteOf(row.typed, ReadTyped(row.typed, row.format, origin), row.format), row.note) << row.typed;
}

TEST(Typing, ReckonsInAmountsAndPercentagesAlone) {
  EXPECT_EQ(ReadTyped("10+5", Format::Amount, {}).value, BoxValue(15.0));
  EXPECT_EQ(ReadTyped("10+5", Format::Number, {}).value, BoxValue(15.0));
  EXPECT_EQ(ReadTyped("10+5", Format::WholeNumber, {}).refusal,
            "Vul een geheel getal in, zonder cijfers achter de komma.");
  EXPECT_EQ(ReadTyped("10+5", Format::Text, {}).value, BoxValue(std::string("10+5")));
  // A pasted column holds what is written out.
  EXPECT_FALSE(ReadContent("10+5", Format::Amount).refusal.empty());
  EXPECT_FALSE(ReadContent("t", Format::Date).refusal.empty());
}

class TypingInABox : public EntryTest {
 protected:
  TypingInABox() {
    toolkit.Desktop().today = frame::MakeDate({2026, 11, 22});
    Follow(Box("txtTot"));
  }
};

TEST_F(TypingInABox, ShowsANoteUntilItIsHandedOver) {
  TextBox& amount = Box("txtBedrag");
  TypeOver(amount, "10+5");
  EXPECT_EQ(Face(amount).note, "= 15,00");
  TypeOver(amount, "10+5*");
  EXPECT_EQ(Face(amount).note, "");
  TypeOver(amount, "10+5*2");
  EXPECT_EQ(Face(amount).note, "= 20,00");
  EXPECT_TRUE(Edit(amount).Commit());
  EXPECT_EQ(Face(amount).note, "");
  EXPECT_EQ(Face(amount).text, "20,00");
  EXPECT_THAT(log, ElementsAre("txtBedrag = 20,00"));
}

TEST_F(TypingInABox, ShowsTheReasonInPlaceOfANoteAndBack) {
  TextBox& amount = Box("txtBedrag");
  refuse = true;
  TypeOver(amount, "10+5");
  EXPECT_FALSE(Edit(amount).Commit());
  EXPECT_EQ(Face(amount).note, "");
  TypeOver(amount, "10/0");
  EXPECT_FALSE(Edit(amount).Commit());
  EXPECT_EQ(Face(amount).reason, "Delen door nul kan niet.");
  TypeOver(amount, "10/2");
  EXPECT_EQ(Face(amount).reason, "");
  EXPECT_EQ(Face(amount).note, "= 5,00");
  EXPECT_TRUE(Edit(amount).Restore());
  EXPECT_EQ(Face(amount).note, "");
}

TEST_F(TypingInABox, HandsOverTodayAndATermFromTheStart) {
  TextBox& from = Box("txtDatum");
  TextBox& until = Box("txtTot");
  TypeOver(until, "3j");
  EXPECT_FALSE(Edit(until).Commit());
  EXPECT_EQ(Face(until).reason, "\"3j\" telt vanaf \"Datum\", en daar staat geen datum.");
  TypeOver(from, "t");
  EXPECT_EQ(Face(from).note, "zondag 22 november 2026");
  EXPECT_TRUE(Edit(from).Commit());
  TypeOver(until, "3j");
  EXPECT_EQ(Face(until).note, "donderdag 22 november 2029");
  EXPECT_TRUE(Edit(until).Commit());
  EXPECT_THAT(log, ElementsAre("txtDatum = 22-11-2026", "txtTot = 22-11-2029"));
}

TEST_F(TypingInABox, ALetterOfATextIsALetter) {
  TextBox& name = Box("txtNaam");
  TypeOver(name, "t");
  EXPECT_EQ(Face(name).note, "");
  EXPECT_TRUE(Edit(name).Commit());
  EXPECT_FALSE(Edit(name).StepBySign('+'));
  EXPECT_FALSE(Edit(name).Step(DateStep::Month));
  EXPECT_EQ(name.Text(), "t");
}

TEST_F(TypingInABox, StepsFromWhatStandsOrIsTypedAsIfTyped) {
  TextBox& date = Box("txtDatum");
  date.SetDate(frame::MakeDate({2031, 1, 31}));
  EXPECT_TRUE(Edit(date).Step(DateStep::Month));
  EXPECT_EQ(Face(date).text, "28-02-2031");
  EXPECT_TRUE(Face(date).selected);
  EXPECT_EQ(Face(date).note, "vrijdag 28 februari 2031");
  EXPECT_TRUE(Edit(date).StepBySign('+'));
  EXPECT_EQ(Face(date).text, "01-03-2031");
  EXPECT_THAT(log, IsEmpty());
  EXPECT_TRUE(Edit(date).Restore());
  EXPECT_EQ(Face(date).text, "31-01-2031");
  EXPECT_TRUE(Edit(date).Step(DateStep::YearBack));
  EXPECT_TRUE(Edit(date).Commit());
  EXPECT_THAT(log, ElementsAre("txtDatum = 31-01-2030"));
  TypeOver(date, "t");
  EXPECT_TRUE(Edit(date).StepBySign('-'));
  EXPECT_EQ(Face(date).text, "21-11-2026");
}

TEST_F(TypingInABox, StepsFromTodayWhereItIsEmpty) {
  TextBox& date = Box("txtDatum");
  EXPECT_TRUE(Edit(date).StepBySign('-'));
  EXPECT_EQ(Face(date).text, "21-11-2026");
}

TEST_F(TypingInABox, StepsNothingWhereItIsLockedOrUnreadableOrAHyphenIsMeant) {
  TextBox& date = Box("txtDatum");
  TypeOver(date, "1-4");
  EXPECT_FALSE(Edit(date).StepBySign('-'));
  TypeOver(date, "31-2-2031");
  EXPECT_FALSE(Edit(date).Step(DateStep::Day));
  EXPECT_FALSE(Edit(date).StepBySign('+'));
  EXPECT_EQ(Face(date).text, "31-2-2031");
  EXPECT_TRUE(Edit(date).Restore());
  Face(date).readOnly = true;
  EXPECT_FALSE(Edit(date).StepBySign('+'));
  EXPECT_FALSE(Edit(date).Step(DateStep::Day));
  EXPECT_EQ(Face(date).text, "");
}

TEST_F(TypingInABox, OfNoControlHasTheClockThatItIsGiven) {
  TestFace alone;
  PendingEdit date(alone);
  date.Tie(Format::Date, nullptr, [] { return frame::MakeDate({2030, 12, 31}); });
  EXPECT_TRUE(date.StepBySign('+'));
  EXPECT_EQ(alone.text, "01-01-2031");
  alone.text = "v";
  date.Typed();
  EXPECT_TRUE(date.Commit());
  EXPECT_EQ(alone.text, "31-12-2030");
  date.Tie(Format::Date);
  alone.text = "";
  EXPECT_FALSE(date.StepBySign('+'));
}

}  // namespace brivane::controls
