#include <gtest/gtest.h>

#include "app/desk/Csv.h"

namespace brivane::app {
namespace {

TEST(CsvTest, RowsStandAsASpreadsheetReadsThem) {
  Csv csv;
  csv.Text("Kolom").Text("Bedrag").Text("Groei").EndRow();
  csv.Text("Kinderopvang").Amount(-1485.5).Number(2.25).EndRow();
  csv.Text("").Empty().Number(3).EndRow();
  EXPECT_EQ(csv.Bytes(), "\xEF\xBB\xBFKolom;Bedrag;Groei\r\nKinderopvang;-1485,50;2,25\r\n;;3\r\n");
}

TEST(CsvTest, ATextThatCouldBeReadOtherwiseIsQuoted) {
  EXPECT_EQ(CsvText("gewoon"), "gewoon");
  EXPECT_EQ(CsvText("a;b"), "\"a;b\"");
  EXPECT_EQ(CsvText("hij zei \"ja\""), "\"hij zei \"\"ja\"\"\"");
  EXPECT_EQ(CsvText("twee\nregels"), "\"twee\nregels\"");
  EXPECT_EQ(CsvText("Café à la crème"), "Café à la crème");
}

TEST(CsvTest, NoTextBeginsAFormula) {
  for (const char* text : {"=1+1", "+31 6", "-5", "@SUM(A1)", "  =A1", "|cmd"}) {
    EXPECT_EQ(CsvText(text), std::string("'") + text);
  }
  EXPECT_EQ(CsvText("\t=A1"), "'\t=A1");
  EXPECT_EQ(CsvText("\r=A1"), "\"'\r=A1\"");
  EXPECT_EQ(CsvText("=A1;\"x\""), "\"'=A1;\"\"x\"\"\"");
  EXPECT_EQ(CsvText("€ 5"), "€ 5");
  EXPECT_EQ(CsvText("a=1"), "a=1");
}

TEST(CsvTest, NumbersHaveACommaAndNothingBetweenThousands) {
  Csv csv;
  csv.Amount(1234567.005).Amount(-0.001).Amount(1e15).Number(0.12345).Number(-12).Number(100).EndRow();
  // 1234567.005 lies just below its decimals in binary.
  EXPECT_EQ(csv.Bytes(),
            "\xEF\xBB\xBF"
            "1234567,00;0,00;1000000000000000,00;0,1235;-12;100\r\n");
}

}  // namespace
}  // namespace brivane::app
