#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <tuple>

#include <brivane/frame/Calendar.h>
#include <brivane/host/Error.h>

namespace brivane::frame {

namespace {

std::string Text(host::Date date) {
  const YearMonthDay d = Split(date);
  return std::to_string(d.year) + '-' + std::to_string(d.month) + '-' + std::to_string(d.day);
}

template <class Call> int ErrorOf(Call&& call) {
  try {
    call();
  } catch (const host::Error& error) {
    return error.Number();
  }
  return 0;
}

}  // namespace

TEST(Calendar, CountsDaysFromTheZeroDate) {
  EXPECT_EQ(MakeDate({1899, 12, 30}).Days(), 0);
  EXPECT_TRUE(MakeDate({1899, 12, 30}).IsNone());
  EXPECT_EQ(MakeDate({1899, 12, 31}).Days(), 1);
  EXPECT_EQ(MakeDate({1900, 1, 1}).Days(), 2);
  EXPECT_EQ(MakeDate({1899, 12, 29}).Days(), -1);
  // 124 years of 365 days and 30 leap days (1904 to 2020) from 1 January 1900, which is day 2.
  EXPECT_EQ(MakeDate({2024, 1, 1}).Days(), 2 + 124 * 365 + 30);
  EXPECT_EQ(Text(host::Date{45322}), "2024-1-31");
  EXPECT_EQ(Text(host::kNoDate), "1899-12-30");
  EXPECT_EQ(Text(host::Date{-1}), "1899-12-29");
}

TEST(Calendar, HoldsTheYears100To9999) {
  EXPECT_EQ(Text(MakeDate({100, 1, 1})), "100-1-1");
  EXPECT_EQ(Text(MakeDate({9999, 12, 31})), "9999-12-31");
  EXPECT_EQ(ErrorOf([] { (void)MakeDate({99, 12, 31}); }), 6);
  EXPECT_EQ(ErrorOf([] { (void)MakeDate({10000, 1, 1}); }), 6);
}

TEST(Calendar, KnowsWhichDaysExist) {
  EXPECT_TRUE(IsCalendarDate({2024, 2, 29}));
  EXPECT_FALSE(IsCalendarDate({2023, 2, 29}));
  EXPECT_TRUE(IsCalendarDate({2000, 2, 29}));
  EXPECT_FALSE(IsCalendarDate({1900, 2, 29}));
  EXPECT_FALSE(IsCalendarDate({2024, 4, 31}));
  EXPECT_FALSE(IsCalendarDate({2024, 0, 1}));
  EXPECT_FALSE(IsCalendarDate({2024, 13, 1}));
  EXPECT_FALSE(IsCalendarDate({2024, 1, 0}));
  EXPECT_FALSE(IsCalendarDate({99, 1, 1}));
  EXPECT_FALSE(IsCalendarDate({10000, 1, 1}));
  EXPECT_EQ(ErrorOf([] { (void)MakeDate({2023, 2, 29}); }), 6);
}

TEST(Calendar, AddsMonthsAndClampsTheDayToAShorterMonth) {
  struct Case {
    YearMonthDay from;
    std::int64_t months;
    YearMonthDay to;
  };
  for (const Case& c : {Case{{2024, 1, 31}, 1, {2024, 2, 29}}, Case{{2023, 1, 31}, 1, {2023, 2, 28}},
                        Case{{2024, 1, 31}, 2, {2024, 3, 31}}, Case{{2024, 1, 31}, 3, {2024, 4, 30}},
                        Case{{2024, 1, 15}, 0, {2024, 1, 15}}, Case{{2023, 12, 31}, 2, {2024, 2, 29}},
                        Case{{2024, 3, 31}, -1, {2024, 2, 29}}, Case{{2024, 1, 31}, -2, {2023, 11, 30}},
                        Case{{2024, 1, 1}, -1, {2023, 12, 1}}, Case{{2024, 6, 10}, 360, {2054, 6, 10}},
                        Case{{1900, 1, 31}, -2, {1899, 11, 30}}, Case{{100, 2, 1}, -1, {100, 1, 1}},
                        Case{{9999, 11, 30}, 1, {9999, 12, 30}}})
    EXPECT_EQ(AddMonths(MakeDate(c.from), c.months), MakeDate(c.to))
        << c.from.year << '-' << c.from.month << '-' << c.from.day << " + " << c.months;
}

TEST(Calendar, AddsYearsAndClampsALeapDay) {
  EXPECT_EQ(AddYears(MakeDate({2024, 2, 29}), 1), MakeDate({2025, 2, 28}));
  EXPECT_EQ(AddYears(MakeDate({2024, 2, 29}), 4), MakeDate({2028, 2, 29}));
  EXPECT_EQ(AddYears(MakeDate({1975, 12, 31}), 67), MakeDate({2042, 12, 31}));
  EXPECT_EQ(AddYears(MakeDate({2024, 2, 29}), -1), MakeDate({2023, 2, 28}));
}

TEST(Calendar, NoDateStaysNoDate) {
  EXPECT_EQ(AddMonths(host::kNoDate, 12), host::kNoDate);
  EXPECT_EQ(AddYears(host::kNoDate, -5000), host::kNoDate);
  EXPECT_EQ(AddYears(host::kNoDate, std::numeric_limits<std::int64_t>::max()), host::kNoDate);
}

TEST(Calendar, ASumOutsideTheYearsIsAnOverflow) {
  const host::Date first = MakeDate({100, 1, 1});
  const host::Date last = MakeDate({9999, 12, 31});
  EXPECT_EQ(ErrorOf([&] { (void)AddMonths(first, -1); }), 6);
  EXPECT_EQ(ErrorOf([&] { (void)AddMonths(last, 1); }), 6);
  EXPECT_EQ(ErrorOf([&] { (void)AddYears(last, 1); }), 6);
  EXPECT_EQ(ErrorOf([&] { (void)AddYears(first, -1); }), 6);
  EXPECT_EQ(AddMonths(first, 9900 * 12 - 1), MakeDate({9999, 12, 1}));
}

TEST(Calendar, AnyNumberOfMonthsOrYearsIsADateOrAnOverflow) {
  const host::Date date = MakeDate({2024, 1, 31});
  for (const std::int64_t many : {std::numeric_limits<std::int64_t>::max(), std::numeric_limits<std::int64_t>::min(),
                                  std::int64_t{1} << 62, std::int64_t{1'000'000'000'000}}) {
    EXPECT_EQ(ErrorOf([&] { (void)AddMonths(date, many); }), 6) << many;
    EXPECT_EQ(ErrorOf([&] { (void)AddYears(date, many); }), 6) << many;
  }
}

TEST(Calendar, ASumFarOutsideTheYearsIsAnOverflowAsWell) {
  // 10,000 years are more than the calendar has; 13 months before January 100 lie in the year 98.
  for (const host::Date date : {kFirstDay, MakeDate({2024, 1, 31}), kLastDay})
    for (const std::int64_t years : {9900, 9999, 10'000, 10'001, 32'767, 65'536, 357'913'942}) {
      EXPECT_EQ(ErrorOf([&] { (void)AddYears(date, years); }), 6) << years;
      EXPECT_EQ(ErrorOf([&] { (void)AddYears(date, -years); }), 6) << years;
      EXPECT_EQ(ErrorOf([&] { (void)AddMonths(date, years * 12 + 1); }), 6) << years;
      EXPECT_EQ(ErrorOf([&] { (void)AddMonths(date, -years * 12 - 1); }), 6) << years;
    }
  EXPECT_EQ(ErrorOf([] { (void)AddMonths(kFirstDay, -13); }), 6);
}

TEST(Calendar, TheLastMonthOfTheYearsIsTheirLast) {
  // 9900 years and a day less a month: December 9999 has the 31st as January 100 has.
  EXPECT_EQ(AddMonths(MakeDate({100, 1, 31}), 9900 * 12 - 1), MakeDate({9999, 12, 31}));
  EXPECT_EQ(ErrorOf([] { (void)AddMonths(MakeDate({100, 1, 31}), 9900 * 12); }), 6);
  EXPECT_EQ(AddMonths(MakeDate({9999, 12, 31}), 1 - 9900 * 12), MakeDate({100, 1, 31}));
  EXPECT_EQ(ErrorOf([] { (void)AddMonths(MakeDate({9999, 12, 31}), -9900 * 12); }), 6);
}

TEST(Calendar, CountsMonthBoundariesWhateverTheDay) {
  EXPECT_EQ(MonthsBetween(MakeDate({2024, 1, 31}), MakeDate({2024, 2, 1})), 1);
  EXPECT_EQ(MonthsBetween(MakeDate({2024, 1, 1}), MakeDate({2024, 1, 31})), 0);
  EXPECT_EQ(MonthsBetween(MakeDate({2023, 12, 31}), MakeDate({2024, 1, 1})), 1);
  EXPECT_EQ(MonthsBetween(MakeDate({2024, 3, 1}), MakeDate({2022, 4, 30})), -23);
  EXPECT_EQ(MonthsBetween(host::kNoDate, MakeDate({1900, 1, 1})), 1);
}

TEST(Calendar, CountsYearBoundariesWhateverTheMonth) {
  EXPECT_EQ(YearsBetween(MakeDate({2023, 12, 31}), MakeDate({2024, 1, 1})), 1);
  EXPECT_EQ(YearsBetween(MakeDate({2024, 1, 1}), MakeDate({2024, 12, 31})), 0);
  EXPECT_EQ(YearsBetween(MakeDate({2042, 1, 1}), MakeDate({1975, 12, 31})), -67);
}

TEST(Calendar, EveryDayOfTheYearsComesBackFromItsParts) {
  const host::Date last = MakeDate({9999, 12, 31});
  YearMonthDay before = Split(host::Date{MakeDate({100, 1, 1}).Days()});
  // Every 97th day: coprime to 7, 12 and 365, so that all months and month ends are met.
  for (std::int32_t days = MakeDate({100, 1, 1}).Days() + 97; days <= last.Days(); days += 97) {
    const YearMonthDay parts = Split(host::Date{days});
    ASSERT_EQ(MakeDate(parts).Days(), days);
    ASSERT_LT(std::tie(before.year, before.month, before.day), std::tie(parts.year, parts.month, parts.day));
    before = parts;
  }
}

}  // namespace brivane::frame
