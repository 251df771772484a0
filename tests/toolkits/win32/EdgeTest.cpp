#include <gtest/gtest.h>

#include <brivane/toolkits/win32/window/Edge.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::win32 {
namespace {

TEST(Win32Edge, EdgesAreRoundedSoThatWhatTouchesInTwipsTouchesInPixels) {
  const Edge edge(1.25);
  const RECT first = edge.Pixels({{100}, {0}, {107}, {300}});
  const RECT second = edge.Pixels({{207}, {0}, {100}, {300}});
  EXPECT_EQ(first.left, 8);    // 100 / 15 * 1,25 = 8,33
  EXPECT_EQ(first.right, 17);  // 207 / 15 * 1,25 = 17,25
  EXPECT_EQ(second.left, first.right);
  EXPECT_EQ(first.bottom, 25);
  EXPECT_EQ(edge.ToTwips(25), host::Twips{300});
}

TEST(Win32Edge, AFontIsAsHighAsItsPointsAndTheScaleAsk) {
  EXPECT_EQ(Edge(1).FontPixels(9), 12);
  EXPECT_EQ(Edge(1.25).FontPixels(9), 15);
  EXPECT_EQ(Edge(1).FontPixels(8.25F), 11);
  EXPECT_EQ(Edge(1).FontPixels(0), 1);
}

TEST(Win32Edge, ColoursOfTheSystemAreLookedUp) {
  EXPECT_EQ(OwnColor({0x00332211}), RGB(0x11, 0x22, 0x33));
  EXPECT_FALSE(OwnColor(host::kButtonFace));
  EXPECT_EQ(DrawnColor(host::kButtonFace), GetSysColor(COLOR_BTNFACE));
  EXPECT_EQ(DrawnColor(host::kWindowBackground), GetSysColor(COLOR_WINDOW));
  EXPECT_EQ(DrawnColor({255}), RGB(255, 0, 0));
}

TEST(Win32Edge, TextIsReadableOnLightAndDark) {
  EXPECT_EQ(TextOn(RGB(255, 255, 255)), RGB(0, 0, 0));
  EXPECT_EQ(TextOn(RGB(20, 20, 60)), RGB(255, 255, 255));
}

TEST(Win32Text, GoesToUtf16AndBack) {
  for (const char* text : {"", "Zoë", "€ 1.234,56", "\xF0\x9F\x8F\xA0 huis"}) EXPECT_EQ(Narrow(Wide(text)), text);
  EXPECT_EQ(Wide("\xF0\x9F\x8F\xA0").size(), 2U);
}

}  // namespace
}  // namespace brivane::win32
