#include "tests/controls/entry/EntryDesk.h"
#include <brivane/frame/Calendar.h>
#include <brivane/host/Error.h>

/// What is typed in one box, until it is handed over or put back.
namespace brivane::controls {

using frame::Format;
using testing::ElementsAre;
using testing::IsEmpty;

class PendingEditTest : public EntryTest {
 protected:
  TextBox& amount = Box("txtBedrag");
  TestFace& face = Face(amount);
  PendingEdit& edit = Edit(amount);
};

TEST_F(PendingEditTest, ShowsWhatTheBoxHolds) {
  amount.SetNumber(1234.5);
  EXPECT_EQ(face.text, "1.234,50");
  EXPECT_FALSE(face.selected);
  face.focused = true;
  amount.SetNumber(7);
  EXPECT_EQ(face.text, "7,00");
  EXPECT_TRUE(face.selected);
}

TEST_F(PendingEditTest, IsHandedOverOnceAfterTyping) {
  EXPECT_TRUE(edit.Commit());
  EXPECT_THAT(log, IsEmpty());
  TypeOver(amount, "1234,5");
  EXPECT_TRUE(edit.IsPending());
  EXPECT_TRUE(edit.Commit());
  EXPECT_FALSE(edit.IsPending());
  EXPECT_EQ(face.text, "1.234,50");
  EXPECT_TRUE(edit.Commit());
  EXPECT_THAT(log, ElementsAre("txtBedrag = 1.234,50"));
}

TEST_F(PendingEditTest, ThatEmptiesAnAmountShowsWhatItCountsFor) {
  amount.SetNumber(7);
  TypeOver(amount, "");
  EXPECT_TRUE(edit.Commit());
  EXPECT_EQ(face.text, "0,00");
  EXPECT_EQ(amount.Number(), 0);
  EXPECT_THAT(log, ElementsAre("txtBedrag = 0,00"));
}

TEST_F(PendingEditTest, SpeaksTheLanguageOfItsFace) {
  face.language = frame::Language::English;
  TypeOver(amount, "twaalf");
  EXPECT_FALSE(edit.Commit());
  EXPECT_EQ(face.reason, "Enter an amount, for example 1.234,56.");
  amount.SetEnabled(false);
  EXPECT_FALSE(edit.HandOver());
  EXPECT_THAT(toolkit.asked, ElementsAre(testing::AllOf(
                                 testing::StartsWith("Not taken over: The box \"Bedrag\" still holds \"twaalf\"."),
                                 testing::HasSubstr("\r\n\r\nEnter an amount, for example 1.234,56.\r\n\r\n"),
                                 testing::EndsWith("Do you want to drop what was typed there?"))));
  const TextBox& date = Box("txtDatum");
  Face(date).language = frame::Language::English;
  toolkit.Desktop().today = frame::MakeDate({2031, 4, 1});
  TypeOver(date, "v");
  EXPECT_EQ(Face(date).note, "Tuesday 1 April 2031");
}

TEST_F(PendingEditTest, OfNoControlIsReadItsOwnWay) {
  TestFace own;
  PendingEdit date(own);
  date.Tie(Format::Date, [](std::string_view typed) {
    return typed == "gisteren" ? TypedContent{.value = host::Date(45322)} : TypedContent{.refusal = "Nee."};
  });
  own.text = "gisteren";
  date.Typed();
  EXPECT_TRUE(date.Commit());
  EXPECT_EQ(own.text, "31-01-2024");
  own.text = "morgen";
  date.Typed();
  EXPECT_FALSE(date.Commit());
  EXPECT_EQ(own.reason, "Nee.");
}

TEST_F(PendingEditTest, SelectsWhatStandsAfterEnter) {
  TypeOver(amount, "5");
  EXPECT_TRUE(edit.CommitAndSelect());
  EXPECT_EQ(face.text, "5,00");
  EXPECT_TRUE(face.selected);
}

TEST_F(PendingEditTest, ThatIsNotOfTheFormatStaysWithTheReasonAndNeverReachesTheBox) {
  amount.SetNumber(7);
  TypeOver(amount, "12.50");
  EXPECT_FALSE(edit.Commit());
  EXPECT_THAT(log, IsEmpty());
  EXPECT_EQ(amount.Number(), 7);
  EXPECT_EQ(face.text, "12.50");
  EXPECT_EQ(face.reason, "Bedoelt u 12,50 of 1.250? Typ een komma voor de decimalen.");
  EXPECT_TRUE(face.focused);
  EXPECT_TRUE(face.selected);
  EXPECT_TRUE(edit.IsPending());
  TypeOver(amount, "12,50");
  EXPECT_EQ(face.reason, "");
  EXPECT_TRUE(edit.Commit());
  EXPECT_THAT(log, ElementsAre("txtBedrag = 12,50"));
}

TEST_F(PendingEditTest, ThatTheControlRefusesStaysAsTypedWithoutAReason) {
  TextBox& date = Box("txtDatum");
  refuse = true;
  TypeOver(date, "1-4-2031");
  for (std::size_t asked = 1; asked <= 2; ++asked) {
    EXPECT_FALSE(Edit(date).Commit());
    EXPECT_EQ(log.size(), asked);
    EXPECT_EQ(Face(date).text, "1-4-2031");
    EXPECT_EQ(Face(date).reason, "");
    EXPECT_TRUE(Face(date).focused);
  }
  refuse = false;
  EXPECT_TRUE(Edit(date).Commit());
  EXPECT_EQ(Face(date).text, "01-04-2031");
}

TEST_F(PendingEditTest, IsPutBackByEscape) {
  amount.SetNumber(7);
  EXPECT_FALSE(edit.Restore());
  TypeOver(amount, "12.50");
  EXPECT_FALSE(edit.Commit());
  EXPECT_TRUE(edit.Restore());
  EXPECT_EQ(face.text, "7,00");
  EXPECT_EQ(face.reason, "");
  EXPECT_TRUE(face.selected);
  EXPECT_FALSE(edit.Restore());
  EXPECT_TRUE(edit.Commit());
  EXPECT_THAT(log, IsEmpty());
}

TEST_F(PendingEditTest, ThatWasRefusedIsPutBackIntoTheControlToo) {
  amount.SetNumber(1036.9994);
  refuse = true;
  TypeOver(amount, "5");
  EXPECT_FALSE(edit.Commit());
  EXPECT_EQ(amount.Number(), 5);
  TypeOver(amount, "6");
  EXPECT_FALSE(edit.Commit());
  EXPECT_TRUE(edit.Restore());
  EXPECT_EQ(face.text, "1.037,00");
  EXPECT_EQ(amount.Number(), 1036.9994);
  EXPECT_EQ(log.size(), 2U);
}

TEST_F(PendingEditTest, ThatReadsAsWhatStoodKeepsTheDecimalsThatAreNotShown) {
  amount.SetNumber(1036.9994);
  TypeOver(amount, "1.037,00");
  EXPECT_TRUE(edit.Commit());
  EXPECT_EQ(log.size(), 1U);
  EXPECT_EQ(amount.Number(), 1036.9994);
  TypeOver(amount, "1037");
  EXPECT_TRUE(edit.Commit());
  EXPECT_EQ(amount.Number(), 1037);
}

TEST_F(PendingEditTest, EndsWhenCodeWritesAlsoTheSameValue) {
  amount.SetNumber(7);
  for (const double written : {7.0, 8.0}) {
    TypeOver(amount, "12.50");
    EXPECT_FALSE(edit.Commit());
    amount.SetNumber(written);
    EXPECT_FALSE(edit.IsPending());
    EXPECT_EQ(face.text, ShowContent(BoxValue(written), Format::Amount));
    EXPECT_EQ(face.reason, "");
  }
  EXPECT_THAT(log, IsEmpty());
}

TEST_F(PendingEditTest, StaysAsTypedUntilItIsAcceptedWhateverCodeWritesMeanwhile) {
  bool cancel = true;
  std::vector<std::string> seen;
  subscriptions.Reset();
  const host::Subscription listening = amount.Validation.Connect([&](bool& Cancel) {
    amount.SetNumber(99);
    seen.push_back(face.text);
    EXPECT_TRUE(edit.IsCommitting());
    EXPECT_TRUE(edit.Commit());  // nested: it is on its way
    Cancel = cancel;
  });
  TypeOver(amount, "5");
  EXPECT_FALSE(edit.Commit());
  EXPECT_EQ(face.text, "5");
  cancel = false;
  EXPECT_TRUE(edit.Commit());
  EXPECT_EQ(face.text, "99,00");
  EXPECT_THAT(seen, ElementsAre("5", "5"));
  EXPECT_FALSE(edit.IsCommitting());
}

TEST_F(PendingEditTest, StaysAsTypedWhereTheHostFailsToTakeIt) {
  subscriptions.Reset();
  const host::Subscription listening =
      amount.Validation.Connect([](bool&) { throw host::Error(host::ErrorNumber::ObjectMissing); });
  amount.SetNumber(7);
  TypeOver(amount, "5");
  EXPECT_FALSE(edit.Commit());
  EXPECT_THAT(toolkit.asked, ElementsAre("Kwandero: Er is een fout opgetreden.\r\n91: Object missing"));
  EXPECT_EQ(face.text, "5");
  EXPECT_EQ(face.reason, "Dit is niet bewaard. Enter probeert het opnieuw, Esc zet terug wat er stond.");
  EXPECT_TRUE(face.focused);
  EXPECT_TRUE(edit.IsPending());
  EXPECT_FALSE(toolkit.Pending().Commit(Surface::Of(*surface)));
  EXPECT_TRUE(edit.Restore());
  EXPECT_EQ(face.text, "7,00");
  EXPECT_EQ(amount.Number(), 7);
  EXPECT_TRUE(toolkit.Pending().Commit(Surface::Of(*surface)));
}

/// A procedure of a control tells its host what failed, and nobody else.
TEST_F(PendingEditTest, StaysAsTypedWhereTheFailureIsTheHostsToTell) {
  bool fails = true;
  subscriptions += amount.Validation.Connect([&](bool&) {
    if (fails) toolkit.Desktop().ProcedureFailed.Raise();
  });
  TypeOver(amount, "5");
  EXPECT_FALSE(edit.Commit());
  EXPECT_THAT(toolkit.asked, IsEmpty());
  EXPECT_EQ(face.text, "5");
  EXPECT_NE(face.reason, "");
  fails = false;
  EXPECT_TRUE(edit.Commit());
  EXPECT_EQ(face.text, "5,00");
  EXPECT_EQ(face.reason, "");
}

/// The record is shown anew, also where it holds what was typed.
TEST_F(PendingEditTest, ThatFailedEndsWhenCodeWritesTheBox) {
  const host::Subscription listening =
      amount.Validation.Connect([this](bool&) { toolkit.Desktop().ProcedureFailed.Raise(); });
  TypeOver(amount, "5");
  EXPECT_FALSE(edit.Commit());
  amount.SetNumber(5);
  EXPECT_EQ(face.text, "5,00");
  EXPECT_EQ(face.reason, "");
  EXPECT_FALSE(edit.IsPending());
}

/// There is nothing to try again, and nothing to put back.
TEST_F(PendingEditTest, ThatWasPutBackWhileItsFailureWasToldIsNotRefused) {
  amount.SetNumber(7);
  const host::Subscription listening = amount.Validation.Connect([this](bool&) {
    toolkit.Desktop().ProcedureFailed.Raise();
    EXPECT_TRUE(edit.Restore());
  });
  TypeOver(amount, "5");
  EXPECT_TRUE(edit.Commit());
  EXPECT_EQ(face.text, "7,00");
  EXPECT_EQ(face.reason, "");
  EXPECT_FALSE(edit.IsPending());
}

TEST_F(PendingEditTest, ThatFailedIsToldOfInTheWordsOfAHostThatHasSome) {
  const host::Subscription listening =
      amount.Validation.Connect([this](bool&) { toolkit.Desktop().ProcedureFailed.Raise(); });
  std::string words = "Nog niet bekend.";
  toolkit.SetReasonTeller([&] { return frame::Phrase(words); });
  TypeOver(amount, "5");
  EXPECT_FALSE(edit.Commit());
  EXPECT_EQ(face.reason, "Nog niet bekend.");
  words.clear();
  EXPECT_FALSE(edit.Commit());
  EXPECT_EQ(face.reason, "");
  EXPECT_TRUE(edit.IsPending());
  EXPECT_EQ(face.text, "5");
  toolkit.SetReasonTeller(nullptr);
  EXPECT_FALSE(edit.Commit());
  EXPECT_EQ(face.reason, "Dit is niet bewaard. Enter probeert het opnieuw, Esc zet terug wat er stond.");
}

TEST_F(PendingEditTest, StaysAsTypedWhereTheBoxCanNoLongerBeReached) {
  amount.SetNumber(7);
  TypeOver(amount, "5");
  amount.SetEnabled(false);
  EXPECT_TRUE(edit.Commit());
  EXPECT_EQ(face.text, "5");
  EXPECT_TRUE(edit.IsPending());
  EXPECT_THAT(log, IsEmpty());
  amount.SetEnabled(true);
  EXPECT_TRUE(edit.Commit());
  EXPECT_THAT(log, ElementsAre("txtBedrag = 5,00"));
}

TEST_F(PendingEditTest, ThatIsRefusedOutOfSightSaysWhyWhenItIsSeenAgain) {
  face.atHand = false;
  TypeOver(amount, "12.50");
  EXPECT_FALSE(edit.Commit());
  EXPECT_FALSE(face.focused);
  EXPECT_EQ(face.reason, "");
  face.atHand = true;
  edit.Shown();
  EXPECT_EQ(face.reason, "Bedoelt u 12,50 of 1.250? Typ een komma voor de decimalen.");
  TypeOver(amount, "12,50");
  face.reason.clear();
  edit.Shown();
  EXPECT_EQ(face.reason, "");
}

TEST_F(PendingEditTest, TypesTheDecimalSignOfTheKeypadWhereThereAreDecimals) {
  struct Case {
    const char* name;
    bool typed;
  };
  for (const Case& c : {Case{"txtNaam", false}, Case{"txtBedrag", true}, Case{"txtPercentage", true},
                        Case{"txtJaren", false}, Case{"txtDatum", false}}) {
    const TextBox& box = Box(c.name);
    TypeOver(box, "12");
    EXPECT_EQ(Edit(box).TypeDecimalSign(), c.typed) << c.name;
    EXPECT_EQ(Face(box).text, c.typed ? "12," : "12") << c.name;
    Face(box).readOnly = true;
    EXPECT_FALSE(Edit(box).TypeDecimalSign()) << c.name;
  }
}

TEST_F(PendingEditTest, TakesWhatIsPickedAsIfTyped) {
  TextBox& date = Box("txtDatum");
  Edit(date).TypeOver("03-04-2031");
  EXPECT_TRUE(Edit(date).IsPending());
  EXPECT_TRUE(Edit(date).Commit());
  EXPECT_EQ(date.DateValue(), frame::MakeDate({2031, 4, 3}));
}

TEST_F(PendingEditTest, TakesAPastedTextAsOneLine) {
  TextBox& name = Box("txtNaam");
  struct Case {
    const char* pasted;
    const char* text;
  };
  for (const Case& c : {Case{"Zoë", "Zoë"}, Case{"een\r\n\ntwee", "een twee"}, Case{"a\tb", "a\tb"}, Case{" a ", " a "},
                        Case{"", ""}}) {
    Face(name).text.clear();
    Edit(name).Paste(c.pasted);
    EXPECT_EQ(Face(name).text, c.text);
  }
  Face(name).readOnly = true;
  Edit(name).Paste("x");
  EXPECT_EQ(Face(name).text, "");
}

TEST_F(PendingEditTest, OfNoControlIsReadByItsFormatAlone) {
  TestFace alone;
  PendingEdit date(alone);
  date.Tie(Format::Date);
  date.ShowText("31-01-2024");
  alone.text = "31-2-2031";
  date.Typed();
  EXPECT_FALSE(date.Commit());
  EXPECT_EQ(alone.reason, "31 februari 2031 bestaat niet.");
  EXPECT_TRUE(date.Restore());
  EXPECT_EQ(alone.text, "31-01-2024");
  alone.text = "1-4-31";
  date.Typed();
  EXPECT_TRUE(date.Commit());
  EXPECT_EQ(alone.text, "01-04-2031");
  EXPECT_FALSE(date.IsPending());
  EXPECT_EQ(date.Box(), nullptr);
}

TEST_F(PendingEditTest, MayBeGoneWhenItsEntryComesBack) {
  for (const bool cancel : {false, true}) {
    TestFace outlives;
    auto gone = std::make_unique<PendingEdit>(outlives);
    gone->Tie(amount, toolkit);
    subscriptions.Reset();
    const host::Subscription listening = amount.Validation.Connect([&](bool& Cancel) {
      gone.reset();
      outlives.calls = 0;
      Cancel = cancel;
    });
    outlives.text = "5";
    gone->Typed();
    EXPECT_TRUE(gone->CommitAndSelect());
    EXPECT_EQ(outlives.calls, 0);
    EXPECT_THAT(toolkit.Pending().On(Surface::Of(*surface)), IsEmpty());
  }
}

TEST_F(PendingEditTest, MayBeGoneWhenItTakesTheFocus) {
  TestFace outlives;
  auto gone = std::make_unique<PendingEdit>(outlives);
  gone->Tie(amount, toolkit);
  outlives.whenFocused = [&] {
    gone.reset();
    outlives.calls = 0;
  };
  outlives.text = "12.50";
  gone->Typed();
  EXPECT_FALSE(gone->Commit());
  EXPECT_EQ(outlives.calls, 0);
}

TEST_F(PendingEditTest, SaysAgainWhatItMakesOfTheTypingWhereThatWasTakenAway) {
  const TextBox& date = Box("txtDatum");
  TestFace& shown = Face(date);
  TypeOver(date, "1-4-2031");
  EXPECT_EQ(shown.note, "dinsdag 1 april 2031");
  const int calls = shown.calls;
  Edit(date).Typed();
  EXPECT_EQ(shown.calls, calls) << "said already";
  TypeOver(date, "");
  EXPECT_EQ(shown.note, "");
  TypeOver(date, "1-4-2031");
  EXPECT_EQ(shown.note, "dinsdag 1 april 2031");
  shown.note.clear();
  Edit(date).Shown();
  EXPECT_EQ(shown.note, "dinsdag 1 april 2031");
}

TEST_F(PendingEditTest, IsPendingFromTheFirstDecimalSignOfTheKeypad) {
  EXPECT_TRUE(edit.TypeDecimalSign());
  EXPECT_TRUE(edit.IsPending());
  edit.Paste("5");
  EXPECT_EQ(face.text, ",5");
  EXPECT_TRUE(edit.Commit());
  EXPECT_THAT(log, ElementsAre("txtBedrag = 0,50"));
}

TEST_F(PendingEditTest, OfAControlThatTheHostLetGoIsInNobodysWay) {
  TypeOver(amount, "12.50");
  const std::shared_ptr<controls::Life> life = toolkit.Life();
  life->End(nullptr);
  EXPECT_TRUE(edit.Commit());
  EXPECT_THAT(log, IsEmpty());
  EXPECT_EQ(face.reason, "");
  EXPECT_EQ(face.text, "12.50");
}

TEST_F(PendingEditTest, ThatEnterFindsRefusedSelectsNothingElse) {
  TypeOver(amount, "12.50");
  EXPECT_FALSE(edit.CommitAndSelect());
  EXPECT_THAT(log, IsEmpty());
  EXPECT_TRUE(edit.IsPending());
}

TEST_F(PendingEditTest, ThatIsRefusedInSightIsNotAskedAboutWhenTheHostLeaves) {
  TypeOver(amount, "12.50");
  EXPECT_FALSE(edit.HandOver());
  EXPECT_THAT(toolkit.asked, IsEmpty());
  EXPECT_TRUE(edit.IsPending());
}

TEST_F(PendingEditTest, MovesToAnotherBoxWithWhatThatHolds) {
  Box("txtDatum").SetDate(frame::MakeDate({2024, 1, 31}));
  TypeOver(amount, "5");
  edit.Tie(Box("txtDatum"), toolkit);
  EXPECT_EQ(face.text, "31-01-2024");
  EXPECT_FALSE(edit.IsPending());
  EXPECT_EQ(edit.Format(), Format::Date);
}

}  // namespace brivane::controls
