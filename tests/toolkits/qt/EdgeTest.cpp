#include <gtest/gtest.h>

#include <brivane/toolkits/qt/Edge.h>

namespace brivane::qt {
namespace {

TEST(Captions, ShowTheMnemonicOfTheDesignAndAnyOtherAmpersandAsItIs) {
  struct Case {
    const char* designed;
    char mnemonic;
    const char* caption;
    const char* shown;
  };
  for (const Case& c :
       {Case{"Bedrag", 'B', "Bedrag", "&Bedrag"}, Case{"Onderdeel", 'd', "Onderdeel", "On&derdeel"},
        Case{"Scenario invullen", 'I', "Scenario invullen", "Scenar&io invullen"}, Case{"&OK", 'O', "&OK", "&OK"},
        Case{"&OK", '\0', "&OK", "&OK"}, Case{"Aanvrager", '\0', "Jansen & Zn", "Jansen && Zn"},
        Case{"Bedrag", 'x', "Bedrag", "Bedrag"}, Case{"Jaren", 'J', "Maanden & jaren", "Maanden && &jaren"}}) {
    const frame::Row row{.name = "x", .caption = c.designed, .mnemonic = c.mnemonic};
    EXPECT_EQ(ShownCaption(row, c.caption).toStdString(), c.shown);
  }
}

TEST(Pixels, RoundEdgesSoThatNeighboursTouch) {
  const Edge edge;
  EXPECT_EQ(edge.Pixels({{135}, {300}, {5760}, {1695}}), QRect(9, 20, 384, 113));
  // 1020 + 100 twips is 74.67 pixels: what begins there begins where this ends.
  const QRect upper = edge.Pixels({{0}, {1020}, {100}, {100}});
  const QRect lower = edge.Pixels({{0}, {1120}, {100}, {100}});
  EXPECT_EQ(upper.top() + upper.height(), lower.top());
  EXPECT_EQ(edge.ToTwips(9).value, 135);
}

TEST(Pixels, FollowALargerApplicationFont) {
  const Edge edge(1.5);
  EXPECT_EQ(edge.Pixels({{30}, {60}, {300}, {315}}), QRect(3, 6, 30, 32));
  EXPECT_EQ(edge.ToTwips(3).value, 30);
  const frame::Design design{.name = "x", .rows = {}};
  EXPECT_EQ(edge.Font(design, 9).pixelSize(), 18);
  EXPECT_EQ(Edge().Font(design, 9).pixelSize(), 12);
  EXPECT_EQ(Edge().Font(design, 8.25F).pixelSize(), 11);
}

TEST(Colors, OfTheSystemAreLeftToThePalette) {
  EXPECT_FALSE(ToQt(host::kButtonFace));
  EXPECT_FALSE(ToQt(host::kWindowBackground));
  EXPECT_EQ(ToQt(host::Color{0x030201}), QColor(1, 2, 3));
  EXPECT_EQ(FromQt(QColor(1, 2, 3)), host::Color{0x030201});
  EXPECT_EQ(TextOn(Qt::yellow), Qt::black);
  EXPECT_EQ(TextOn(Qt::darkBlue), Qt::white);
}

}  // namespace
}  // namespace brivane::qt
