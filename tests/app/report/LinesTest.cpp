#include <gtest/gtest.h>

#include "app/report/Lines.h"
#include "tests/app/report/FixedRuler.h"

namespace brivane::app::report {
namespace {

using Texts = std::vector<std::string>;

Texts In(std::string_view text, double characters) {
  return BreakLines(text, characters * 5, Letters::Text, FixedRuler());
}

TEST(LinesTest, TextIsBrokenBetweenWordsAndLosesNone) {
  EXPECT_EQ(In("een twee drie", 20), (Texts{"een twee drie"}));
  EXPECT_EQ(In("een twee drie", 13), (Texts{"een twee drie"}));
  EXPECT_EQ(In("een twee drie", 12), (Texts{"een twee", "drie"}));
  EXPECT_EQ(In("een twee drie", 4), (Texts{"een", "twee", "drie"}));
  EXPECT_EQ(In("  een \t twee\n", 20), (Texts{"een twee"}));
  EXPECT_EQ(In("", 20), Texts{});
  EXPECT_EQ(In("  ", 20), Texts{});
}

TEST(LinesTest, AWordThatIsWiderThanALineIsBrokenInside) {
  EXPECT_EQ(In("arbeidsongeschiktheid", 10), (Texts{"arbeidsong", "eschikthei", "d"}));
  EXPECT_EQ(In("bij arbeidsongeschiktheid nu", 10), (Texts{"bij", "arbeidsong", "eschikthei", "d nu"}));
  EXPECT_EQ(In("ab", 0.5), (Texts{"a", "b"}));
}

TEST(LinesTest, NoCharacterIsCutInTwo) {
  EXPECT_EQ(In("ééé", 2), (Texts{"éé", "é"}));
  // e and a combining accent: the mark counts as wide, and yet stays with its letter.
  EXPECT_EQ(In("ae\u0301b", 2), (Texts{"a", "e\u0301", "b"}));
}

TEST(LinesTest, TheWidestWordIsWhatCannotBeBroken) {
  EXPECT_EQ(WidestWord("een lange regel", Letters::Text, FixedRuler()), 25);
  EXPECT_EQ(WidestWord("", Letters::Text, FixedRuler()), 0);
}

}  // namespace
}  // namespace brivane::app::report
