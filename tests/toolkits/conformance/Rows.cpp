#include "tests/toolkits/conformance/FormOnScreen.h"

/// The year-by-year form as a person meets it: a modal window worked by keys.
namespace brivane::test {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr char kVraag[] =
    "Scenario: De wijzigingen in de rijen worden niet bewaard als u het venster sluit zonder op OK te drukken. Wilt u "
    "het sluiten?";
constexpr char kVraagOnderHetTypen[] =
    "Scenario: De wijzigingen in de rijen worden niet bewaard als u het venster sluit zonder op OK te drukken. Dat "
    "geldt ook voor wat u nu aan het typen bent. Wilt u het sluiten?";

}  // namespace

using Rows = FormOnScreen;
INSTANTIATE_TEST_SUITE_P(Typing, Rows, testing::ValuesIn(Screens()), ScreenName);

TEST_P(Rows, OpenInTheFirstBoxAndEnterGoesDown) {
  Open(3, [&] {
    EXPECT_EQ(Focused(), "txtBedrag(1)");
    TypeOver("100");
    Press(Key::Enter);
    EXPECT_EQ(Focused(), "txtBedrag(2)");
    TypeOver("200,50");
    Press(Key::KeypadEnter);
    EXPECT_EQ(Focused(), "txtBedrag(3)");
    Press(Key::Enter);
    EXPECT_EQ(Focused(), "cmdOK");
    EXPECT_EQ(Amount(1), 100);
    EXPECT_EQ(Amount(2), 200.5);
    Press(Key::Enter);
  });
  EXPECT_TRUE(closed);
  EXPECT_THAT(messages, IsEmpty());
  EXPECT_EQ(scenario->Inhoud().size(), 2U);
}

TEST_P(Rows, AreFollowedByTabAndTheirColumnByTheArrows) {
  scenario->invoersoort = 3;
  Open(
      4,
      [&] {
        EXPECT_EQ(Focused(), "txtBedrag(1)");
        Press(Key::Tab);
        EXPECT_EQ(Focused(), "txtPercentage(1)");
        Press(Key::Tab);
        EXPECT_EQ(Focused(), "txtKorting(1)");
        Press(Key::Tab);
        EXPECT_EQ(Focused(), "txtBedrag(2)");
        Press(Key::Tab, With::Shift);
        EXPECT_EQ(Focused(), "txtKorting(1)");
        Press(Key::Down);
        EXPECT_EQ(Focused(), "txtKorting(2)");
        Press(Key::Up);
        Press(Key::Up);
        EXPECT_EQ(Focused(), "txtKorting(1)");
        Press(Key::Tab, With::Shift);
        Press(Key::Tab, With::Shift);
        Press(Key::Tab, With::Shift);
        EXPECT_EQ(Focused(), "chkAanvullen");
        Press(Key::Tab);
        EXPECT_EQ(Focused(), "txtBedrag(1)");
        Click(Cell("txtKorting", 4));
        Press(Key::Tab);
        EXPECT_EQ(Focused(), "cmdOK");
        Press(Key::Tab, With::Shift);
        EXPECT_EQ(Focused(), "txtKorting(4)");
      },
      true);
}

TEST_P(Rows, GoAPageByTheirKeysAndHandOverBefore) {
  disabled = {1};
  // 45 rows stand in four columns: twelve below each other, and nine in the last.
  Open(45, [&] {
    EXPECT_EQ(Focused(), "txtBedrag(2)");
    TypeOver("200");
    Press(Key::PageDown);
    EXPECT_EQ(Amount(2), 200);
    // The first row cannot be gone to, so that one less stands below each other.
    EXPECT_EQ(Focused(), "txtBedrag(13)");
    Press(Key::PageDown);
    EXPECT_EQ(Focused(), "txtBedrag(25)");
    Press(Key::PageUp);
    EXPECT_EQ(Focused(), "txtBedrag(13)");
    Press(Key::PageDown);
    Press(Key::PageDown);
    Press(Key::PageDown);
    EXPECT_EQ(Focused(), "txtBedrag(45)");
    Press(Key::PageDown);
    EXPECT_EQ(Focused(), "txtBedrag(45)");
    TypeOver("12.50");
    Press(Key::PageUp);
    EXPECT_EQ(Focused(), "txtBedrag(45)");
    EXPECT_EQ(Reason(), "Bedoelt u 12,50 of 1.250? Typ een komma voor de decimalen.");
    Press(Key::Escape);
    for (int i = 0; i < 6; ++i) Press(Key::PageUp);
    EXPECT_EQ(Focused(), "txtBedrag(2)");
  });
}

TEST_P(Rows, AndTheirWindowTellWhatTheyAreAbout) {
  subject->Toolkit().SetSubjectTeller([] {
    return controls::FormSubject{.title = "Kinderopvang, per maand",
                                 .row = [](int row) { return "rij " + std::to_string(row); }};
  });
  Open(3, [&] {
    EXPECT_EQ(subject->TitleOf(Window()), "Scenario - Kinderopvang, per maand");
    EXPECT_EQ(Window().Caption(), "Scenario");
    EXPECT_EQ(subject->TipOf(Cell("txtBedrag", 1)), "rij 1");
    EXPECT_EQ(subject->TipOf(Cell("txtBedrag", 3)), "rij 3");
    EXPECT_EQ(subject->TipOf(Cell("chkEenmalig", 2)), "rij 2");
  });
  subject->Toolkit().SetSubjectTeller(nullptr);
  Open(3, [&] {
    EXPECT_EQ(subject->TitleOf(Window()), "Scenario");
    EXPECT_EQ(subject->TipOf(Cell("txtBedrag", 2)), "");
  });
}

TEST_P(Rows, HaveTheirTicksAndHelpIconsAsStops) {
  Open(2, [&] {
    Press(Key::Tab);
    EXPECT_EQ(Focused(), "chkEenmalig(1)");
    Press(Key::Space);
    auto& tick = dynamic_cast<controls::CheckBox&>(Cell("chkEenmalig", 1));
    EXPECT_EQ(tick.Value(), host::kTicked);
    Press(Key::Tab);
    EXPECT_EQ(Focused(), "Hint(1)");
    Press(Key::Tab);
    EXPECT_EQ(Focused(), "txtBedrag(2)");
    Press(Key::Tab);
    EXPECT_EQ(Focused(), "chkEenmalig(2)");
    Press(Key::Up);
    EXPECT_EQ(Focused(), "chkEenmalig(1)");
    Click(tick);
    EXPECT_EQ(tick.Value(), host::kUnticked);
  });
}

TEST_P(Rows, ShowTheGrowthThatReachesThem) {
  scenario->invoersoort = 3;
  scenario->basis = 0;
  Open(4, [&] {
    TypeOver("1000");
    Press(Key::Tab);
    TypeOver("10");
    Press(Key::Enter);
    EXPECT_EQ(Focused(), "txtPercentage(2)");
    EXPECT_EQ(subject->Typed(Cell("txtBedrag", 2)), "1.100,00");
    EXPECT_EQ(subject->Typed(Cell("txtBedrag", 4)), "1.331,00");
  });
}

TEST_P(Rows, ArePutBackByEscapeWhichThenClosesWithoutAskingWhereNothingChanged) {
  Open(3, [&] {
    TypeOver("5");
    Press(Key::Escape);
    EXPECT_EQ(Typed(), "100,00");
    EXPECT_TRUE(IsOpen());
    Press(Key::Escape);
  });
  EXPECT_TRUE(closed);
  EXPECT_THAT(messages, IsEmpty());
  EXPECT_THAT(scenario->log, IsEmpty());
}

TEST_P(Rows, ThatWereChangedAreAskedAboutBeforeClosing) {
  Open(3, [&] {
    Press(Key::Down);
    TypeOver("5");
    Press(Key::Enter);
    Press(Key::Escape);
    EXPECT_TRUE(IsOpen());
    EXPECT_THAT(messages, ElementsAre(kVraag));
    subject->CloseWindow(Window());
    EXPECT_TRUE(IsOpen());
    answer = host::MessageAnswer::Yes;
    Press(Key::Escape);
  });
  EXPECT_TRUE(closed);
  EXPECT_EQ(messages.size(), 3U);
  EXPECT_THAT(scenario->perioden, IsEmpty());
}

TEST_P(Rows, ThatAreBeingTypedAreAskedAboutBeforeClosing) {
  Open(3, [&] {
    TypeOver("5");
    subject->CloseWindow(Window());
    EXPECT_TRUE(IsOpen());
  });
  EXPECT_THAT(messages, ElementsAre(kVraagOnderHetTypen));
}

TEST_P(Rows, RefuseMalformedTypingBesideTheBox) {
  Open(3, [&] {
    TypeOver("12.50");
    Press(Key::Enter);
    EXPECT_EQ(Focused(), "txtBedrag(1)");
    EXPECT_EQ(Typed(), "12.50");
    EXPECT_EQ(Reason(), "Bedoelt u 12,50 of 1.250? Typ een komma voor de decimalen.");
    for (const Key key : {Key::Down, Key::Tab}) {
      Press(key);
      EXPECT_EQ(Focused(), "txtBedrag(1)");
    }
    Click(Cell("txtBedrag", 3));
    EXPECT_EQ(Focused(), "txtBedrag(1)");
    Press('O', With::Alt);
    EXPECT_TRUE(IsOpen());
    EXPECT_THAT(scenario->log, IsEmpty());
  });
}

TEST_P(Rows, ThatAreDisabledAreReachedByNoKeyAndNoClickButFilledForward) {
  disabled = {2};
  Open(4, [&] {
    Press(Key::Down);
    EXPECT_EQ(Focused(), "txtBedrag(3)");
    Press(Key::Up);
    EXPECT_EQ(Focused(), "txtBedrag(1)");
    for (int i = 0; i < 3; ++i) Press(Key::Tab);
    EXPECT_EQ(Focused(), "txtBedrag(3)");
    Click(Cell("txtBedrag", 2));
    EXPECT_EQ(Focused(), "txtBedrag(3)");
    Tick(Cell("chkAanvullen"));
    Click(Cell("txtBedrag", 1));
    TypeOver("300");
    Press(Key::Enter);
    EXPECT_EQ(Amount(2), 300);
    EXPECT_EQ(Amount(4), 300);
  });
}

TEST_P(Rows, WhoseTotalIsRefusedStayOpen) {
  scenario->naam = "Overbruggingskrediet";
  maximum = 100;
  Open(3, [&] {
    TypeOver("60");
    Press(Key::Enter);
    TypeOver("50");
    Press(Key::Enter);
    EXPECT_EQ(subject->Typed(Cell("txtTotaal")), "110,00");
    subject->Gesture(Cell("cmdOK"), controls::Press{});
    subject->Settle();
    EXPECT_TRUE(IsOpen());
    ASSERT_EQ(messages.size(), 1U);
  });
}

}  // namespace brivane::test
