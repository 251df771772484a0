#include <gtest/gtest.h>

#include <limits>

#include <brivane/frame/Calendar.h>
#include <brivane/toolkits/memory/Desktop.h>

namespace brivane::memory {

TEST(MemoryDesktop, AWholeNumberIsGroupedAndHalvesGoAwayFromZero) {
  struct Case {
    double number;
    const char* text;
  };
  const Desktop desktop;
  for (const Case& c : {Case{0, "0"}, Case{0.49, "0"}, Case{0.5, "1"}, Case{1.5, "2"}, Case{2.5, "3"}, Case{-0.4, "0"},
                        Case{-0.5, "-1"}, Case{-2.5, "-3"}, Case{999, "999"}, Case{999.5, "1.000"}, Case{1000, "1.000"},
                        Case{12345, "12.345"}, Case{1234567.4, "1.234.567"}, Case{-100000, "-100.000"},
                        Case{1e15, "1.000.000.000.000.000"}})
    EXPECT_EQ(desktop.FormatWhole(c.number), c.text) << c.number;
}

TEST(MemoryDesktop, TheSeparatorIsTheOneThatItIsGiven) {
  Desktop desktop;
  desktop.groupSeparator = ",";
  EXPECT_EQ(desktop.FormatWhole(12345), "12,345");
  desktop.groupSeparator = ".";
  EXPECT_EQ(desktop.FormatWhole(12345), "12.345");
  desktop.groupSeparator.clear();
  EXPECT_EQ(desktop.FormatWhole(12345), "12345");
}

TEST(MemoryDesktop, WhatIsNoFiniteNumberIsStillText) {
  const Desktop desktop;
  EXPECT_EQ(desktop.FormatWhole(std::numeric_limits<double>::quiet_NaN()), "NaN");
  EXPECT_EQ(desktop.FormatWhole(-std::numeric_limits<double>::infinity()), "-Inf");
}

TEST(MemoryDesktop, AMessageBoxIsAnsweredAsAskedAndElseWithOkOrNee) {
  using host::MessageAnswer;
  using host::MessageStyle;
  Desktop desktop;
  EXPECT_EQ(desktop.MessageBox("Onjuiste invoer", "x", MessageStyle::OkExclamation), MessageAnswer::Ok);
  EXPECT_EQ(desktop.MessageBox("Wijzigingen overnemen", "x", MessageStyle::YesNoQuestion), MessageAnswer::No);
  std::string heard;
  desktop.answer = [&](const std::string& title, const std::string& text, MessageStyle style) {
    heard = title + "|" + text + "|" + std::to_string(static_cast<int>(style));
    return MessageAnswer::Yes;
  };
  EXPECT_EQ(desktop.MessageBox("Titel", "Tekst", MessageStyle::YesNoQuestion), MessageAnswer::Yes);
  EXPECT_EQ(heard, "Titel|Tekst|36");
}

TEST(MemoryDesktop, TodayIsAsSetOrTheSystemsDate) {
  Desktop desktop;
  EXPECT_GE(desktop.Today(), frame::MakeDate({2020, 1, 1}));
  desktop.today = frame::MakeDate({2026, 11, 21});
  EXPECT_EQ(desktop.Today(), frame::MakeDate({2026, 11, 21}));
}

TEST(MemoryDesktop, PointerResetsAreCountedAndPendingEventsRun) {
  Desktop desktop;
  desktop.DoPendingEvents();
  int runs = 0;
  desktop.pending = [&] { ++runs; };
  desktop.DoPendingEvents();
  EXPECT_EQ(runs, 1);
  desktop.ResetMousePointer();
  desktop.ResetMousePointer();
  EXPECT_EQ(desktop.pointerResets, 2);
}

TEST(MemoryDesktop, TheScreenHas96DotsPerInchUntilSet) {
  Desktop desktop;
  EXPECT_EQ(desktop.TwipsPerPixelX(), 15);
  EXPECT_EQ(desktop.TwipsPerPixelY(), 15);
  desktop.twipsPerPixelY = 12;
  EXPECT_EQ(desktop.TwipsPerPixelY(), 12);
  EXPECT_EQ(desktop.ApplicationTitle(), "Dossier");
}

}  // namespace brivane::memory
