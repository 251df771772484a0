#include <gtest/gtest.h>

#include <string>

#include <brivane/frame/Trim.h>

namespace brivane::frame {
namespace {

TEST(Trim, TakesBlanksOfEveryKindFromBothEnds) {
  for (const std::string blank : {" ", "\t", "\r", "\n", "\u00A0", " \t", "\u00A0 \u00A0", "\r\n\r\n"}) {
    EXPECT_EQ(Trim(blank + "a" + blank + "b" + blank), "a" + blank + "b");
    EXPECT_EQ(Trim(blank + "a"), "a");
    EXPECT_EQ(Trim("a" + blank), "a");
    EXPECT_EQ(Trim(blank), "");
  }
  EXPECT_EQ(Trim(""), "");
}

TEST(Trim, LeavesEveryOtherCharacter) {
  // The no-break space in UTF-8 is C2 A0: neither of its bytes alone is a blank.
  for (const std::string text : {"~a~", "\\a\\", "\v", "\u00A2", "\u00E0", "\xC2", "\xA0", "0", "."})
    EXPECT_EQ(Trim(text), text);
}

}  // namespace
}  // namespace brivane::frame
