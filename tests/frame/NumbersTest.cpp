#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>

#include <brivane/frame/Doubles.h>
#include <brivane/frame/Numbers.h>

namespace brivane::frame {
namespace {

struct Accepted {
  const char* typed;
  double value;
};

struct Refused {
  const char* typed;
  const char* reason;
};

TEST(Amount, AcceptsWhatHasOneMeaning) {
  const Accepted kTable[] = {
      {"0", 0},
      {"12", 12},
      {"12,5", 12.5},
      {"12,50", 12.5},
      {"1.234,56", 1234.56},
      {"1234,56", 1234.56},
      {"1.500", 1500},
      {"15.000.000", 1.5e7},
      {"  7,25 ", 7.25},
      {",50", 0.5},
      {"€ 12,00", 12},
      {"€12", 12},
      {"12,-", 12},
      {"12,--", 12},
      {"-3,10", -3.1},
      {"-1", -1},
      {"€ -3,10", -3.1},
      {"-€ 3,10", -3.1},
      {"12,50 €", 12.5},
      {"1.234,-€", 1234},
      {"-3,10 €", -3.1},
      {"€ -", 0},
      {"€ –", 0},
      {"€ --", 0},
      {"- €", 0},
      {"€ \u2212", 0},
      {"-0", 0},
      {"-0,00", 0},
      {"\u22123", -3},
      {"\u00A01.000,00\u00A0", 1000},
      {"007", 7},
      {"999999999999,99", 999999999999.99},
  };
  for (const Accepted& row : kTable) {
    const Reading<double> reading = ReadAmount(row.typed);
    ASSERT_FALSE(reading.IsRefused() || reading.IsEmpty()) << row.typed << ": " << reading.Reason();
    EXPECT_EQ(*reading, row.value) << row.typed;
    // What shows as 0 has no sign either.
    EXPECT_EQ(std::signbit(*reading), row.value < 0) << row.typed;
  }
}

TEST(Amount, ReadsNothingFromABlankText) {
  for (const char* typed : {"", "   ", "\t", "\u00A0"}) EXPECT_TRUE(ReadAmount(typed).IsEmpty()) << '"' << typed << '"';
}

TEST(Amount, NamesBothReadingsOfAPointThatSeparatesNoThousands) {
  const Refused kTable[] = {
      {"12.50", "Bedoelt u 12,50 of 1.250? Typ een komma voor de decimalen."},
      {"12.5", "Bedoelt u 12,50 of 125? Typ een komma voor de decimalen."},
      {"1234.56", "Bedoelt u 1.234,56 of 123.456? Typ een komma voor de decimalen."},
      {"1.234.56", "Bedoelt u 1.234,56 of 123.456? Typ een komma voor de decimalen."},
      {"0.500", "Bedoelt u 0,50 of 500? Typ een komma voor de decimalen."},
      {"12.3456", "De punt staat niet tussen duizendtallen. Bedoelt u 123.456?"},
      {"1.2.345", "De punt staat niet tussen duizendtallen. Bedoelt u 12.345?"},
      {"1.234.5678", "De punt staat niet tussen duizendtallen. Bedoelt u 12.345.678?"},
      {"1.2345.678", "De punt staat niet tussen duizendtallen. Bedoelt u 12.345.678?"},
      {"1.234.5.678", "De punt staat niet tussen duizendtallen. Bedoelt u 12.345.678?"},
      {"1234.567", "De punt staat niet tussen duizendtallen. Bedoelt u 1.234.567?"},
      {"12.", "De punt staat niet tussen duizendtallen. Bedoelt u 12?"},
      {".50", "De punt staat niet tussen duizendtallen. Bedoelt u 50?"},
      {".123", "De punt staat niet tussen duizendtallen. Bedoelt u 123?"},
  };
  for (const Refused& row : kTable) EXPECT_EQ(ReadAmount(row.typed).Reason(), row.reason) << row.typed;
}

TEST(Amount, RefusesMalformedTextAndSaysWhatIsExpected) {
  const std::string expected = "Vul een bedrag in, bijvoorbeeld 1.234,56.";
  for (const char* typed :
       {"abc",     "12a", "1,2,3", "12,",    ",",     ".",    "-",   "€",   "1 500", "1,234.56", "--5",
        "1.23,45", "5-",  "1e3",   "€ 12 €", "€ - €", "-€ -", "12:", "1/2", ".,5",   "..",       "1.2345,5"})
    EXPECT_EQ(ReadAmount(typed).Reason(), expected) << typed;
  EXPECT_EQ(ReadAmount("12,345").Reason(), "Een bedrag heeft ten hoogste twee cijfers achter de komma.");
  EXPECT_EQ(ReadAmount("1000000000000").Reason(), "Dit getal is te groot.");
}

TEST(Amount, ShowsGroupsAndTwoDecimals) {
  const Accepted kTable[] = {
      {"0,00", 0},           {"0,00", -0.001}, {"12,50", 12.5},    {"1.234,56", 1234.56},
      {"1.000.000,00", 1e6}, {"-3,10", -3.1},  {"999,99", 999.99}, {"1.000,00", 999.995},
      {"0,13", 0.125},       {"1,01", 1.005},  {"-0,01", -0.005},  {"100,00", 99.999},
  };
  for (const Accepted& row : kTable) EXPECT_EQ(ShowAmount(row.value), row.typed) << row.value;
  EXPECT_EQ(ShowAmount(std::numeric_limits<double>::infinity()), "");
}

TEST(Amount, RoundsAsItsShortestTextReads) {
  std::mt19937 random(55);  // with digits that a double holds
  for (int i = 0; i < 4000; ++i) {
    const int euros = 100 + static_cast<int>(random() % (i % 2 == 0 ? 900 : 9'999'900));
    const int cents = 10 + static_cast<int>(random() % 89);
    const auto shown = [&](const std::string& behind) {
      std::string text = ShowAmount(NearestDouble(std::to_string(euros) + "." + std::to_string(cents) + behind));
      std::erase(text, '.');
      return text;
    };
    const auto with = [&](int rounded) { return std::to_string(euros) + "," + std::to_string(rounded); };
    for (const char* behind : {"0", "4", "49", "4999", "49999"}) ASSERT_EQ(shown(behind), with(cents)) << behind;
    for (const char* behind : {"5", "50", "5001", "51", "9"}) ASSERT_EQ(shown(behind), with(cents + 1)) << behind;
  }
  EXPECT_EQ(ShowAmount(123456789012.345), "123.456.789.012,35");
  EXPECT_EQ(ShowAmount(12345678901234.56), "12.345.678.901.234,56");
}

TEST(Amount, ReadsBackWhatItShows) {
  for (const double amount : {0.0, 0.01, 12.5, 1500.0, 1234567.89, -42.42})
    EXPECT_EQ(*ReadAmount(ShowAmount(amount)), amount);
}

TEST(Number, TakesUpToFourDecimals) {
  const Accepted kTable[] = {{"3,7", 3.7}, {"3,1234", 3.1234}, {"1.500", 1500}, {"-0,5", -0.5}, {"100", 100}};
  for (const Accepted& row : kTable) EXPECT_EQ(*ReadNumber(row.typed), row.value) << row.typed;
  EXPECT_EQ(ReadNumber("3,12345").Reason(), "Een getal heeft ten hoogste vier cijfers achter de komma.");
  EXPECT_EQ(ReadNumber("3.7").Reason(), "Bedoelt u 3,7 of 37? Typ een komma voor de decimalen.");
  EXPECT_EQ(ReadNumber("3.5000").Reason(), "Bedoelt u 3,5000 of 35.000? Typ een komma voor de decimalen.");
  EXPECT_EQ(ReadNumber("3.50000").Reason(), "Bedoelt u 3,5000 of 350.000? Typ een komma voor de decimalen.");
  EXPECT_EQ(ReadNumber("1.2345.678").Reason(), "Bedoelt u 12.345,678 of 12.345.678? Typ een komma voor de decimalen.");
  EXPECT_EQ(ReadNumber("€ 3").Reason(), "Vul een getal in, bijvoorbeeld 12,5.");
  EXPECT_EQ(ReadNumber("3,-").Reason(), "Vul een getal in, bijvoorbeeld 12,5.");
}

TEST(Number, ShowsNoMoreDecimalsThanItHas) {
  const Accepted kTable[] = {{"0", 0},
                             {"3,7", 3.7},
                             {"3,7", static_cast<double>(3.7F)},
                             {"33,3333", 100.0 / 3},
                             {"-0,5", -0.5},
                             {"1.234,5", 1234.5},
                             {"0", 0.00001},
                             {"100", 99.99996}};
  for (const Accepted& row : kTable) EXPECT_EQ(ShowNumber(row.value), row.typed) << row.value;
}

TEST(Whole, TakesWholeNumbersAlone) {
  const Accepted kTable[] = {{"0", 0}, {"14", 14}, {"-2", -2}, {"1.500", 1500}, {"2147483647", 2147483647}};
  for (const Accepted& row : kTable)
    EXPECT_EQ(*ReadWhole(row.typed), static_cast<std::int32_t>(row.value)) << row.typed;
  EXPECT_TRUE(ReadWhole(" ").IsEmpty());
  EXPECT_EQ(ReadWhole("1,5").Reason(), "Vul een geheel getal in, zonder cijfers achter de komma.");
  EXPECT_EQ(ReadWhole("twee").Reason(), "Vul een geheel getal in, zonder cijfers achter de komma.");
  EXPECT_EQ(ReadWhole("12.5").Reason(), "De punt staat niet tussen duizendtallen. Bedoelt u 125?");
  EXPECT_EQ(ReadWhole("2147483648").Reason(), "Dit getal is te groot.");
  EXPECT_EQ(ShowWhole(1500), "1500");
}

}  // namespace
}  // namespace brivane::frame
