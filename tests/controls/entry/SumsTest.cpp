#include <gtest/gtest.h>

#include <brivane/controls/entry/Sums.h>

/// Sums that are typed in place of their outcome.
namespace brivane::controls {
namespace {

using frame::Format;

struct Reckoned {
  const char* typed;
  double is;
};

TEST(TypedSums, AreTextsWithASignAfterADigit) {
  for (const char* sum : {"10+5", "1200/12", "10-5", "10 − 5", "3x4", "3 × 4", "8:2", "8÷2", "12,-+3", "10+", "-5+2"})
    EXPECT_TRUE(IsSum(sum)) << sum;
  for (const char* none : {"", "10", "-10", "€ -10", "+5", "x", "abc", "12 50", "1.234,56"})
    EXPECT_FALSE(IsSum(none)) << none;
}

TEST(TypedSums, OfAmountsAreReckonedOut) {
  const Reckoned kTable[] = {
      {"10+5", 15},
      {"1200/12", 100},
      {" 10 + 5 ", 15},
      {"84,50*12", 1014},
      {"3 x 84,50", 253.5},
      {"3X84,50", 253.5},
      {"100 : 8", 12.5},
      {"100÷8", 12.5},
      {"2 × 3", 6},
      {"10−4", 6},
      {"1.250,50+1.000", 2250.5},
      {"€ 10 + € 5,50", 15.5},
      {"10 € + 5 €", 15},
      {"12,- + 3", 15},
      {"-5+20", 15},
      {"−5+20", 15},
      {"20*-2", -40},
      // Multiplying and dividing first, then from the left.
      {"10+5*2", 20},
      {"2*5+10", 20},
      {"100-50/5-20", 70},
      {"100/5/2", 10},
      {"10-4-3", 3},
      // Factors have more decimals than an amount.
      {"1200*0,0325", 39},
      {"10000*1,0125", 10125},
      // In cents, halves away from zero, of the number that was meant and not of its binary form.
      {"1000/3", 333.33},
      {"2000/3", 666.67},
      {"0,1+0,2", 0.3},
      {"2,675*3", 8.03},
      {"-2,675*3", -8.03},
      {"1,005*1", 1.01},
      {"1,0049*1", 1},
      {"10-10", 0},
      {"999999999999-1", 999999999998},
  };
  for (const Reckoned& row : kTable) {
    const frame::Reading<double> sum = ReadSum(row.typed, Format::Amount);
    ASSERT_FALSE(sum.IsRefused() || sum.IsEmpty()) << row.typed << ": " << sum.Reason();
    EXPECT_EQ(*sum, row.is) << row.typed;
  }
}

TEST(TypedSums, OfPercentagesKeepFourDecimals) {
  EXPECT_EQ(*ReadSum("100/3", Format::Number), 33.3333);
  EXPECT_EQ(*ReadSum("3,5+0,25", Format::Number), 3.75);
}

TEST(TypedSums, AreRefusedWithTheReason) {
  const char* const unreadable = "Deze som is niet te lezen. Typ bijvoorbeeld 10+5 of 1200/12.";
  struct Refused {
    const char* typed;
    const char* reason;
  };
  const Refused kTable[] = {
      {"10/0", "Delen door nul kan niet."},
      {"10/0,00", "Delen door nul kan niet."},
      {"10+", "Achter \"+\" hoort een getal."},
      {"10 *", "Achter \"*\" hoort een getal."},
      {"10++5", "Achter \"+\" hoort een getal."},
      {"10--5", "Achter \"-\" hoort een getal."},
      {"10*/5", "Achter \"*\" hoort een getal."},
      {"10+vijf", unreadable},
      {"10+5 euro", unreadable},
      {"(10+5)*2", unreadable},
      {"10+5=15", unreadable},
      {"10+12.50", "Bedoelt u 12,50 of 1.250? Typ een komma voor de decimalen."},
      {"1,23456*2", "Een getal heeft ten hoogste vier cijfers achter de komma."},
      {"10+5,", "Vul een getal in, bijvoorbeeld 12,5."},
      {"999999999999*10", "De uitkomst van deze som is te groot."},
      {"999999999999+1", "De uitkomst van deze som is te groot."},
      {"9999999999999+1", "Dit getal is te groot."},
      {"1-4-2031", "Dit is een datum. Vul een getal in."},
      {"01/04/2031", "Dit is een datum. Vul een getal in."},
  };
  for (const Refused& row : kTable) EXPECT_EQ(ReadSum(row.typed, Format::Amount).Reason(), row.reason) << row.typed;
}

}  // namespace
}  // namespace brivane::controls
