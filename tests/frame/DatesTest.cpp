#include <gtest/gtest.h>

#include <brivane/frame/Calendar.h>
#include <brivane/frame/Dates.h>

namespace brivane::frame {
namespace {

struct Accepted {
  const char* typed;
  frame::YearMonthDay date;
};

struct Refused {
  const char* typed;
  const char* reason;
};

TEST(TypedDate, IsReadInEveryUsualShape) {
  const Accepted kTable[] = {
      {"01-04-2031", {2031, 4, 1}}, {"1-4-2031", {2031, 4, 1}},   {"1.4.2031", {2031, 4, 1}},
      {"1/4/2031", {2031, 4, 1}},   {"1 4 2031", {2031, 4, 1}},   {"01042031", {2031, 4, 1}},
      {"010431", {2031, 4, 1}},     {"1-4-31", {2031, 4, 1}},     {" 1-4-31 ", {2031, 4, 1}},
      {"29-2-2028", {2028, 2, 29}}, {"31129999", {9999, 12, 31}},
  };
  for (const Accepted& row : kTable) {
    const Reading<host::Date> reading = ReadDate(row.typed);
    ASSERT_FALSE(reading.IsRefused() || reading.IsEmpty()) << row.typed << ": " << reading.Reason();
    EXPECT_EQ(frame::Split(*reading), row.date) << row.typed;
  }
}

TEST(TypedDate, PutsAYearOfTwoDigitsBetween1980And2079) {
  const Accepted kTable[] = {
      {"1-1-80", {1980, 1, 1}}, {"1-1-99", {1999, 1, 1}}, {"1-1-00", {2000, 1, 1}}, {"1-1-79", {2079, 1, 1}}};
  for (const Accepted& row : kTable) EXPECT_EQ(frame::Split(*ReadDate(row.typed)), row.date) << row.typed;
}

TEST(TypedDate, OfThePastHasAYearOfTwoDigitsBeforeThisDay) {
  const Accepted kTable[] = {{"1-2-80", {1980, 2, 1}},   {"010250", {1950, 2, 1}},     {"1-2-30", {1930, 2, 1}},
                             {"1-1-27", {1927, 1, 1}},   {"21-11-26", {2026, 11, 21}}, {"22-11-26", {1926, 11, 22}},
                             {"1-12-26", {1926, 12, 1}}, {"1-1-00", {2000, 1, 1}},     {"1-2-2050", {2050, 2, 1}},
                             {"1-2-1919", {1919, 2, 1}}};
  const host::Date today = frame::MakeDate({2026, 11, 22});
  for (const Accepted& row : kTable) EXPECT_EQ(frame::Split(*ReadPastDate(row.typed, today)), row.date) << row.typed;
  EXPECT_TRUE(ReadPastDate("", today).IsEmpty());
  EXPECT_EQ(ReadPastDate("31-4-50", today).Reason(), "31 april 1950 bestaat niet.");
}

TEST(TypedDate, MayBeEmpty) {
  EXPECT_TRUE(ReadDate("").IsEmpty());
  EXPECT_TRUE(ReadDate("  ").IsEmpty());
}

TEST(TypedDate, IsRefusedWithTheReason) {
  const char* const expected = "Vul een datum in als dd-mm-jjjj, bijvoorbeeld 1-4-2031.";
  const Refused kTable[] = {
      {"morgen", expected},
      {"1-4", expected},
      {"1-4-203", expected},
      {"1-4-20310", expected},
      {"0104", expected},
      {"01042", expected},
      {"1-4-2031-", expected},
      {"--", expected},
      {"001-4-2031", expected},
      {"1-004-2031", expected},
      {"1-4-2031-1", expected},
      {"1~4~2031", expected},
      {"1,4,2031", expected},
      {"1-4-", expected},
      {"1--2031", expected},
      {"-4-2031", expected},
      {"1-4-3x", expected},
      {"01043x", expected},
      {"2031-04-01", expected},
      {"1-13-2031", "Maand 13 bestaat niet. Vul een datum in als dd-mm-jjjj, bijvoorbeeld 1-4-2031."},
      {"1-0-2031", "Maand 0 bestaat niet. Vul een datum in als dd-mm-jjjj, bijvoorbeeld 1-4-2031."},
      {"31-4-2031", "31 april 2031 bestaat niet."},
      {"29-2-2031", "29 februari 2031 bestaat niet."},
      {"0-1-2031", "0 januari 2031 bestaat niet."},
      {"30-12-1899", "Vul een jaar vanaf 1900 in."},
  };
  for (const Refused& row : kTable) EXPECT_EQ(ReadDate(row.typed).Reason(), row.reason) << row.typed;
}

TEST(ShownDate, HasTwoDigitsForDayAndMonth) {
  EXPECT_EQ(ShowDate(frame::MakeDate({2031, 4, 1})), "01-04-2031");
  EXPECT_EQ(ShowDate(host::kNoDate), "");
}

TEST(ShownDate, NamesEachMonth) {
  const char* const kNames[] = {"januari", "februari", "maart",     "april",   "mei",      "juni",
                                "juli",    "augustus", "september", "oktober", "november", "december"};
  for (int month = 1; month <= 12; ++month) {
    const std::string name = kNames[month - 1];
    EXPECT_EQ(ShowLongDate(frame::MakeDate({2031, month, 1})), "1 " + name + " 2031");
  }
  EXPECT_EQ(ReadDate("32-12-2031").Reason(), "32 december 2031 bestaat niet.");
  EXPECT_EQ(ReadDate("32-1-2031").Reason(), "32 januari 2031 bestaat niet.");
  EXPECT_EQ(ShowLongDate(host::kNoDate), "");
}

TEST(ShownDate, NamesEachDayOfAWeek) {
  // 1 January 1900 was a Monday: day 2.
  const char* const kNames[] = {"maandag", "dinsdag", "woensdag", "donderdag", "vrijdag", "zaterdag", "zondag"};
  for (int day = 1; day <= 7; ++day)
    EXPECT_EQ(ShowDateInWords(frame::MakeDate({1900, 1, day})),
              std::string(kNames[day - 1]) + " " + std::to_string(day) + " januari 1900");
}

TEST(ShownDate, InWordsNamesTheDayOfTheWeek) {
  EXPECT_EQ(ShowDateInWords(frame::MakeDate({2026, 11, 22})), "zondag 22 november 2026");
  EXPECT_EQ(ShowDateInWords(frame::MakeDate({2031, 4, 1})), "dinsdag 1 april 2031");
  EXPECT_EQ(ShowDateInWords(frame::MakeDate({2000, 1, 1})), "zaterdag 1 januari 2000");
  EXPECT_EQ(ShowDateInWords(frame::MakeDate({1899, 12, 29})), "vrijdag 29 december 1899");
  EXPECT_EQ(ShowDateInWords(host::kNoDate), "");
}

}  // namespace
}  // namespace brivane::frame
