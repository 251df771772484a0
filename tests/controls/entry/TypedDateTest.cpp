#include <gtest/gtest.h>

#include <brivane/controls/entry/TypedDate.h>
#include <brivane/frame/Calendar.h>

/// The short ways to a date.
namespace brivane::controls {
namespace {

using frame::MakeDate;

const host::Date kToday = MakeDate({2026, 11, 22});

struct Written {
  const char* typed;
  frame::YearMonthDay is;
};

TEST(TypedDates, AreReadInFullAndInShort) {
  const DateOrigin origin{.today = kToday};
  const Written kTable[] = {{"1-4-2031", {2031, 4, 1}},  {"010431", {2031, 4, 1}},    {"t", {2026, 11, 22}},
                            {"v", {2026, 11, 22}},       {"T", {2026, 11, 22}},       {" V ", {2026, 11, 22}},
                            {"vandaag", {2026, 11, 22}}, {"Vandaag", {2026, 11, 22}}, {"1-4", {2026, 4, 1}},
                            {"31/12", {2026, 12, 31}},   {"1.4", {2026, 4, 1}},       {"1 4", {2026, 4, 1}},
                            {"01-04", {2026, 4, 1}},     {"22- 11", {2026, 11, 22}}};
  for (const Written& row : kTable) {
    const frame::Reading<host::Date> date = ReadTypedDate(row.typed, origin);
    ASSERT_FALSE(date.IsRefused() || date.IsEmpty()) << row.typed << ": " << date.Reason();
    EXPECT_EQ(frame::Split(*date), row.is) << row.typed;
  }
  EXPECT_TRUE(ReadTypedDate(" ", origin).IsEmpty());
}

TEST(TypedDates, OfAnEndMayBeATermFromItsStart) {
  const DateOrigin origin{.today = kToday, .start = DateOrigin::Start{"Aanvangsdatum", MakeDate({2024, 2, 29})}};
  const Written kTable[] = {{"3j", {2027, 2, 28}},    {"4j", {2028, 2, 29}},    {"18m", {2025, 8, 29}},
                            {"1j6m", {2025, 8, 29}},  {"1J 6M", {2025, 8, 29}}, {"1 jaar 6 maanden", {2025, 8, 29}},
                            {"10 jr", {2034, 2, 28}}, {"6mnd", {2024, 8, 29}},  {"0m", {2024, 2, 29}},
                            {"12m", {2025, 2, 28}},   {"t", {2026, 11, 22}},    {"1-4", {2026, 4, 1}},
                            {"7975j", {9999, 2, 28}}};
  for (const Written& row : kTable) {
    const frame::Reading<host::Date> date = ReadTypedDate(row.typed, origin);
    ASSERT_FALSE(date.IsRefused() || date.IsEmpty()) << row.typed << ": " << date.Reason();
    EXPECT_EQ(frame::Split(*date), row.is) << row.typed;
  }
}

TEST(TypedDates, AreRefusedWithTheReason) {
  const char* const expected = "Vul een datum in als dd-mm-jjjj, bijvoorbeeld 1-4-2031.";
  struct Refused {
    const char* typed;
    const char* reason;
  };
  const DateOrigin plain{.today = kToday};
  const Refused kPlain[] = {{"3j", expected},
                            {"18m", expected},
                            {"x", expected},
                            {"tv", expected},
                            {"1-4-", expected},
                            {"1-", expected},
                            {"31-2", "31 februari 2026 bestaat niet."},
                            {"29-2", "29 februari 2026 bestaat niet."},
                            {"1-13", "Maand 13 bestaat niet. Vul een datum in als dd-mm-jjjj, bijvoorbeeld 1-4-2031."}};
  for (const Refused& row : kPlain) EXPECT_EQ(ReadTypedDate(row.typed, plain).Reason(), row.reason) << row.typed;

  const DateOrigin end{.today = kToday, .start = DateOrigin::Start{"Aanvangsdatum", MakeDate({2024, 2, 29})}};
  const Refused kEnd[] = {{"3", expected},
                          {"j", expected},
                          {"3jm", expected},
                          {"3j6", expected},
                          {"-3j", expected},
                          {"123456j", expected},
                          {"7976j", "\"7976j\" eindigt na het jaar 9999."},
                          // 8,333 years and 3 months.
                          {"99999m", "\"99999m\" eindigt na het jaar 9999."}};
  for (const Refused& row : kEnd) EXPECT_EQ(ReadTypedDate(row.typed, end).Reason(), row.reason) << row.typed;

  const DateOrigin loose{.today = kToday, .start = DateOrigin::Start{"Aanvangsdatum", host::kNoDate}};
  EXPECT_EQ(ReadTypedDate("3j", loose).Reason(), "\"3j\" telt vanaf \"Aanvangsdatum\", en daar staat geen datum.");
}

TEST(TypedDates, KnowNoTodayWithoutAClock) {
  EXPECT_TRUE(ReadTypedDate("t", {}).IsRefused());
  EXPECT_TRUE(ReadTypedDate("1-4", {}).IsRefused());
  EXPECT_FALSE(ReadTypedDate("1-4-2031", {}).IsRefused());
}

TEST(TypedDates, GoOnWithAHyphenWhereAPartIsMissing) {
  for (const char* begun : {"1", "1-4", "01-", "1.4", "1-4-", "12 11"}) EXPECT_TRUE(GoesOnWithHyphen(begun)) << begun;
  for (const char* whole : {"", " ", "1-4-2031", "010431", "t", "3j", "x"})
    EXPECT_FALSE(GoesOnWithHyphen(whole)) << whole;
}

TEST(DateSteps, GoToTheDayBesideIt) {
  struct Step {
    frame::YearMonthDay from;
    DateStep step;
    frame::YearMonthDay to;
  };
  const Step kTable[] = {
      {{2026, 11, 22}, DateStep::Day, {2026, 11, 23}},
      {{2026, 11, 30}, DateStep::Day, {2026, 12, 1}},
      {{2026, 1, 1}, DateStep::DayBack, {2025, 12, 31}},
      {{2028, 3, 1}, DateStep::DayBack, {2028, 2, 29}},
      {{2026, 11, 22}, DateStep::Month, {2026, 12, 22}},
      {{2026, 12, 22}, DateStep::Month, {2027, 1, 22}},
      {{2026, 1, 31}, DateStep::Month, {2026, 2, 28}},
      {{2028, 1, 31}, DateStep::Month, {2028, 2, 29}},
      {{2026, 3, 31}, DateStep::MonthBack, {2026, 2, 28}},
      {{2026, 1, 31}, DateStep::MonthBack, {2025, 12, 31}},
      {{2028, 2, 29}, DateStep::Year, {2029, 2, 28}},
      {{2028, 2, 29}, DateStep::YearBack, {2027, 2, 28}},
      {{2026, 11, 22}, DateStep::Year, {2027, 11, 22}},
      // Nothing before 1900 or after 9999 may be typed.
      {{1900, 1, 1}, DateStep::DayBack, {1900, 1, 1}},
      {{1900, 1, 31}, DateStep::MonthBack, {1900, 1, 31}},
      {{1900, 5, 1}, DateStep::YearBack, {1900, 5, 1}},
      {{9999, 12, 31}, DateStep::Day, {9999, 12, 31}},
      {{9999, 12, 1}, DateStep::Month, {9999, 12, 1}},
      {{9999, 1, 1}, DateStep::Year, {9999, 1, 1}},
      {{9999, 11, 30}, DateStep::Month, {9999, 12, 30}},
  };
  for (const Step& row : kTable)
    EXPECT_EQ(frame::Split(StepFrom(MakeDate(row.from), row.step)), row.to)
        << row.from.day << '-' << row.from.month << '-' << row.from.year << ", step " << static_cast<int>(row.step);
}

}  // namespace
}  // namespace brivane::controls
