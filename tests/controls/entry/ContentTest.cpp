#include <gtest/gtest.h>

#include <brivane/controls/entry/Content.h>

/// Between the content of a box and what stands in it.
namespace brivane::controls {

using frame::Format;

TEST(Contents, AreShownByTheirFormat) {
  EXPECT_EQ(ShowContent(BoxValue(1500.0), Format::Amount), "1.500,00");
  EXPECT_EQ(ShowContent(BoxValue(1500.0), Format::WholeNumber), "1500");
  EXPECT_EQ(ShowContent(BoxValue(1.5), Format::WholeNumber), "1,5");
  EXPECT_EQ(ShowContent(BoxValue(3.7), Format::Number), "3,7");
  EXPECT_EQ(ShowContent(BoxValue(), Format::Amount), "");
  EXPECT_EQ(ShowContent(BoxValue(std::string("12")), Format::Amount), "12");
  EXPECT_EQ(ShowContent(BoxValue(host::Date(45322)), Format::Date), "31-01-2024");
}

TEST(Contents, OfATextBoxAreOneLine) {
  EXPECT_EQ(ReadContent("een\r\ntwee", Format::Text).value, BoxValue(std::string("een twee")));
  EXPECT_EQ(ReadContent("", Format::Text).value, BoxValue());
  EXPECT_EQ(ReadContent("12,50\r\n", Format::Amount).value, BoxValue(12.5));
}

TEST(Contents, OfAnAmountThatWasEmptiedAre0) {
  EXPECT_EQ(ReadEntry("", Format::Amount).value, BoxValue(0.0));
  EXPECT_EQ(ReadEntry(" ", Format::Amount).value, BoxValue(0.0));
  EXPECT_EQ(ReadEntry("12.50", Format::Amount).value, BoxValue());
  EXPECT_EQ(ReadEntry("", Format::Number).value, BoxValue());
  EXPECT_EQ(ReadEntry("", Format::Date).value, BoxValue());
  EXPECT_EQ(ReadContent("", Format::Amount).value, BoxValue());
}

}  // namespace brivane::controls
