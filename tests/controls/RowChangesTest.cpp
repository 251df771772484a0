#include "tests/controls/entry/EntryDesk.h"
#include <brivane/host/controls/CheckBox.h>
#include <brivane/scenario/Ontwerp.h>

/// A person closes a form by Escape or its close box.
namespace brivane::controls {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

class RowChangesTest : public RowsTest {
 protected:
  /// Whether the form went, after a question where rows would be lost.
  [[nodiscard]] bool Closes() {
    RowChanges::Close(Window(), toolkit);
    return Window().IsUnloaded();
  }
};

TEST_F(RowChangesTest, NoneCloseWithoutAQuestion) {
  Row(1).SetNumber(5);
  TypeOver(Row(1), "6");
  EXPECT_TRUE(Edit(Row(1)).Restore());
  TypeOver(Box("txtBedrag"), "of another surface");
  EXPECT_TRUE(Closes());
  EXPECT_THAT(toolkit.asked, IsEmpty());
}

TEST_F(RowChangesTest, AreAskedAboutOnceARowWasEntered) {
  TypeOver(Row(2), "5");
  EXPECT_TRUE(Edit(Row(2)).Commit());
  EXPECT_FALSE(Closes());
  EXPECT_THAT(toolkit.asked, ElementsAre("Proefformulier: De wijzigingen in de rijen worden niet bewaard als u het "
                                         "venster sluit zonder op OK te drukken. Wilt u het sluiten?"));
  toolkit.answer = host::MessageAnswer::Yes;
  EXPECT_TRUE(Closes());
}

TEST_F(RowChangesTest, AreAskedAboutInTheLanguageOfTheToolkit) {
  toolkit.language = frame::Language::English;
  TypeOver(Row(1), "5");
  EXPECT_TRUE(Edit(Row(1)).Commit());
  TypeOver(Row(2), "6");
  EXPECT_FALSE(Closes());
  EXPECT_THAT(toolkit.asked,
              ElementsAre("Proefformulier: The amount of the first row was saved when it was entered, and stays. The "
                          "other changes are not saved when you close the window without pressing OK. That goes for "
                          "what you are typing now, too. Do you want to close it?"));
}

TEST_F(RowChangesTest, LeaveTheAmountOfTheFirstRowAndSaySo) {
  TypeOver(Row(1), "5");
  EXPECT_TRUE(Edit(Row(1)).Commit());
  TypeOver(Row(3), "6");
  EXPECT_TRUE(Edit(Row(3)).Commit());
  EXPECT_FALSE(Closes());
  EXPECT_THAT(
      toolkit.asked,
      ElementsAre("Proefformulier: Het bedrag van de eerste rij is bij het invullen al bewaard en blijft staan. "
                  "De andere wijzigingen worden niet bewaard als u het venster sluit zonder op OK te drukken. "
                  "Wilt u het sluiten?"));
}

TEST_F(RowChangesTest, LeaveNothingOfTheFirstRowBesideItsAmount) {
  EXPECT_EQ(toolkit.Hand(AnyControl::Of(*form->Element(kEenmalig.row, 1)), Tick{host::kTicked}), Outcome::Done);
  EXPECT_FALSE(Closes());
  refuse = true;
  EXPECT_EQ(toolkit.Hand(Row(1), Enter{5.0}), Outcome::Refused);
  EXPECT_FALSE(Closes());
  EXPECT_THAT(toolkit.asked, Each(StartsWith("Proefformulier: De wijzigingen in de rijen worden niet bewaard")));
}

TEST_F(RowChangesTest, OfWhatIsBeingTypedAreLostToo) {
  TypeOver(Row(1), "5");
  EXPECT_FALSE(Closes());
  EXPECT_THAT(
      toolkit.asked,
      ElementsAre("Proefformulier: De wijzigingen in de rijen worden niet bewaard als u het venster sluit zonder "
                  "op OK te drukken. Dat geldt ook voor wat u nu aan het typen bent. Wilt u het sluiten?"));
}

/// A form whose rows hold percentages.
TEST(RowChangesWithoutAmounts, LeaveTheValueOfTheFirstRow) {
  TestToolkit toolkit;
  const std::unique_ptr<host::Form> form = toolkit.MakeForm(scenario::kOntwerp);
  const auto row = [&](std::size_t design, int index) -> AnyControl& {
    form->Create(design, index).SetVisible(true);
    return AnyControl::Of(*form->Element(design, index));
  };
  EXPECT_EQ(toolkit.Hand(row(scenario::txtPercentage.row, 1), Enter{5.0}), Outcome::Done);
  RowChanges::Close(dynamic_cast<Form&>(*form), toolkit);
  // Beside amounts a percentage of the first row waits for OK.
  const std::unique_ptr<host::Form> growth = toolkit.MakeForm(scenario::kOntwerp);
  growth->Create(scenario::txtBedrag.row, 1).SetVisible(true);
  growth->Create(scenario::txtPercentage.row, 1).SetVisible(true);
  EXPECT_EQ(toolkit.Hand(AnyControl::Of(*growth->Element(scenario::txtPercentage.row, 1)), Enter{5.0}), Outcome::Done);
  RowChanges::Close(dynamic_cast<Form&>(*growth), toolkit);
  EXPECT_THAT(toolkit.asked,
              ElementsAre(StartsWith("Scenario: De waarde van de eerste rij is bij het invullen al bewaard"),
                          StartsWith("Scenario: De wijzigingen in de rijen worden niet bewaard")));
}

TEST_F(RowChangesTest, AreAskedAboutAfterATick) {
  EXPECT_EQ(toolkit.Hand(AnyControl::Of(*form->Element(kEenmalig.row, 1)), Tick{host::kTicked}), Outcome::Done);
  EXPECT_FALSE(Closes());
}

TEST_F(RowChangesTest, AreAskedAboutAfterAPastedColumn) {
  Edit(Row(1)).Paste("1\n2");
  EXPECT_FALSE(Closes());
}

TEST_F(RowChangesTest, AreAskedAboutAlsoWhereTheEntryWasRefusedAndPutBack) {
  refuse = true;
  TypeOver(Row(1), "5");
  EXPECT_FALSE(Edit(Row(1)).Commit());
  EXPECT_TRUE(Edit(Row(1)).Restore());
  EXPECT_FALSE(Closes());
}

TEST_F(RowChangesTest, AreAskedAboutWhileARowIsBeingTyped) {
  TypeOver(Row(1), "5");
  EXPECT_FALSE(Window().Rows()->Any());
  EXPECT_FALSE(Closes());
  EXPECT_EQ(toolkit.asked.size(), 1U);
}

TEST_F(RowChangesTest, AreNotThoseOfAnActionThatWasIgnored) {
  Row(1).SetEnabled(false);
  EXPECT_EQ(toolkit.Hand(Row(1), Enter{5.0}), Outcome::Ignored);
  EXPECT_TRUE(Closes());
}

TEST_F(RowChangesTest, AreNotThoseOfOtherControls) {
  EXPECT_EQ(toolkit.Hand(*Window().Find("cmdOK"), Press{}), Outcome::Done);
  EXPECT_EQ(toolkit.Hand(Box("txtBedrag"), Enter{5.0}), Outcome::Done);
  EXPECT_TRUE(Closes());
}

TEST_F(RowChangesTest, MayComeOfAnActionThatTakesTheFormAway) {
  const host::Subscription listening = Row(1).Validation.Connect([this](bool&) { form.reset(); });
  EXPECT_EQ(toolkit.Hand(Row(1), Enter{5.0}), Outcome::Done);
  EXPECT_EQ(form, nullptr);
}

}  // namespace brivane::controls
