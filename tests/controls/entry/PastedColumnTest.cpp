#include "tests/controls/entry/EntryDesk.h"

/// A column of values that is pasted into the rows of a form.
namespace brivane::controls {

using testing::ElementsAre;
using testing::IsEmpty;

class PastedColumn : public RowsTest {
 protected:
  PastedColumn() {
    for (int i = 1; i <= 3; ++i) Row(i).SetNumber(100);
  }
  [[nodiscard]] std::vector<double> Amounts() { return {Row(1).Number(), Row(2).Number(), Row(3).Number()}; }
};

TEST_F(PastedColumn, FillsTheRowsFromTheOneOnAsIfTyped) {
  Edit(Row(2)).Paste("1.500,25\r\n€ 20\r\n");
  EXPECT_THAT(Amounts(), ElementsAre(100, 1500.25, 20));
  EXPECT_THAT(log, ElementsAre("txtBedrag(2) = 1.500,25", "txtBedrag(3) = 20,00"));
  EXPECT_EQ(Face(Row(2)).text, "1.500,25");
  EXPECT_TRUE(Face(Row(2)).selected);
  EXPECT_EQ(Face(Row(2)).reason, "");
}

TEST_F(PastedColumn, WithAMistakeFillsNothing) {
  TypeOver(Row(1), "5");
  Edit(Row(1)).Paste("10\n12.50\n30");
  EXPECT_EQ(Face(Row(1)).text, "100,00");
  EXPECT_EQ(Face(Row(1)).reason, "Regel 2: Bedoelt u 12,50 of 1.250? Typ een komma voor de decimalen.");
  Edit(Row(1)).Paste("10\t20\n30\t40");
  EXPECT_EQ(Face(Row(1)).reason, "Plak één kolom tegelijk.");
  EXPECT_THAT(Amounts(), ElementsAre(100, 100, 100));
  EXPECT_THAT(log, IsEmpty());
}

TEST_F(PastedColumn, ThatWasRefusedIsOverWhenTheBoxIsLeft) {
  Edit(Row(1)).Paste("10\n12.50\n30");
  ASSERT_NE(Face(Row(1)).reason, "");
  EXPECT_TRUE(Edit(Row(1)).Commit());
  EXPECT_EQ(Face(Row(1)).reason, "");
}

TEST_F(PastedColumn, PassesOverWhatCannotBeEditedAndSaysWhatIsLeft) {
  Row(2).SetLocked(true);
  Edit(Row(1)).Paste("1\n2\n3\n4\n5");
  EXPECT_THAT(Amounts(), ElementsAre(1, 100, 3));
  EXPECT_EQ(Face(Row(1)).reason, "De laatste 2 regels passen niet meer in de rijen en zijn niet geplakt.");
  Row(2).SetLocked(false);
  Edit(Row(2)).Paste("1\n2\n3");
  EXPECT_EQ(Face(Row(2)).reason, "De laatste regel past niet meer in de rijen en is niet geplakt.");
}

TEST_F(PastedColumn, StopsWhereARowIsRefused) {
  const host::Subscription listening = Row(2).Validation.Connect([](bool& Cancel) { Cancel = true; });
  Edit(Row(1)).Paste("1\n2\n3");
  EXPECT_THAT(Amounts(), ElementsAre(1, 2, 100));
}

TEST_F(PastedColumn, OfOneValueIsTypedIntoItsBox) {
  TypeOver(Row(1), "");
  Edit(Row(1)).Paste(" 77,5 \r\n");
  EXPECT_EQ(Face(Row(1)).text, "77,5");
  EXPECT_THAT(Amounts(), ElementsAre(100, 100, 100));
  EXPECT_TRUE(Edit(Row(1)).Commit());
  EXPECT_THAT(Amounts(), ElementsAre(77.5, 100, 100));
}

TEST_F(PastedColumn, EndsWhereTheBoxIsGone) {
  TestFace outlives;
  auto gone = std::make_unique<PendingEdit>(outlives);
  gone->Tie(Row(1), toolkit);
  const host::Subscription listening = Row(2).Validation.Connect([&](bool&) {
    gone.reset();
    outlives.calls = 0;
  });
  gone->Paste("1\n2\n3\n4");
  EXPECT_THAT(Amounts(), ElementsAre(1, 2, 100));
  EXPECT_EQ(outlives.calls, 0);
}

}  // namespace brivane::controls
