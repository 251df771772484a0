#include <gtest/gtest.h>

#include "component/control/Units.h"

namespace brivane::component {
namespace {

TEST(Units, AnInchIs2540HimetricAnd1440Twips) {
  EXPECT_EQ(HimetricOf(host::Twips{1440}), 2540);
  EXPECT_EQ(TwipsOfHimetric(2540).value, 1440);
  EXPECT_EQ(HimetricOf(host::Twips{15}), 26);        // 26.458
  EXPECT_EQ(HimetricOf(host::Twips{30}), 53);        // 52.917
  EXPECT_EQ(HimetricOf(host::Twips{12450}), 21960);  // 21960.4
}

TEST(Units, EveryHimetricLengthUpToAMetreComesBack) {
  for (LONG length = 0; length < 100000; ++length) ASSERT_EQ(HimetricOf(TwipsOfHimetric(length)), length);
}

TEST(Units, APixelIs15TwipsAt96DotsAnInchAnd10At144) {
  EXPECT_EQ(PixelsOf(host::Twips{3000}, 96), 200);
  EXPECT_EQ(PixelsOf(host::Twips{3007}, 96), 200);  // 200.47
  EXPECT_EQ(PixelsOf(host::Twips{3008}, 96), 201);  // 200.53
  EXPECT_EQ(PixelsOf(host::Twips{3000}, 144), 300);
  EXPECT_EQ(TwipsOfPixels(200, 96).value, 3000);
  EXPECT_EQ(TwipsOfPixels(300, 144).value, 3000);
}

TEST(Units, EveryWholePixelComesBackAtTheUsualResolutions) {
  for (const int dpi : {96, 120, 144, 192})
    for (int pixels = 0; pixels < 4000; ++pixels) ASSERT_EQ(PixelsOf(TwipsOfPixels(pixels, dpi), dpi), pixels);
}

}  // namespace
}  // namespace brivane::component
