#include "tests/toolkits/conformance/FormOnScreen.h"

/// What is pasted into the rows of the year-by-year form.
namespace brivane::test {

using testing::IsEmpty;

using PastedColumns = FormOnScreen;
INSTANTIATE_TEST_SUITE_P(Typing, PastedColumns, testing::ValuesIn(Screens()), ScreenName);

TEST_P(PastedColumns, FillsTheRowsFromTheFocusedOne) {
  Open(5, [&] {
    Press(Key::Down);
    Paste("1.500,25\r\n€ 20\r\n30,5\r\n");
    EXPECT_EQ(Amount(1), 100);
    EXPECT_EQ(Amount(2), 1500.25);
    EXPECT_EQ(Amount(3), 20);
    EXPECT_EQ(Amount(4), 30.5);
    EXPECT_EQ(Amount(5), 100);
    EXPECT_EQ(Typed(), "1.500,25");
    EXPECT_TRUE(form->Gewijzigd());
    EXPECT_EQ(Reason(), "");
  });
}

TEST_P(PastedColumns, IsEnteredAsIfTyped) {
  Open(4, [&] {
    Tick(Cell("chkAanvullen"));
    Click(Cell("txtBedrag", 1));
    Paste("10\n20");
    EXPECT_EQ(Amount(1), 10);
    EXPECT_EQ(Amount(2), 20);
    EXPECT_EQ(Amount(4), 20);
    EXPECT_EQ(scenario->basis, 10);
  });
}

TEST_P(PastedColumns, ThatWereRefusedAreOverWhenTheBoxIsLeft) {
  Open(4, [&] {
    for (const bool byKey : {true, false}) {
      Click(Cell("txtBedrag", 1));
      Paste("10\n12.50\n30");
      EXPECT_NE(Reason(), "");
      byKey ? Press(Key::Down) : Click(Cell("txtBedrag", 2));
      EXPECT_EQ(Focused(), "txtBedrag(2)");
      EXPECT_EQ(subject->Reason(Cell("txtBedrag", 1)), "");
    }
  });
}

TEST_P(PastedColumns, WithAMistakeFillsNothing) {
  Open(4, [&] {
    Paste("10\n12.50\n30");
    EXPECT_EQ(Reason(), "Regel 2: Bedoelt u 12,50 of 1.250? Typ een komma voor de decimalen.");
    Paste("10\t20\n30\t40");
    EXPECT_EQ(Reason(), "Plak één kolom tegelijk.");
    for (int row = 1; row <= 4; ++row) EXPECT_EQ(Amount(row), 100);
    EXPECT_THAT(scenario->log, IsEmpty());
  });
}

TEST_P(PastedColumns, MayFollowOneThatWasRefused) {
  Open(4, [&] {
    Paste("1\r\n2,345\r\n");
    EXPECT_EQ(Amount(1), 100);
    EXPECT_TRUE(Reason().starts_with("Regel 2: ")) << Reason();
    Paste("1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n");
    EXPECT_EQ(Amount(4), 4);
    EXPECT_EQ(Reason(), "De laatste 2 regels passen niet meer in de rijen en zijn niet geplakt.");
    Paste(" 7,5 \r\n");
    EXPECT_EQ(Typed(), "7,5");
  });
}

TEST_P(PastedColumns, ThatIsTooLongSaysWhatIsLeft) {
  disabled = {2};
  Open(3, [&] {
    Paste("1\n2\n3\n4\n5");
    EXPECT_EQ(Amount(1), 1);
    EXPECT_EQ(Amount(2), 100);
    EXPECT_EQ(Amount(3), 3);
    EXPECT_EQ(Reason(), "De laatste 2 regels passen niet meer in de rijen en zijn niet geplakt.");
  });
}

TEST_P(PastedColumns, OfOneValueIsTypedIntoItsBox) {
  Open(2, [&] {
    Paste("77,5\r\n");
    EXPECT_EQ(Typed(), "77,5");
    EXPECT_EQ(Amount(1), 100);
    Press(Key::Enter);
    EXPECT_EQ(Amount(1), 77.5);
    EXPECT_EQ(Amount(2), 100);
  });
}

}  // namespace brivane::test
