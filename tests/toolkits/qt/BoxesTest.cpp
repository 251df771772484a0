#include "tests/toolkits/qt/SurfaceTest.h"

/// What a box tells beside what it shows.
namespace brivane::test {
namespace {

TEST_F(SurfaceTest, AReasonIsTheDescriptionOfItsBoxUntilSomethingIsTyped) {
  Focus("txtBedrag");
  TypeOver("12.50");
  Press(Qt::Key_Tab);
  EXPECT_EQ(qt::Bubble::ReasonOf(Entry("txtBedrag")), "Bedoelt u 12,50 of 1.250? Typ een komma voor de decimalen.");
  EXPECT_EQ(Entry("txtBedrag").accessibleDescription(), qt::Bubble::ReasonOf(Entry("txtBedrag")));
  TypeOver("12,50");
  EXPECT_EQ(Entry("txtBedrag").accessibleDescription(), "");
}

TEST_F(SurfaceTest, ANoteIsTheDescriptionOfItsBoxUntilItIsHandedOver) {
  Focus("txtBedrag");
  TypeOver("1200/12");
  EXPECT_EQ(qt::Bubble::NoteOf(Entry("txtBedrag")), "= 100,00");
  EXPECT_EQ(qt::Bubble::ReasonOf(Entry("txtBedrag")), "");
  EXPECT_EQ(Entry("txtBedrag").accessibleDescription(), "= 100,00");
  Press(Qt::Key_Tab);
  EXPECT_EQ(qt::Bubble::NoteOf(Entry("txtBedrag")), "");
  EXPECT_EQ(Entry("txtBedrag").accessibleDescription(), "");
}

}  // namespace
}  // namespace brivane::test
