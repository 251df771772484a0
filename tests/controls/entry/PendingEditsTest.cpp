#include "tests/controls/entry/EntryDesk.h"

/// What is typed in several boxes at a time: a host hands it over before it leaves.
namespace brivane::controls {

using testing::ElementsAre;
using testing::IsEmpty;

class PendingEditsTest : public EntryTest {
 protected:
  Surface& area = Surface::Of(*surface);
  TextBox& name = Box("txtNaam");
  TextBox& amount = Box("txtBedrag");
};

TEST_F(PendingEditsTest, AreThoseOfTheSurfaceInTheOrderOfBeginning) {
  EXPECT_THAT(toolkit.Pending().On(area), IsEmpty());
  TypeOver(amount, "5");
  TypeOver(name, "x");
  TypeOver(amount, "56");
  const auto other = toolkit.MakeSurface(test::kSurface);
  const auto& elsewhere = static_cast<TextBox&>(*Surface::Of(*other).Find("txtNaam"));
  TypeOver(elsewhere, "y");
  EXPECT_THAT(toolkit.Pending().On(area), ElementsAre(&Edit(amount), &Edit(name)));
  EXPECT_THAT(toolkit.Pending().On(Surface::Of(*other)), ElementsAre(&Edit(elsewhere)));
  EXPECT_TRUE(Edit(amount).Restore());
  EXPECT_TRUE(Edit(name).Commit());
  EXPECT_THAT(toolkit.Pending().On(area), IsEmpty());
}

TEST_F(PendingEditsTest, GoWithTheirBoxes) {
  auto other = toolkit.MakeSurface(test::kSurface);
  TypeOver(static_cast<TextBox&>(*Surface::Of(*other).Find("txtNaam")), "y");
  other.reset();
  TypeOver(amount, "5");
  EXPECT_TRUE(toolkit.Pending().Commit(area));
  EXPECT_THAT(log, ElementsAre("txtBedrag = 5,00"));
}

TEST_F(PendingEditsTest, AreHandedOverAllWithOrWithoutTheFocus) {
  EXPECT_TRUE(toolkit.Pending().Commit(area));
  TypeOver(amount, "5");
  TypeOver(name, "x");
  EXPECT_TRUE(toolkit.Pending().Commit(area));
  EXPECT_THAT(log, ElementsAre("txtBedrag = 5,00", "txtNaam = x"));
}

TEST_F(PendingEditsTest, StopAtTheFirstThatIsRefusedWhichTakesTheFocus) {
  TypeOver(amount, "12.50");
  TypeOver(name, "x");
  EXPECT_FALSE(toolkit.Pending().Commit(area));
  EXPECT_TRUE(Face(amount).focused);
  EXPECT_THAT(log, IsEmpty());
  TypeOver(amount, "12,50");
  EXPECT_TRUE(toolkit.Pending().Commit(area));
  EXPECT_THAT(log, ElementsAre("txtBedrag = 12,50", "txtNaam = x"));
}

TEST_F(PendingEditsTest, AreAskedOfAPersonWhereNobodyCanReachTheBox) {
  amount.SetNumber(7);
  TypeOver(amount, "5");
  amount.SetEnabled(false);
  EXPECT_FALSE(toolkit.Pending().Commit(area));
  EXPECT_THAT(
      toolkit.asked,
      ElementsAre("Niet overgenomen: In het vak \"Bedrag\" staat nog \"5\". Dat is niet overgenomen, en het vak "
                  "is nu niet te bereiken.\r\n\r\nWilt u wat daar getypt is laten vervallen?"));
  EXPECT_EQ(Face(amount).text, "5");
  toolkit.answer = host::MessageAnswer::Yes;
  EXPECT_TRUE(toolkit.Pending().Commit(area));
  EXPECT_EQ(Face(amount).text, "7,00");
  EXPECT_THAT(log, IsEmpty());
  EXPECT_TRUE(toolkit.Pending().Commit(area));
  EXPECT_EQ(toolkit.asked.size(), 2U);
}

TEST_F(PendingEditsTest, ThatPassAreHandedOverFromABoxOutOfSightAndTheOthersAreAskedOf) {
  Face(amount).atHand = Face(name).atHand = false;
  TypeOver(amount, "12.50");
  TypeOver(name, "x");
  EXPECT_FALSE(toolkit.Pending().Commit(area));
  EXPECT_THAT(toolkit.asked,
              ElementsAre(testing::HasSubstr("Bedoelt u 12,50 of 1.250? Typ een komma voor de decimalen.")));
  toolkit.answer = host::MessageAnswer::Yes;
  EXPECT_TRUE(toolkit.Pending().Commit(area));
  EXPECT_THAT(log, ElementsAre("txtNaam = x"));
}

TEST_F(PendingEditsTest, AreLeftWithoutAQuestion) {
  amount.SetNumber(7);
  TypeOver(amount, "12.50");
  TypeOver(name, "x");
  toolkit.Pending().Leave(area);
  EXPECT_THAT(log, ElementsAre("txtNaam = x"));
  EXPECT_EQ(Face(amount).text, "7,00");
  EXPECT_EQ(Face(amount).reason, "");
  EXPECT_THAT(toolkit.asked, IsEmpty());
  EXPECT_THAT(toolkit.Pending().On(area), IsEmpty());
}

TEST_F(PendingEditsTest, ArePutBackAll) {
  amount.SetNumber(7);
  TypeOver(amount, "5");
  TypeOver(name, "x");
  toolkit.Pending().PutBack(area);
  EXPECT_EQ(Face(amount).text, "7,00");
  EXPECT_EQ(Face(name).text, "");
  EXPECT_THAT(log, IsEmpty());
}

TEST_F(PendingEditsTest, MayEndOneAnother) {
  subscriptions += name.Validation.Connect([this](bool&) { amount.SetNumber(7); });
  TypeOver(name, "x");
  TypeOver(amount, "5");
  EXPECT_TRUE(toolkit.Pending().Commit(area));
  EXPECT_EQ(amount.Number(), 7);
  EXPECT_THAT(log, ElementsAre("txtNaam = x"));
}

TEST_F(PendingEditsTest, MayTakeTheirToolkitAway) {
  auto own = std::make_unique<TestToolkit>();
  auto shown = own->MakeSurface(test::kSurface);
  auto& first = static_cast<TextBox&>(*Surface::Of(*shown).Find("txtNaam"));
  auto& second = static_cast<TextBox&>(*Surface::Of(*shown).Find("txtBedrag"));
  int raised = 0;
  subscriptions += first.Validation.Connect([&](bool&) {
    ++raised;
    const auto goesLast = std::move(own);  // what is captured goes with the box
    shown.reset();
  });
  subscriptions += second.Validation.Connect([&](bool&) { ++raised; });
  TypeOver(first, "x");
  TypeOver(second, "5");
  EXPECT_TRUE(own->Pending().Commit(Surface::Of(*shown)));
  EXPECT_EQ(raised, 1);
}

}  // namespace brivane::controls
