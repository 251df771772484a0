#include "tests/toolkits/win32/SurfaceTest.h"

/// What the toolkit adds to the controls, in the texts that its host chose.
namespace brivane::test {
namespace {

TEST_F(SurfaceTest, SaysWhyItRefusesInTheTextsOfItsHost) {
  toolkit_.Desktop().texts = &frame::Texts::In(frame::Language::English);
  Focus("txtBedrag");
  TypeOver(L"12.50");
  Focus("txtNaam");
  EXPECT_EQ(Reason("txtBedrag"), "Do you mean 12,50 or 1.250? Type a comma before the decimals.");
}

TEST_F(SurfaceTest, SaysThatNothingIsOpenInTheTextsOfItsHost) {
  toolkit_.Desktop().texts = &frame::Texts::In(frame::Language::English);
  controls::Surface::Of(*surface_).SetVeiled(true);
  EXPECT_EQ(win32::Narrow(win32::TextOf(win32::Toolkit::WindowOf(*surface_))), "No free column is open.");
}

}  // namespace
}  // namespace brivane::test
