#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <brivane/frame/Calendar.h>
#include <brivane/toolkits/win32/Desktop.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::win32 {
namespace {

WORD answerKey = 0;
std::vector<std::wstring> seen;

/// Reads the message box that is open and presses a key in it.
void CALLBACK AnswerBox(HWND, UINT, UINT_PTR timer, DWORD) {
  const HWND box = FindWindowW(L"#32770", nullptr);
  if (box == nullptr || IsWindowVisible(box) == FALSE) return;
  KillTimer(nullptr, timer);
  seen = {TextOf(box), TextOf(GetDlgItem(box, 0xFFFF))};
  for (const int button : {IDOK, IDYES, IDNO})
    if (const HWND window = GetDlgItem(box, button)) seen.push_back(TextOf(window));
  const HWND focus = GetFocus();
  PostMessageW(focus != nullptr ? focus : box, WM_KEYDOWN, answerKey, 0);
}

host::MessageAnswer Answer(host::MessageStyle style, WORD key) {
  Desktop desktop;
  desktop.pause = {};
  answerKey = key;
  SetTimer(nullptr, 0, 20, &AnswerBox);
  return desktop.MessageBox("Onjuiste invoer", "Een\r\nTwee", style);
}

TEST(Win32Desktop, AMessageBoxShowsItsTextAndAnswersOk) {
  EXPECT_EQ(Answer(host::MessageStyle::OkExclamation, VK_RETURN), host::MessageAnswer::Ok);
  ASSERT_EQ(seen.size(), 3U);
  EXPECT_EQ(seen[0], L"Onjuiste invoer");
  EXPECT_EQ(seen[1], L"Een\r\nTwee");
}

TEST(Win32Desktop, AQuestionHasDutchButtonsAndEscapeIsNo) {
  EXPECT_EQ(Answer(host::MessageStyle::YesNoQuestion, VK_ESCAPE), host::MessageAnswer::No);
  ASSERT_EQ(seen.size(), 4U);
  EXPECT_EQ(seen[2], L"&Ja");
  EXPECT_EQ(seen[3], L"&Nee");
  EXPECT_EQ(Answer(host::MessageStyle::OkExclamation, VK_ESCAPE), host::MessageAnswer::Ok);
}

TEST(Win32Desktop, TheListenersStandInForAPerson) {
  Desktop desktop;
  std::vector<host::MessageAnswer> told;
  desktop.answered = [&](host::MessageAnswer answer) { told.push_back(answer); };
  desktop.answer = [](const auto&, const auto&, auto) { return host::MessageAnswer::No; };
  EXPECT_EQ(desktop.MessageBox("a", "b", host::MessageStyle::YesNoQuestion), host::MessageAnswer::No);
  EXPECT_EQ(told, std::vector<host::MessageAnswer>{host::MessageAnswer::No});
  EXPECT_EQ(desktop.Ask("a", "b", host::MessageStyle::YesNoQuestion), host::MessageAnswer::No);
  EXPECT_EQ(told.size(), 1U);
}

TEST(Win32Desktop, WholeNumbersAreGroupedByTheLocaleAndHalvesGoAwayFromZero) {
  const Desktop desktop;
  wchar_t separator[8] = {};
  GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, separator, 8);
  const std::string group = Narrow(separator);
  struct Case {
    double number;
    std::string text;
  };
  for (const Case& c : {Case{0, "0"}, Case{2.5, "3"}, Case{-2.5, "-3"}, Case{-0.4, "0"},
                        Case{25000, "25" + group + "000"}, Case{1234567.4, "1" + group + "234" + group + "567"}})
    EXPECT_EQ(desktop.FormatWhole(c.number), c.text) << c.number;
}

TEST(Win32Desktop, TellsTitleScreenAndDate) {
  Desktop desktop;
  EXPECT_EQ(desktop.ApplicationTitle(), "win32_test");
  desktop.title = "Dossier";
  EXPECT_EQ(desktop.ApplicationTitle(), "Dossier");
  EXPECT_EQ(desktop.TwipsPerPixelX(), 15);
  EXPECT_EQ(desktop.TwipsPerPixelY(), 15);
  EXPECT_GE(desktop.Today(), frame::MakeDate({2020, 1, 1}));
  desktop.clock = [] { return frame::MakeDate({2026, 11, 21}); };
  EXPECT_EQ(desktop.Today(), frame::MakeDate({2026, 11, 21}));
}

int ran = 0;
void CALLBACK CountRun(HWND, UINT, UINT_PTR timer, DWORD) {
  KillTimer(nullptr, timer);
  ++ran;
}

TEST(Win32Desktop, PendingEventsRun) {
  Desktop desktop;
  bool asked = false;
  desktop.pending = [&] { asked = true; };
  SetTimer(nullptr, 0, 10, &CountRun);
  Sleep(60);
  desktop.DoPendingEvents();
  EXPECT_EQ(ran, 1);
  EXPECT_TRUE(asked);
  SetCursor(LoadCursorW(nullptr, MAKEINTRESOURCEW(32514)));
  desktop.ResetMousePointer();
  EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, MAKEINTRESOURCEW(32512)));
}

}  // namespace
}  // namespace brivane::win32
