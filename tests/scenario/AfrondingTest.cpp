#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include <brivane/scenario/Afronding.h>

namespace brivane::scenario {
namespace {

TEST(VierDecimalen, RoundsHalfToEven) {
  EXPECT_EQ(VierDecimalen(3.7000000476837158), 3.7);
  EXPECT_EQ(VierDecimalen(-2.30004), -2.3);
  // An odd number of 32nds times 10,000 is a whole number and a half.
  EXPECT_EQ(VierDecimalen(0.03125), 0.0312);  // 312.5
  EXPECT_EQ(VierDecimalen(0.09375), 0.0938);  // 937.5
  EXPECT_EQ(VierDecimalen(-0.03125), -0.0312);
  EXPECT_EQ(VierDecimalen(0), 0);
}

TEST(VierDecimalen, HasNoNegativeZero) { EXPECT_FALSE(std::signbit(VierDecimalen(-1e-9))); }

TEST(GelijkInSingle, ComparesAsSinglePrecisionDoes) {
  EXPECT_TRUE(GelijkInSingle(3.7, 3.7000000476837158));
  EXPECT_FALSE(GelijkInSingle(3.7, 3.7001));
  EXPECT_TRUE(GelijkInSingle(0.0, -0.0));
  const double teGroot = std::numeric_limits<double>::max();
  EXPECT_FALSE(GelijkInSingle(teGroot, teGroot));
  EXPECT_FALSE(GelijkInSingle(1, -teGroot));
  // The largest number of single precision is in it, and the next double is not.
  const double grootste = static_cast<double>(std::numeric_limits<float>::max());
  const double daarboven = std::nextafter(grootste, teGroot);
  EXPECT_TRUE(GelijkInSingle(grootste, grootste));
  EXPECT_TRUE(GelijkInSingle(-grootste, -grootste));
  EXPECT_FALSE(GelijkInSingle(grootste, daarboven));
  EXPECT_FALSE(GelijkInSingle(daarboven, grootste));
}

TEST(ZoalsIngevoerd, RoundsOnlyWhereStoringGivesTheSameNumber) {
  const auto zelf = [](double ingevoerd) { return ingevoerd; };
  EXPECT_EQ(ZoalsIngevoerd(3.7000000476837158, 3.7000000476837158, zelf), 3.7);
  // 33.3333 is another number in single precision than a third of a hundred.
  const double derde = static_cast<double>(100.0F / 3.0F);
  EXPECT_EQ(ZoalsIngevoerd(derde, derde, zelf), derde);
  EXPECT_EQ(ZoalsIngevoerd(std::numeric_limits<double>::max(), 1, zelf), std::numeric_limits<double>::max());
}

}  // namespace
}  // namespace brivane::scenario
