#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>

#include <brivane/frame/Conversions.h>
#include <brivane/host/Error.h>

namespace brivane::frame {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

struct Case {
  double number;
  std::optional<std::int64_t> whole;  ///< nothing: an overflow
};

template <class Convert> void Check(const Case& c, Convert convert) {
  if (c.whole) {
    EXPECT_EQ(convert(c.number), *c.whole) << c.number;
    return;
  }
  try {
    (void)convert(c.number);
    ADD_FAILURE() << c.number << " was converted";
  } catch (const host::Error& error) {
    EXPECT_EQ(error.Number(), 6) << c.number;
  }
}

}  // namespace

TEST(Conversions, RoundHalfToEven) {
  for (const Case& c : {Case{0, 0}, Case{0.5, 0}, Case{1.5, 2}, Case{2.5, 2}, Case{3.5, 4}, Case{-0.5, 0},
                        Case{-1.5, -2}, Case{-2.5, -2}, Case{0.49999999999999994, 0}, Case{0.51, 1}, Case{2.4999, 2},
                        Case{2.5001, 3}, Case{-2.5001, -3}, Case{-2.4999, -2}, Case{12, 12}}) {
    Check(c, ToInteger16);
    Check(c, ToInteger32);
  }
}

TEST(Conversions, OfAWholeNumberOf16BitsOverflowOutsideItsRange) {
  for (const Case& c : {Case{32767, 32767}, Case{32767.4, 32767}, Case{32767.5, std::nullopt}, Case{-32768, -32768},
                        Case{-32768.5, -32768}, Case{-32768.6, std::nullopt}, Case{32768, std::nullopt},
                        Case{1e9, std::nullopt}, Case{-1e300, std::nullopt}, Case{kInfinity, std::nullopt},
                        Case{-kInfinity, std::nullopt}, Case{kNaN, std::nullopt}})
    Check(c, ToInteger16);
}

TEST(Conversions, OfAWholeNumberOf32BitsOverflowOutsideItsRange) {
  for (const Case& c : {Case{2147483647, 2147483647}, Case{2147483647.4, 2147483647}, Case{2147483647.5, std::nullopt},
                        Case{-2147483648.0, -2147483648LL}, Case{-2147483648.5, -2147483648LL},
                        Case{-2147483648.6, std::nullopt}, Case{2147483648.0, std::nullopt}, Case{1e300, std::nullopt},
                        Case{kInfinity, std::nullopt}, Case{kNaN, std::nullopt}})
    Check(c, ToInteger32);
}

TEST(Conversions, ToSinglePrecisionKeepTheNearestNumber) {
  EXPECT_EQ(ToSingle(0.5), 0.5F);
  EXPECT_EQ(ToSingle(0.1), 0.1F);
  EXPECT_EQ(ToSingle(-70), -70.0F);
  EXPECT_EQ(ToSingle(16777217), 16777216.0F);
  EXPECT_EQ(ToSingle(static_cast<double>(std::numeric_limits<float>::max())), std::numeric_limits<float>::max());
}

TEST(Conversions, ToSinglePrecisionOverflowWhereTheNumberIsTooLarge) {
  for (const double number : {3.5e38, -3.5e38, 1e300, kInfinity, -kInfinity}) {
    try {
      (void)ToSingle(number);
      ADD_FAILURE() << number << " was converted";
    } catch (const host::Error& error) {
      EXPECT_EQ(error.Number(), 6) << number;
    }
  }
}

TEST(Conversions, ANumberWithinADoubleStaysAsItIs) {
  for (const double number : {0.0, -1.5, std::numeric_limits<double>::max()}) EXPECT_EQ(Finite(number), number);
}

TEST(Conversions, ANumberPastADoubleOverflows) {
  for (const double number : {kInfinity, -kInfinity, kNaN}) {
    try {
      (void)Finite(number);
      ADD_FAILURE() << number << " was taken";
    } catch (const host::Error& error) {
      EXPECT_EQ(error.Number(), 6) << number;
    }
  }
}

}  // namespace brivane::frame
