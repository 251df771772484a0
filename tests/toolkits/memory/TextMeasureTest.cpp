#include <gtest/gtest.h>

#include <brivane/toolkits/memory/TextMeasure.h>

namespace brivane::memory {

TEST(TextMeasure, AddsTheWidthsOfTheCharacters) {
  // At 9 points an em is 180 twips.
  EXPECT_FLOAT_EQ(TextWidth("a", 9, false).value, 0.556F * 180);
  EXPECT_FLOAT_EQ(TextWidth("...", 9, false).value, 3 * 0.278F * 180);
  EXPECT_FLOAT_EQ(TextWidth("Wim", 10, false).value, (0.944F + 0.222F + 0.833F) * 200);
  EXPECT_FLOAT_EQ(TextWidth("a", 9, true).value, 0.556F * 180 * 1.06F);
}

TEST(TextMeasure, CountsAUtf8CharacterOnceAndACombiningMarkNot) {
  EXPECT_FLOAT_EQ(TextWidth("\u00EB", 9, false).value, 0.556F * 180);
  EXPECT_FLOAT_EQ(TextWidth("e\u0308", 9, false).value, 0.556F * 180);
  EXPECT_FLOAT_EQ(TextWidth("\U0001F600", 9, false).value, 180);
}

TEST(TextMeasure, TakesABrokenByteForACharacter) {
  EXPECT_FLOAT_EQ(TextWidth("\xC3", 9, false).value, 0.556F * 180);
  EXPECT_FLOAT_EQ(TextWidth("\xE2\x82", 9, false).value, 2 * 0.556F * 180);
  EXPECT_FLOAT_EQ(TextWidth("\xC3"
                            "a",
                            9, false)
                      .value,
                  2 * 0.556F * 180);
}

}  // namespace brivane::memory
