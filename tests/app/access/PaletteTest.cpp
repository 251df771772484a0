#include <gtest/gtest.h>

#include <QApplication>

#include "app/program/DarkPalette.h"
#include "app/program/LegiblePalette.h"
#include "tests/app/access/Pictures.h"

namespace brivane::app {
namespace {

TEST(Contrast, IsTheRatioOfTheLuminances) {
  // (1 + 0.05) / (0 + 0.05)
  EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 1e-9);
  EXPECT_NEAR(Contrast(Qt::white, Qt::black), 21, 1e-9);
  EXPECT_NEAR(Contrast(Qt::red, Qt::red), 1, 1e-9);
  // Red counts for 0.2126: 1.05 / 0.2626.
  EXPECT_NEAR(Contrast(Qt::red, Qt::white), 3.998, 1e-3);
  // 0x80 is 0.50196 of full, or 0.21586 linear: 1.05 / 0.26586.
  EXPECT_NEAR(Contrast(QColor(0x80, 0x80, 0x80), Qt::white), 3.949, 1e-3);
}

TEST(Palettes, CanBeReadAlsoWhatIsDisabled) {
  struct Case {
    const char* name;
    QPalette palette;
  };
  for (const Case& c : {Case{"light", QApplication::palette()}, Case{"dark", DarkPalette()},
                        Case{"high contrast", ContrastPalette()}}) {
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Disabled}) {
      const auto read = [&](QPalette::ColorRole text, QPalette::ColorRole back) {
        return Contrast(c.palette.color(group, text), c.palette.color(group, back));
      };
      EXPECT_GE(read(QPalette::WindowText, QPalette::Window), 4.5) << c.name << group;
      EXPECT_GE(read(QPalette::Text, QPalette::Base), 4.5) << c.name << group;
      EXPECT_GE(read(QPalette::ButtonText, QPalette::Button), 4.5) << c.name << group;
    }
    EXPECT_GE(Contrast(c.palette.color(QPalette::HighlightedText), c.palette.color(QPalette::Highlight)), 3) << c.name;
  }
}

TEST(Palettes, WhatIsLegibleIsLeftToTheDesktop) {
  EXPECT_EQ(LegiblePalette(DarkPalette()).resolveMask(), QPalette().resolveMask());
  EXPECT_NE(LegiblePalette(QPalette(QColor(239, 239, 239))).resolveMask(), QPalette().resolveMask());
}

}  // namespace
}  // namespace brivane::app
