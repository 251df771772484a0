// The layout of the explanation control, in twips.

#include "tests/toelichting/ToelichtingTest.h"

namespace brivane::test {

namespace {

using host::Place;
using ::testing::IsEmpty;
using namespace toelichting;

class ToelichtingLayoutTest : public ToelichtingTest {
 protected:
  void SetUp() override {
    SizeContent();
    Make();
  }
  /// The size that the expectations count with, whatever the design gives the content frame.
  void SizeContent() {
    on_[lstToelichting].Move({{1}, {2}, {3}, {4}});
    on_[fraScenarios].Move({{1}, {2}, {3}, {4}});
    on_[fraContent].Move({{1}, {2}, {5760}, {1890}});
    on_[jnAO].Move({{2040}, {480}, {900}, {315}});
  }
  void Size(float width, float height) { controls::Surface::Of(*surface_).Size({width}, {height}); }
};

// The content frame is 1890 high: 300 + 1695 + 120 + 1890 + 60 = 4065.
TEST_F(ToelichtingLayoutTest, StacksTheContentUnderTheListAndTakesItsHeightFromIt) {
  Size(6030, 1);
  EXPECT_EQ(on_[fraContent].Place(), (Place{{135}, {2115}, {5760}, {1890}}));
  EXPECT_EQ(on_[fraScenarios].Place(), (Place{{0}, {0}, {6030}, {4065}}));
  EXPECT_EQ(surface_->Place().height, host::Twips{4065});
}

TEST_F(ToelichtingLayoutTest, GivesItsWidthToTheOuterFrameAlone) {
  for (const float width : {3000.0F, 9000.0F}) {
    Size(width, 4065);
    EXPECT_EQ(on_[fraScenarios].Place().width, host::Twips{width});
    EXPECT_EQ(on_[lstToelichting].Place(), (Place{{135}, {300}, {5760}, {1695}}));
    EXPECT_EQ(on_[fraContent].Place(), (Place{{135}, {2115}, {5760}, {1890}}));
  }
}

TEST_F(ToelichtingLayoutTest, KeepsItsOwnHeightWhateverTheContainerSets) {
  for (const float height : {0.0F, 100.0F, 20000.0F}) {
    Size(6030, height);
    EXPECT_EQ(surface_->Place().height, host::Twips{4065});
  }
}

TEST_F(ToelichtingLayoutTest, LaysOutOnceForOneResize) {
  int resizes = 0;
  subscriptions_ += surface_->Resize.Connect([&] { ++resizes; });
  Size(7000, 1);
  EXPECT_EQ(resizes, 2) << "the control's own height resizes it once more";
  EXPECT_EQ(on_[fraScenarios].Place().width, host::Twips{7000});
}

TEST_F(ToelichtingLayoutTest, RoundsTheContentsPlaceToWholeTwips) {
  on_[lstToelichting].Move({{135}, {300.25F}, {5760}, {1695.5F}});  // 2115.75 under it
  on_[fraContent].Move({{0}, {0}, {5760}, {1890.75F}});
  Size(6030, 1);
  EXPECT_EQ(on_[fraContent].Place(), (Place{{135}, {2116}, {5760}, {1890.75F}}));
  EXPECT_EQ(surface_->Place().height, host::Twips{4067});  // 2116 + 1890.75 + 60 = 4066.75
}

TEST_F(ToelichtingLayoutTest, IsNotTouchedByBinding) {
  Size(6500, 1);
  on_[fraContent].Move({{1}, {2}, {3}, {4}});
  Bind();
  EXPECT_EQ(on_[fraContent].Place(), (Place{{1}, {2}, {3}, {4}}));
}

TEST_F(ToelichtingLayoutTest, IsNotTraced) {
  Size(6500, 1);
  EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(ToelichtingLayoutTest, StaysAsItIsAfterAFailedLayout) {
  // Past the whole numbers of 32 bits: the layout fails to the one who resized, and its guard stays.
  on_[lstToelichting].Move({{135}, {300}, {5760}, {3e9F}});
  EXPECT_THROW(Size(7000, 1), host::Error);
  on_[lstToelichting].Move({{135}, {300}, {5760}, {1695}});
  Size(8000, 1);
  EXPECT_EQ(surface_->Place().height, host::Twips{1}) << "every later layout returns at once";
}

class ScaledToelichtingTest : public ToelichtingLayoutTest {
 protected:
  void SetUp() override { SizeContent(); }
  void MakeAt(float twips) {
    toolkit_.Desktop().twipsPerPixelX = twips;
    toolkit_.Desktop().twipsPerPixelY = twips;
    Make();
  }
};

TEST_F(ScaledToelichtingTest, ScalesTheListAndTheContentButNotTheDistances) {
  MakeAt(12);  // 0.8 of the design
  Size(4824, 1);
  EXPECT_EQ(on_[lstToelichting].Place(), (Place{{108}, {240}, {4608}, {1356}}));
  EXPECT_EQ(on_[fraContent].Place(), (Place{{135}, {1716}, {4608}, {1512}}));  // 240 + 1356 + 120
  EXPECT_EQ(on_[fraScenarios].Place(), (Place{{0}, {0}, {4824}, {3288}}));     // 1716 + 1512 + 60
  EXPECT_EQ(surface_->Place().height, host::Twips{3288});
  EXPECT_EQ(on_[jnAO].Place(), (Place{{1632}, {384}, {720}, {252}}));      // 0.8 of 2040, 480, 900, 315
  EXPECT_FLOAT_EQ(on_[jnAO].Read(host::Measure::FontSize).value(), 7.2F);  // 0.8 of 9 points
}

TEST_F(ScaledToelichtingTest, ScalesUpOnACoarserScreen) {
  MakeAt(20);  // four thirds of the design
  Size(8040, 1);
  EXPECT_EQ(on_[lstToelichting].Place(), (Place{{180}, {400}, {7680}, {2260}}));
  EXPECT_EQ(on_[fraContent].Place(), (Place{{135}, {2780}, {7680}, {2520}}));  // 400 + 2260 + 120
  EXPECT_EQ(surface_->Place().height, host::Twips{5360});                      // 2780 + 2520 + 60
}

TEST_F(ScaledToelichtingTest, KeepsTheDesignWithFifteenTwipsBothWaysOnly) {
  toolkit_.Desktop().twipsPerPixelX = 12;
  Make();
  EXPECT_EQ(on_[lstToelichting].Place(), (Place{{135}, {300}, {5760}, {1695}})) << "the vertical factor is 1";
}

TEST_F(ToelichtingLayoutTest, ColoursOnceWhatStillHasTheButtonFace) {
  constexpr host::Color kRood{0x0000FF};
  constexpr host::Color kBlauw{0xFF0000};
  EXPECT_EQ(control_->BackColor(), host::kButtonFace);
  control_->SetBackColor(kRood);
  EXPECT_EQ(control_->BackColor(), kRood);
  EXPECT_EQ(on_[fraContent].BackColor(), kRood);
  EXPECT_EQ(on_[jnAO].BackColor(), kRood);
  EXPECT_EQ(on_[TxtPcOvergang].BackColor(), host::kWindowBackground) << "not the button face";
  control_->SetBackColor(kBlauw);
  EXPECT_EQ(control_->BackColor(), kBlauw);
  EXPECT_EQ(on_[fraContent].BackColor(), kRood) << "no longer the button face";
}

}  // namespace

}  // namespace brivane::test
