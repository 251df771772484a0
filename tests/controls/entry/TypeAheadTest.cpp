#include <gtest/gtest.h>

#include <brivane/controls/entry/TypeAhead.h>

namespace brivane::controls {
namespace {

using std::chrono::milliseconds;

const std::vector<std::string> kTermijnen = {"per maand", "per kwartaal", "per half jaar", "per jaar", "eenmalig"};

/// The entry after typing a text, a character at a time.
int Typed(const std::vector<std::string>& entries, int from, std::string_view text, milliseconds between) {
  TypeAhead typed;
  milliseconds now{5000};
  for (; !text.empty(); now += between) {
    const std::size_t length = (static_cast<unsigned char>(text.front()) & 0xE0) == 0xC0 ? 2 : 1;
    from = typed.Type(entries, from, text.substr(0, length), now);
    text.remove_prefix(length);
  }
  return from;
}

TEST(TypeAhead, GoesToTheEntryThatBeginsAsTyped) {
  struct Case {
    int from;
    const char* text;
    int to;
  };
  for (const Case& c : {Case{-1, "p", 0}, Case{0, "p", 1}, Case{3, "p", 0}, Case{-1, "per j", 3}, Case{4, "per k", 1},
                        Case{1, "per", 2}, Case{0, "PER J", 3}, Case{0, "e", 4}, Case{4, "e", 4}, Case{0, "x", 0},
                        Case{-1, "x", -1}, Case{0, "per x", 1}, Case{2, " ", 2}, Case{2, " e", 4}, Case{0, "pp", 2},
                        Case{0, "ppp", 3}, Case{0, "pppp", 0}})
    EXPECT_EQ(Typed(kTermijnen, c.from, c.text, milliseconds(150)), c.to) << c.text << " from " << c.from;
}

TEST(TypeAhead, BeginsAnewAfterASecond) {
  EXPECT_EQ(Typed(kTermijnen, 4, "pe", milliseconds(1000)), 0);
  EXPECT_EQ(Typed(kTermijnen, 0, "pe", milliseconds(1001)), 4);
  TypeAhead typed;
  EXPECT_EQ(typed.Type(kTermijnen, -1, "p", milliseconds(0)), 0);
  EXPECT_TRUE(typed.GoesOn(milliseconds(1000)));
  EXPECT_FALSE(typed.GoesOn(milliseconds(1001)));
  typed.Forget();
  EXPECT_FALSE(typed.GoesOn(milliseconds(1)));
}

TEST(TypeAhead, KnowsAccentsAndAnEmptyList) {
  const std::vector<std::string> names = {"Zilver", "Émile", "Ötzi", "ZZ Verzekeringen"};
  EXPECT_EQ(Typed(names, 0, "é", milliseconds(100)), 1);
  EXPECT_EQ(Typed(names, 0, "ö", milliseconds(100)), 2);
  EXPECT_EQ(Typed(names, 0, "zz", milliseconds(100)), 3);
  EXPECT_EQ(Typed({}, -1, "a", milliseconds(100)), -1);
}

}  // namespace
}  // namespace brivane::controls
