#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include <brivane/frame/Graphemes.h>

namespace brivane::frame {

namespace {

/// The user-perceived characters of a text, found from its end.
std::vector<std::string> Split(std::string_view text) {
  std::vector<std::string> characters;
  while (!text.empty()) {
    const std::size_t start = LastGraphemeStart(text);
    if (start >= text.size()) {
      ADD_FAILURE() << "no progress in " << text;
      break;
    }
    characters.insert(characters.begin(), std::string(text.substr(start)));
    text = text.substr(0, start);
  }
  return characters;
}

using Characters = std::vector<std::string>;

}  // namespace

TEST(Graphemes, PlainLettersStandAlone) {
  EXPECT_EQ(Split("Krant"), (Characters{"K", "r", "a", "n", "t"}));
  EXPECT_EQ(Split("a b"), (Characters{"a", " ", "b"}));
}

TEST(Graphemes, AnAccentedLetterIsOneComposedOrNot) {
  EXPECT_EQ(Split("Zo\u00EB"), (Characters{"Z", "o", "\u00EB"}));
  EXPECT_EQ(Split("Zoe\u0308"), (Characters{"Z", "o", "e\u0308"}));
  EXPECT_EQ(Split("e\u0308\u0301x"), (Characters{"e\u0308\u0301", "x"}));
  EXPECT_EQ(Split("\u20AC5"), (Characters{"\u20AC", "5"}));
}

TEST(Graphemes, AVowelSignStaysWithItsLetterInEveryScript) {
  struct Case {
    const char* script;
    std::string letter;
    std::string withSign;
  };
  for (const Case& c : {Case{"Hebrew", "\u05D1", "\u05D1\u05BC"}, Case{"Arabic", "\u0628", "\u0628\u08F0"},
                        Case{"Devanagari", "\u0915", "\u0915\u093F"}, Case{"Bengali", "\u0995", "\u0995\u09D7"},
                        Case{"Gurmukhi", "\u0A15", "\u0A15\u0A71"}, Case{"Gujarati", "\u0A95", "\u0A95\u0ABF"},
                        Case{"Oriya", "\u0B15", "\u0B15\u0B3E"}, Case{"Tamil", "\u0B95", "\u0B95\u0BD7"},
                        Case{"Telugu", "\u0C24", "\u0C24\u0C46"}, Case{"Kannada", "\u0C95", "\u0C95\u0CBF"},
                        Case{"Malayalam", "\u0D15", "\u0D15\u0D3F"}, Case{"Sinhala", "\u0D9A", "\u0D9A\u0DD2"},
                        Case{"Thai", "\u0E01", "\u0E01\u0E33"}, Case{"Tibetan", "\u0F40", "\u0F40\u0F74"},
                        Case{"Myanmar", "\u1000", "\u1000\u102D"}, Case{"Khmer", "\u1780", "\u1780\u17B6"}}) {
    EXPECT_EQ(Split(c.letter + c.withSign), (Characters{c.letter, c.withSign})) << c.script;
    EXPECT_EQ(Split(c.withSign + c.letter), (Characters{c.withSign, c.letter})) << c.script;
  }
}

TEST(Graphemes, AMarkIsFoundByItsPlaceInTheTable) {
  // The first and the last range, and their neighbours, which are letters or nothing.
  EXPECT_EQ(Split("a\u0300"), Characters{"a\u0300"});
  EXPECT_EQ(Split("a\u036F"), Characters{"a\u036F"});
  EXPECT_EQ(Split("a\u02FF"), (Characters{"a", "\u02FF"}));
  EXPECT_EQ(Split("a\u0370"), (Characters{"a", "\u0370"}));
  EXPECT_EQ(Split("a\U000E0100"), Characters{"a\U000E0100"});
  EXPECT_EQ(Split("a\U000E01EF"), Characters{"a\U000E01EF"});
  EXPECT_EQ(Split("a\U000E01F0"), (Characters{"a", "\U000E01F0"}));
}

TEST(Graphemes, ASignBeforeItsCharacterIsPartOfIt) {
  EXPECT_EQ(Split("a\u0600\u0661"), (Characters{"a", "\u0600\u0661"}));
  EXPECT_EQ(Split("a\u0600"), (Characters{"a", "\u0600"}));
  EXPECT_EQ(Split("\u0600\n"), (Characters{"\u0600", "\n"}));
}

TEST(Graphemes, ALineEndIsOneAndTakesNoMarks) {
  EXPECT_EQ(Split("a\r\nb"), (Characters{"a", "\r\n", "b"}));
  EXPECT_EQ(Split("\n\r"), (Characters{"\n", "\r"}));
  EXPECT_EQ(Split("\n\u0301"), (Characters{"\n", "\u0301"}));
  EXPECT_EQ(Split("\r\u0301"), (Characters{"\r", "\u0301"}));
}

TEST(Graphemes, AFlagIsAPairOfIndicatorsCountedFromTheFirst) {
  const std::string nl = "\U0001F1F3\U0001F1F1";
  const std::string be = "\U0001F1E7\U0001F1EA";
  const std::string half = "\U0001F1E7";
  EXPECT_EQ(Split(nl), Characters{nl});
  EXPECT_EQ(Split(nl + be), (Characters{nl, be}));
  EXPECT_EQ(Split(nl + half), (Characters{nl, half}));
  EXPECT_EQ(Split("a" + nl + be + half), (Characters{"a", nl, be, half}));
}

TEST(Graphemes, AnEmojiKeepsItsSkinToneItsSelectorAndItsJoinedParts) {
  const std::string thumb = "\U0001F44D\U0001F3FD";
  const std::string heart = "\u2764\uFE0F";
  const std::string family = "\U0001F468\u200D\U0001F469\u200D\U0001F467";
  const std::string astronaut = "\U0001F469\U0001F3FD\u200D\U0001F680";
  const std::string keycap = "1\uFE0F\u20E3";
  EXPECT_EQ(Split("x" + thumb), (Characters{"x", thumb}));
  EXPECT_EQ(Split("x" + heart), (Characters{"x", heart}));
  EXPECT_EQ(Split("x" + family + "y"), (Characters{"x", family, "y"}));
  EXPECT_EQ(Split(family + family), (Characters{family, family}));
  EXPECT_EQ(Split(astronaut), Characters{astronaut});
  EXPECT_EQ(Split("0" + keycap), (Characters{"0", keycap}));
}

TEST(Graphemes, AJoinerJoinsPictographsAlone) {
  EXPECT_EQ(Split("a\u200Db"), (Characters{"a\u200D", "b"}));
  EXPECT_EQ(Split("a\u200D\U0001F680"), (Characters{"a\u200D", "\U0001F680"}));
}

TEST(Graphemes, AHangulSyllableIsOneComposedOrOfLetters) {
  EXPECT_EQ(Split("\uD55C\uAE00"), (Characters{"\uD55C", "\uAE00"}));
  EXPECT_EQ(Split("\u1112\u1161\u11AB\u1100\u1173"), (Characters{"\u1112\u1161\u11AB", "\u1100\u1173"}));
  EXPECT_EQ(Split("\uAC00\u11A8"), Characters{"\uAC00\u11A8"});
  // Letters of the old spelling: a lead, a vowel and a tail.
  EXPECT_EQ(Split("\uA960\uD7B0\uD7CB\uA960"), (Characters{"\uA960\uD7B0\uD7CB", "\uA960"}));
  // A syllable with a tail takes no vowel any more.
  EXPECT_EQ(Split("\uAC01\u1161"), (Characters{"\uAC01", "\u1161"}));
}

TEST(Graphemes, BytesThatAreNotUtf8StandAlone) {
  EXPECT_EQ(Split("a\xC3"), (Characters{"a", "\xC3"}));
  EXPECT_EQ(Split("\x80\x80"), (Characters{"\x80", "\x80"}));
  EXPECT_EQ(Split("\xE2\x82"), (Characters{"\xE2", "\x82"}));
  EXPECT_EQ(Split("\xC3\xA9\xA9"), (Characters{"\xC3\xA9", "\xA9"}));
  EXPECT_EQ(Split("\xFF\xFE"), (Characters{"\xFF", "\xFE"}));
}

TEST(Graphemes, AMarkWithoutALetterStandsAlone) { EXPECT_EQ(Split("\u0301"), Characters{"\u0301"}); }

}  // namespace brivane::frame
