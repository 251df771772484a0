#include <gtest/gtest.h>

#include <limits>
#include <string>

#include <brivane/frame/GroupedNumber.h>

namespace brivane::frame {
namespace {

TEST(GroupedNumber, StandsInGroupsOfThreeFromTheRight) {
  struct Case {
    double number;
    const char* text;
  };
  for (const Case& c : {Case{0, "0"}, Case{7, "7"}, Case{-7, "-7"}, Case{999, "999"}, Case{1000, "1.000"},
                        Case{-1000, "-1.000"}, Case{12345, "12.345"}, Case{123456, "123.456"},
                        Case{1234567, "1.234.567"}, Case{-999999, "-999.999"}, Case{1e15, "1.000.000.000.000.000"}})
    EXPECT_EQ(FormatGrouped(c.number, "."), c.text);
  EXPECT_EQ(FormatGrouped(1234567, ""), "1234567");
  EXPECT_EQ(FormatGrouped(1234, "\u00A0"), "1\u00A0234");
}

TEST(GroupedNumber, IsRoundedHalfAwayFromZero) {
  EXPECT_EQ(FormatGrouped(0.4, "."), "0");
  EXPECT_EQ(FormatGrouped(0.5, "."), "1");
  EXPECT_EQ(FormatGrouped(2.5, "."), "3");
  EXPECT_EQ(FormatGrouped(-0.5, "."), "-1");
  EXPECT_EQ(FormatGrouped(-0.4, "."), "0");
  EXPECT_EQ(FormatGrouped(999.5, "."), "1.000");
}

TEST(GroupedNumber, ThatIsNotFiniteIsSpelledOut) {
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(FormatGrouped(infinity, "."), "Inf");
  EXPECT_EQ(FormatGrouped(-infinity, "."), "-Inf");
  EXPECT_EQ(FormatGrouped(std::numeric_limits<double>::quiet_NaN(), "."), "NaN");
}

}  // namespace
}  // namespace brivane::frame
