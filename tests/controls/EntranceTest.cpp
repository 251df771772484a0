#include <gtest/gtest.h>

#include "tests/toolkits/conformance/TestDesign.h"
#include <brivane/controls/Choices.h>
#include <brivane/controls/Entrance.h>
#include <brivane/controls/Surface.h>
#include <brivane/toolkits/memory/Toolkit.h>

/// Where a person comes in who goes to a frame.
namespace brivane::controls {
namespace {

class EntranceTest : public testing::Test {
 protected:
  [[nodiscard]] AnyControl& Get(std::string_view name, int index = frame::kNoIndex) {
    return *Surface::Of(*surface_).Find(name, index);
  }
  [[nodiscard]] std::string Of(std::string_view frame) {
    const AnyControl* const entrance = EntranceOf(Get(frame));
    return entrance != nullptr ? entrance->ElementName() : "";
  }

  memory::Toolkit toolkit_;
  std::unique_ptr<host::Surface> surface_ = toolkit_.MakeSurface(test::kSurface);
};

TEST_F(EntranceTest, IsTheFirstThatCanBeReachedAlsoInAFrameWithinIt) {
  EXPECT_EQ(Of("fraBoxen"), "txtNaam");
  Get("txtNaam").Host().SetVisible(false);
  EXPECT_EQ(Of("fraBoxen"), "txtBedrag");
  for (const char* name : {"txtBedrag", "txtPercentage", "txtJaren", "txtDatum", "txtTotaal"})
    Get(name).Host().SetEnabled(false);
  EXPECT_EQ(Of("fraBoxen"), "jnDiep");
  EXPECT_EQ(Of("fraDiep"), "jnDiep");
}

TEST_F(EntranceTest, IsTheChosenOneOfAGroupOfOptionsThatCanBeReached) {
  EXPECT_EQ(Of("fraKeuze"), "optSoort(1)");
  static_cast<OptionButton&>(Get("optAnder", 2)).SetValue(true);
  EXPECT_EQ(Of("fraKeuze"), "optSoort(1)");
  static_cast<OptionButton&>(Get("optSoort", 3)).SetValue(true);
  EXPECT_EQ(Of("fraKeuze"), "optSoort(3)");
  Get("optSoort", 3).Host().SetEnabled(false);
  EXPECT_EQ(Of("fraKeuze"), "optSoort(1)");
}

TEST_F(EntranceTest, IsNoneWhereNobodyCanGo) {
  Get("fraDiep").Host().SetVisible(false);
  EXPECT_EQ(Of("fraDiep"), "");
  Get("fraKeuze").Host().SetEnabled(false);
  EXPECT_EQ(Of("fraKeuze"), "");
}

}  // namespace
}  // namespace brivane::controls
