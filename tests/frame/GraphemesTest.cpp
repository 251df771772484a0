#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
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

/// A code point in UTF-8.
std::string Utf8(char32_t c) {
  const auto tail = [c](unsigned shift) { return static_cast<char>(0x80U | ((c >> shift) & 0x3FU)); };
  if (c < 0x80) return {static_cast<char>(c)};
  if (c < 0x800) return {static_cast<char>(0xC0U | (c >> 6U)), tail(0)};
  if (c < 0x10000) return {static_cast<char>(0xE0U | (c >> 12U)), tail(6), tail(0)};
  return {static_cast<char>(0xF0U | (c >> 18U)), tail(12), tail(6), tail(0)};
}

/// Whether the second code point is part of the character that the first begins.
bool Joined(char32_t first, char32_t second) { return LastGraphemeStart(Utf8(first) + Utf8(second)) == 0; }

/// The code points from 0 on that `joins` says yes to, as ranges of hexadecimal numbers.
template <class Joins> std::string Ranges(char32_t last, const Joins& joins) {
  std::ostringstream found;
  found << std::hex;
  for (char32_t c = 0; c <= last; ++c) {
    if (!joins(c)) continue;
    const char32_t first = c;
    while (c < last && joins(c + 1)) ++c;
    found << (first == 0 ? "" : " ") << static_cast<std::uint32_t>(first);
    if (c != first) found << '-' << static_cast<std::uint32_t>(c);
  }
  return found.str();
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

TEST(Graphemes, EachLetterTakesAnAccentAndStandsBeforeAnEndOfLine) {
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    const std::string accented = letter + std::string("\u0301");
    EXPECT_EQ(Split(accented + "x"), (Characters{accented, "x"})) << letter;
    EXPECT_EQ(Split(std::string{letter, '\n'}), (Characters{std::string{letter}, "\n"})) << letter;
  }
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
  EXPECT_EQ(Split("\u0600A"), Characters{"\u0600A"});
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
  EXPECT_EQ(Split("a\x80"), (Characters{"a", "\x80"}));
  EXPECT_EQ(Split("a\x80\x80"), (Characters{"a", "\x80", "\x80"}));
  EXPECT_EQ(Split("\x7F\xBF"), (Characters{"\x7F", "\xBF"}));
  EXPECT_EQ(Split("\xBF\xBF"), (Characters{"\xBF", "\xBF"}));
}

TEST(Graphemes, AMarkWithoutALetterStandsAlone) { EXPECT_EQ(Split("\u0301"), Characters{"\u0301"}); }

TEST(Graphemes, OfEachPageOfCodePointsSoManyJoinALetter) {
  // Counted in the character database of Unicode 14 by pages of 256: what extends a character, and the spacing marks.
  const std::map<char32_t, int> expected = {
      {0x03, 112}, {0x04, 7},   {0x05, 51},  {0x06, 52},  {0x07, 49},  {0x08, 85},  {0x09, 54},   {0x0A, 44},
      {0x0B, 35},  {0x0C, 46},  {0x0D, 44},  {0x0E, 34},  {0x0F, 77},  {0x10, 34},  {0x13, 3},    {0x17, 44},
      {0x18, 7},   {0x19, 24},  {0x1A, 73},  {0x1B, 61},  {0x1C, 49},  {0x1D, 64},  {0x20, 35},   {0x2C, 3},
      {0x2D, 33},  {0x30, 8},   {0xA6, 18},  {0xA8, 48},  {0xA9, 40},  {0xAA, 34},  {0xAB, 10},   {0xFB, 1},
      {0xFE, 32},  {0xFF, 2},   {0x101, 1},  {0x102, 1},  {0x103, 5},  {0x10A, 15}, {0x10D, 4},   {0x10E, 2},
      {0x10F, 15}, {0x110, 37}, {0x111, 43}, {0x112, 25}, {0x113, 33}, {0x114, 39}, {0x115, 18},  {0x116, 30},
      {0x117, 13}, {0x118, 15}, {0x119, 30}, {0x11A, 49}, {0x11C, 52}, {0x11D, 29}, {0x11E, 4},   {0x16A, 5},
      {0x16B, 7},  {0x16F, 63}, {0x1BC, 2},  {0x1CF, 69}, {0x1D1, 30}, {0x1D2, 3},  {0x1DA, 127}, {0x1E0, 38},
      {0x1E1, 7},  {0x1E2, 5},  {0x1E8, 7},  {0x1E9, 7},  {0x1F3, 5},  {0xE00, 96}, {0xE01, 240}};
  std::map<char32_t, int> counted;
  // The planes in which Unicode has assigned signs, less those of ideographs.
  for (const auto& [first, last] : {std::pair{0x20, 0x1FFFF}, std::pair{0xE0000, 0xE0FFF}})
    for (int c = first; c <= last; ++c)
      if (Joined('a', static_cast<char32_t>(c))) ++counted[static_cast<char32_t>(c) >> 8U];
  EXPECT_EQ(counted, expected);
}

TEST(Graphemes, TheSignsThatStandBeforeTheirCharacterAreTheseAlone) {
  EXPECT_EQ(Ranges(0x1FFFF, [](char32_t c) { return Joined(c, 'a'); }),
            " 600-605 6dd 70f 890-891 8e2 d4e 110bd 110cd 111c2-111c3 1193f 11941 11a3a 11a84-11a89 11d46");
  // A blank is a character that such a sign can stand before, what steers a line is none.
  EXPECT_TRUE(Joined(0x600, ' '));
  EXPECT_FALSE(Joined(0x600, 0x1F));
}

TEST(Graphemes, HangulLettersJoinInTheOrderOfASyllable) {
  const char32_t last = 0xFFFF;
  const auto after = [&](char32_t first) {
    return Ranges(last, [=](char32_t c) { return !Joined('a', c) && Joined(first, c); });
  };
  const std::string oldLead = " a960-a97c";
  const std::string syllable = " ac00-d7a3";
  const std::string tail = " 11a8-11ff";
  const std::string oldVowel = " d7b0-d7c6";
  const std::string oldTail = " d7cb-d7fb";
  EXPECT_EQ(after(0x1100), " 1100-11a7" + oldLead + syllable + oldVowel);
  EXPECT_EQ(after(0x1160), " 1160-11ff" + oldVowel + oldTail);
  EXPECT_EQ(after(0x11A8), tail + oldTail);

  struct Case {
    char32_t first;
    std::string joins;  ///< of a lead, a vowel, a tail and a syllable
  };
  for (const Case& c :
       {// The ends of the ranges, and what stands beside them.
        Case{0x10FF, ""}, Case{0x1100, "LVS"}, Case{0x115F, "LVS"}, Case{0x1160, "VT"}, Case{0x11A7, "VT"},
        Case{0x11A8, "T"}, Case{0x11FF, "T"}, Case{0x1200, ""}, Case{0xA95F, ""}, Case{0xA960, "LVS"},
        Case{0xA97C, "LVS"}, Case{0xA97D, ""}, Case{0xABFF, ""}, Case{0xD7A4, ""}, Case{0xD7AF, ""}, Case{0xD7B0, "VT"},
        Case{0xD7C6, "VT"}, Case{0xD7C7, ""}, Case{0xD7CA, ""}, Case{0xD7CB, "T"}, Case{0xD7FB, "T"}, Case{0xD7FC, ""},
        // Syllables without a tail are every 28th.
        Case{0xAC00, "VT"}, Case{0xAC01, "T"}, Case{0xAC1B, "T"}, Case{0xAC1C, "VT"}, Case{0xD788, "VT"},
        Case{0xD7A3, "T"}}) {
    std::string joins;
    if (Joined(c.first, 0x1100)) joins += 'L';
    if (Joined(c.first, 0x1161)) joins += 'V';
    if (Joined(c.first, 0x11A8)) joins += 'T';
    if (Joined(c.first, 0xAC00)) joins += 'S';
    EXPECT_EQ(joins, c.joins) << std::hex << static_cast<std::uint32_t>(c.first);
  }
}

TEST(Graphemes, AJoinerJoinsThesePictographs) {
  const std::string joiner = Utf8(0x200D);
  const std::string rocket = Utf8(0x1F680);
  const auto both = [&](char32_t first, char32_t second) {
    return LastGraphemeStart(Utf8(first) + joiner + Utf8(second)) == 0;
  };
  // Between the pictographs stand the indicators of flags and the skin tones.
  const std::string pictographs = " a9 ae 203c 2049 2122 2139 2190-2bff 1f000-1f1e5 1f200-1f3fa 1f400-1faff";
  EXPECT_EQ(Ranges(0x1FFFF, [&](char32_t c) { return both(c, 0x1F680); }), pictographs);
  EXPECT_EQ(Ranges(0x1FFFF, [&](char32_t c) { return !Joined('a', c) && both(0x1F680, c); }), pictographs);
}

TEST(Graphemes, TheIndicatorsOfFlagsAreTheseAlone) {
  EXPECT_EQ(Ranges(0x1FFFF, [](char32_t c) { return !Joined('a', c) && Joined(0x1F1E6, c); }), " 1f1e6-1f1ff");
  EXPECT_EQ(Ranges(0x1FFFF, [](char32_t c) { return !Joined(c, 'a') && Joined(c, 0x1F1FF); }), " 1f1e6-1f1ff");
}

TEST(Graphemes, ACodePointOfEachLengthIsReadWhole) {
  // The first and the last of two, three and four bytes.
  for (const char32_t c : {0x80, 0x7FF, 0x800, 0xFFFD, 0x10000, 0x10FFFF})
    EXPECT_EQ(Split("a" + Utf8(c) + "b"), (Characters{"a", Utf8(c), "b"})) << std::hex << static_cast<std::uint32_t>(c);
  // A byte of a sequence that is too short, or too long by one, stands alone.
  EXPECT_EQ(Split("\xF0\x9F\x9A"), (Characters{"\xF0", "\x9F", "\x9A"}));
  EXPECT_EQ(Split("\xE2\x82\xAC\x80"), (Characters{"\xE2\x82\xAC", "\x80"}));
  EXPECT_EQ(Split("\xF0\x9F\x9A\x80\x80"), (Characters{"\xF0\x9F\x9A\x80", "\x80"}));
  EXPECT_EQ(Split("\x80\x80\x80\x80\x80"), (Characters{"\x80", "\x80", "\x80", "\x80", "\x80"}));
}

}  // namespace brivane::frame
