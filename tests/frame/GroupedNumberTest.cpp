#include <gtest/gtest.h>

#include <limits>
#include <string>

#include <brivane/frame/GroupedNumber.h>

namespace brivane::frame {
namespace {

TEST(GroupedNumber, StandsInGroupsOfThreeFromTheRight) {
  struct Case {
    double number;
    const char* text;
  };
  for (const Case& c : {Case{0, "0"}, Case{7, "7"}, Case{-7, "-7"}, Case{999, "999"}, Case{1000, "1.000"},
                        Case{-1000, "-1.000"}, Case{12345, "12.345"}, Case{123456, "123.456"},
                        Case{1234567, "1.234.567"}, Case{-999999, "-999.999"}, Case{1e15, "1.000.000.000.000.000"}})
    EXPECT_EQ(FormatGrouped(c.number, "."), c.text);
  EXPECT_EQ(FormatGrouped(1234567, ""), "1234567");
  EXPECT_EQ(FormatGrouped(1234, "\u00A0"), "1\u00A0234");
}

TEST(GroupedNumber, IsRoundedHalfAwayFromZero) {
  EXPECT_EQ(FormatGrouped(0.4, "."), "0");
  EXPECT_EQ(FormatGrouped(0.5, "."), "1");
  EXPECT_EQ(FormatGrouped(2.5, "."), "3");
  EXPECT_EQ(FormatGrouped(-0.5, "."), "-1");
  EXPECT_EQ(FormatGrouped(-0.4, "."), "0");
  EXPECT_EQ(FormatGrouped(999.5, "."), "1.000");
}

TEST(GroupedNumber, ThatIsNotFiniteIsSpelledOut) {
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(FormatGrouped(infinity, "."), "Inf");
  EXPECT_EQ(FormatGrouped(-infinity, "."), "-Inf");
  EXPECT_EQ(FormatGrouped(std::numeric_limits<double>::quiet_NaN(), "."), "NaN");
}

TEST(GroupSeparator, IsThatOfTheLanguageOrOfItsCountry) {
  struct Case {
    const char* locale;
    const char* separator;
  };
  for (const Case& c : {Case{"nl_NL", "."},
                        Case{"nl", "."},
                        Case{"de_DE.UTF-8", "."},
                        Case{"it_IT", "."},
                        Case{"es_ES", "."},
                        Case{"en_US", ","},
                        Case{"en-GB", ","},
                        Case{"zh_CN", ","},
                        Case{"ja_JP", ","},
                        Case{"ko_KR", ","},
                        Case{"he_IL", ","},
                        Case{"de_CH", "\u2019"},
                        Case{"fr_CH", "\u2019"},
                        Case{"it_CH", "\u2019"},
                        Case{"fr_FR", "\u202F"},
                        Case{"fr", "\u202F"},
                        Case{"sv_SE", "\u00A0"},
                        Case{"nb_NO", "\u00A0"},
                        Case{"fi_FI", "\u00A0"},
                        Case{"pl_PL", "\u00A0"},
                        Case{"cs_CZ", "\u00A0"},
                        Case{"", ""},
                        Case{"C", ""},
                        Case{"C.UTF-8", ""},
                        Case{"POSIX", ""}})
    EXPECT_EQ(GroupSeparator(c.locale), c.separator) << c.locale;
}

}  // namespace
}  // namespace brivane::frame
