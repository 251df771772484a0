#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <locale>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <brivane/frame/Doubles.h>

namespace brivane::frame {
namespace {

struct Row {
  std::string digits;
  double nearest;
};

std::string Zeros(std::size_t count) { return std::string(count, '0'); }

std::vector<Row> Table() {
  return {
      {"0", 0},
      {"0.0", 0},
      {"000", 0},
      {"12.50", 12.5},
      {"0.1", 0.1},
      {"1.005", 1.005},
      {"999999999999.9999", 999999999999.9999},
      // 2^53 + 1 and 2^53 + 3 stand halfway: the even neighbour.
      {"9007199254740993", 9007199254740992.0},
      {"9007199254740995", 9007199254740996.0},
      {"9007199254740993.0000000000000000000000000001", 9007199254740994.0},
      // 1 + 2^-53 stands halfway between 1 and its neighbour.
      {"1.00000000000000011102230246251565404236316680908203125", 1},
      {"1.00000000000000011102230246251565404236316680908203126", 1 + 0x1p-52},
      {"1" + Zeros(22), 1e22},  // the last power of ten that is a double
      {"1" + Zeros(23), 1e23},  // and the first that is not
      {"1" + Zeros(308), 1e308},
      {"1" + Zeros(309), std::numeric_limits<double>::infinity()},
      {"0." + Zeros(323) + "5", 0x1p-1074},  // the smallest number above zero
      {"0." + Zeros(323) + "2", 0},          // less than half of it
      {"0." + Zeros(400) + "1", 0},
  };
}

/// Plain digits that read back to the number: as few as will do, or many more.
std::string Digits(double number, int more) {
  std::array<char, 1500> buffer;
  const auto end =
      more == 0 ? std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed)
                : std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed, more);
  return {buffer.data(), end.ptr};
}

TEST(NearestDouble, IsTheNearestAndOfTwoTheEvenOne) {
  for (const Row& row : Table()) EXPECT_EQ(NearestDouble(row.digits), row.nearest) << row.digits;
}

TEST(NearestDouble, IsTheSameByHand) {
  for (const Row& row : Table()) EXPECT_EQ(NearestDoubleByHand(row.digits), row.nearest) << row.digits;
}

TEST(NearestDouble, ReadsBackEveryNumberInBothWays) {
  std::mt19937_64 random(20260101);
  std::vector<double> numbers = {
      0x1p-1074, 0x1p-1022, 0x1.fffffffffffffp-1023, std::numeric_limits<double>::max(), 1e22, 1e23, 0.3, 5e-324};
  for (int i = 0; i < 4000; ++i) {
    const double any = std::abs(std::bit_cast<double>(random()));
    if (std::isfinite(any)) numbers.push_back(any);
    numbers.push_back(static_cast<double>(random() % 1000000000000) / 100);
  }
  for (const double number : numbers)
    for (const int more : {0, 1100}) {
      const std::string digits = Digits(number, more);
      ASSERT_EQ(NearestDouble(digits), number) << digits;
      ASSERT_EQ(NearestDoubleByHand(digits), number) << digits;
    }
}

TEST(NearestDouble, IsTheSameByHandBetweenTwoNumbers) {
  std::mt19937_64 random(53);
  for (int i = 0; i < 4000; ++i) {
    // What stands halfway has one bit more than a double holds; nudged by its last digit it does not.
    const std::uint64_t halfway = (std::uint64_t{1} << 53) + 2 * (random() >> 12) + 1;
    for (const char* after : {"", ".0", ".00000000000000000000000000000000001"}) {
      const std::string digits = std::to_string(halfway) + after;
      ASSERT_EQ(NearestDoubleByHand(digits), NearestDouble(digits)) << digits;
    }
  }
}

struct Comma : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(NearestDouble, KnowsNoLocale) {
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Comma));
  EXPECT_EQ(NearestDouble("1234.5"), 1234.5);
  EXPECT_EQ(NearestDoubleByHand("1234.5"), 1234.5);
  std::locale::global(before);
}

TEST(ShortestDigits, ReadBackAndAreTheSameByHand) {
  const std::pair<double, const char*> rows[] = {{0, "0"},
                                                 {1, "1"},
                                                 {0.1, "0.1"},
                                                 {1234.5, "1234.5"},
                                                 {1000, "1000"},
                                                 {0.00012, "0.00012"},
                                                 {2.675, "2.675"},
                                                 {9007199254740991.0, "9007199254740991"},
                                                 {18014398509481984.0, "18014398509481984"}};
  for (const auto& [number, digits] : rows) {
    EXPECT_EQ(ShortestDigits(number), digits);
    EXPECT_EQ(ShortestDigitsByHand(number), digits);
  }
  std::mt19937_64 random(54);
  for (int i = 0; i < 4000; ++i) {
    const double number =
        static_cast<double>(random() % 100'000'000'000'000) / static_cast<double>(1 + random() % 1000);
    ASSERT_EQ(ShortestDigitsByHand(number), ShortestDigits(number));
  }
  for (int i = 0; i < 400; ++i) {
    const double any = std::abs(std::bit_cast<double>(random()));
    if (std::isfinite(any)) {
      ASSERT_EQ(ShortestDigitsByHand(any), ShortestDigits(any));
    }
  }
}

}  // namespace
}  // namespace brivane::frame
