#include <gtest/gtest.h>

#include <brivane/frame/Calendar.h>
#include <brivane/vrijekolom/Onderwerp.h>

/// What the year-by-year form is about.
namespace brivane::vrijekolom {
namespace {

using frame::MakeDate;

TEST(Onderwerp, NamesTheColumnAndItsTerm) {
  EXPECT_EQ(Titel({"Kinderopvang", "per maand", {}}), "Kinderopvang, per maand");
  EXPECT_EQ(Titel({"", "per jaar", {}}), "per jaar");
  EXPECT_EQ(Titel({"Kinderopvang", "", {}}), "Kinderopvang");
  EXPECT_EQ(Titel({}), "");
}

TEST(Onderwerp, TellsTheYearOfARow) {
  const host::Date april = MakeDate({2031, 4, 1});
  EXPECT_EQ(Rijuitleg(1, april, {}), "2031: 1 april 2031 tot en met 31 maart 2032");
  EXPECT_EQ(Rijuitleg(3, april, {}), "2033: 1 april 2033 tot en met 31 maart 2034");
  EXPECT_EQ(Rijuitleg(80, april, {}), "2110: 1 april 2110 tot en met 31 maart 2111");
  // A year from its first day needs no dates.
  EXPECT_EQ(Rijuitleg(2, MakeDate({2031, 1, 1}), {}), "2032");
  EXPECT_EQ(Rijuitleg(1, MakeDate({2031, 1, 2}), {}), "2031: 2 januari 2031 tot en met 1 januari 2032");
  // From a leap day; the year after begins a day sooner.
  EXPECT_EQ(Rijuitleg(2, MakeDate({2028, 2, 29}), {}), "2029: 28 februari 2029 tot en met 27 februari 2030");
  EXPECT_EQ(Rijuitleg(4, MakeDate({2028, 2, 29}), {}), "2031: 28 februari 2031 tot en met 28 februari 2032");
  EXPECT_EQ(Rijuitleg(1, host::kNoDate, {}), "");
  EXPECT_EQ(Rijuitleg(0, april, {}), "");
  EXPECT_EQ(Rijuitleg(1, MakeDate({9999, 4, 1}), {}), "");
  EXPECT_EQ(Rijuitleg(1, MakeDate({9998, 4, 1}), {}), "9998: 1 april 9998 tot en met 31 maart 9999");
}

TEST(Onderwerp, TellsTheAgesOfTheBirthdaysInItsYear) {
  const host::Date aanvang = MakeDate({2031, 1, 1});
  const Geborene aanvrager{"aanvrager", MakeDate({1980, 12, 31})};
  const Geborene partner{"partner", MakeDate({1982, 1, 1})};
  EXPECT_EQ(Rijuitleg(1, aanvang, {aanvrager}), "2031; aanvrager wordt 51");
  EXPECT_EQ(Rijuitleg(2, aanvang, {aanvrager, partner}), "2032; aanvrager wordt 52, partner wordt 50");
  EXPECT_EQ(Rijuitleg(1, MakeDate({2031, 4, 1}), {partner}),
            "2031: 1 april 2031 tot en met 31 maart 2032; partner wordt 49");
  // Nobody's age before the birth, and none without a date.
  EXPECT_EQ(Rijuitleg(1, aanvang, {{"kind", MakeDate({2032, 1, 1})}, {"partner", host::kNoDate}}), "2031");
}

}  // namespace
}  // namespace brivane::vrijekolom
