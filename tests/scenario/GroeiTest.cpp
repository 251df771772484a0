#include <gtest/gtest.h>

#include <limits>

#include "tests/scenario/Rijentabel.h"
#include <brivane/scenario/Groei.h>

namespace brivane::scenario {
namespace {

using tests::Rijentabel;
using Reeks = std::vector<double>;

TEST(Groei, GrowsByThePercentageInSinglePrecision) {
  // 3.7 in single precision is 15518925 / 2^22 = 3.7000000476837158203125.
  EXPECT_EQ(Gegroeid(1000, 3.7), 1000 * (3.7000000476837158203125 / 100) + 1000);
  EXPECT_NE(Gegroeid(1000, 3.7), 1037);
  EXPECT_NEAR(Gegroeid(1000, 3.7), 1037.000000476837, 1e-9);
  // 10 and 12.5 are whole in single precision.
  EXPECT_EQ(Gegroeid(1000, 10), 1100);
  EXPECT_EQ(Gegroeid(200, 12.5), 225);
  EXPECT_EQ(Gegroeid(200, -50), 100);
}

TEST(Groei, RefusesAPercentageThatSinglePrecisionCannotHold) {
  try {
    (void)Gegroeid(1, std::numeric_limits<double>::max());
    FAIL();
  } catch (const host::Error& fout) {
    EXPECT_EQ(fout.Number(), 6);
  }
}

TEST(Groei, ARowWithoutAPositivePercentageKeepsTheLastOneAbove) {
  Rijentabel rijen{.bedragen = {1000, 0, 0, 0}, .percentages = {10, 0, 5, 0}};
  Groei(rijen, 1);
  EXPECT_DOUBLE_EQ(rijen.bedragen[1], 1100);
  EXPECT_DOUBLE_EQ(rijen.bedragen[2], 1210);
  EXPECT_DOUBLE_EQ(rijen.bedragen[3], 1270.5);
  EXPECT_EQ(rijen.percentages, (Reeks{10, 0, 5, 0}));
}

TEST(Groei, TheStartingRowsOwnPercentageCountsAlsoWhenNegative) {
  Rijentabel rijen{.bedragen = {1000, 0, 0, 0}, .percentages = {-50, -25, 100, 0}};
  Groei(rijen, 1);
  // -50 % from row 1 and, the -25 % being passed over, from row 2 as well; then 100 %.
  EXPECT_EQ(rijen.bedragen, (Reeks{1000, 500, 250, 500}));
}

TEST(Groei, StartsAtTheEditedRowAndLeavesTheOnesAboveAlone) {
  Rijentabel rijen{.bedragen = {7, 100, 1, 1}, .percentages = {10, 100, 0, 0}};
  Groei(rijen, 2);
  EXPECT_EQ(rijen.bedragen, (Reeks{7, 100, 200, 400}));
}

TEST(Groei, OfTheLastRowChangesNothing) {
  Rijentabel rijen{.bedragen = {7, 100}, .percentages = {10, 100}};
  Groei(rijen, 2);
  EXPECT_EQ(rijen.bedragen, (Reeks{7, 100}));
}

TEST(Groei, NeverReadsThePercentageOfTheLastRow) {
  Rijentabel rijen{.bedragen = {100, 0, 0}, .percentages = {100, 0, 50}, .kapotPercentage = 3};
  Groei(rijen, 1);
  EXPECT_EQ(rijen.bedragen, (Reeks{100, 200, 400}));
}

TEST(Groei, StopsAtARowThatCannotBeReadAndKeepsWhatItWrote) {
  Rijentabel rijen{.bedragen = {100, 0, 0, 9}, .percentages = {100, 0, 0, 0}, .kapotPercentage = 3};
  EXPECT_THROW(Groei(rijen, 1), host::Error);
  EXPECT_EQ(rijen.bedragen, (Reeks{100, 200, 400, 9}));
}

TEST(GroeiGelijk, CopiesThePercentageDownAndGrowsInDoubles) {
  Rijentabel rijen{.bedragen = {1000, 5, 5, 5}, .percentages = {3.7, 1, 2, 8}};
  GroeiGelijk(rijen, 1);
  const double twee = 1000 * 3.7 / 100 + 1000;
  const double drie = twee * 3.7 / 100 + twee;
  EXPECT_EQ(rijen.bedragen, (Reeks{1000, twee, drie, drie * 3.7 / 100 + drie}));
  EXPECT_EQ(twee, 1037);
  // The last row has no growth of its own.
  EXPECT_EQ(rijen.percentages, (Reeks{3.7, 3.7, 3.7, 8}));
}

TEST(GroeiGelijk, TakesANegativePercentageAndAZeroAsTheyAre) {
  Rijentabel negatief{.bedragen = {800, 0, 0}, .percentages = {-50, 10, 10}};
  GroeiGelijk(negatief, 1);
  EXPECT_EQ(negatief.bedragen, (Reeks{800, 400, 200}));
  EXPECT_EQ(negatief.percentages, (Reeks{-50, -50, 10}));

  Rijentabel nul{.bedragen = {800, 1, 1}, .percentages = {0, 10, 10}};
  GroeiGelijk(nul, 1);
  EXPECT_EQ(nul.bedragen, (Reeks{800, 800, 800}));
}

TEST(GroeiGelijk, OfTheLastRowReadsAndChangesNothing) {
  Rijentabel rijen{.bedragen = {7, 100}, .percentages = {10, 100}, .kapotPercentage = 2, .kapotBedrag = 2};
  GroeiGelijk(rijen, 2);
  EXPECT_EQ(rijen.bedragen, (Reeks{7, 100}));
}

TEST(LeidPercentageAf, IsTheGrowthFromTheRowAbove) {
  Rijentabel rijen{.bedragen = {100, 125, 50}, .percentages = {1, 2, 3}};
  LeidPercentageAf(rijen, 2);
  EXPECT_EQ(rijen.percentages, (Reeks{25, 2, 3}));
  LeidPercentageAf(rijen, 3);
  EXPECT_EQ(rijen.percentages, (Reeks{25, -60, 3}));
}

TEST(LeidPercentageAf, LeavesAnAmountOfZeroOrLessAndTheFirstRowAlone) {
  for (const double boven : {0.0, -100.0}) {
    Rijentabel rijen{.bedragen = {boven, 125}, .percentages = {1, 2}};
    LeidPercentageAf(rijen, 2);
    EXPECT_EQ(rijen.percentages, (Reeks{1, 2})) << boven;
  }
  Rijentabel eerste{.bedragen = {100, 125}, .percentages = {1, 2}};
  LeidPercentageAf(eerste, 1);
  EXPECT_EQ(eerste.percentages, (Reeks{1, 2}));
}

TEST(LeidPercentageAf, MultipliesBeforeItDivides) {
  // 400 / 3 and 100 x (4 / 3) differ in the last digit.
  EXPECT_EQ(Groeipercentage(3, 7), 133.33333333333334);
}

TEST(VulDoor, CopiesToTheLaterRowsOnly) {
  Rijentabel rijen{.bedragen = {100, 300, 1, 1, 1}, .percentages = {1, 2, 3, 4, 5}};
  VulBedragDoor(rijen, 2);
  EXPECT_EQ(rijen.bedragen, (Reeks{100, 300, 300, 300, 300}));
  VulPercentageDoor(rijen, 4);
  EXPECT_EQ(rijen.percentages, (Reeks{1, 2, 3, 4, 4}));
}

TEST(VulDoor, OfTheLastRowReadsNothing) {
  Rijentabel rijen{.bedragen = {1, 2}, .percentages = {3, 4}, .kapotPercentage = 2, .kapotBedrag = 2};
  VulBedragDoor(rijen, 2);
  VulPercentageDoor(rijen, 2);
  EXPECT_EQ(rijen.bedragen, (Reeks{1, 2}));
  EXPECT_EQ(rijen.percentages, (Reeks{3, 4}));
}

}  // namespace
}  // namespace brivane::scenario
