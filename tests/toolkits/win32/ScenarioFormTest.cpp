#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>

#include "controls/Choices.h"
#include "controls/TextBox.h"
#include "scenario/frmScenario.h"
#include "tests/support/RecordingScenario.h"
#include "tests/toolkits/win32/Person.h"
#include "toolkits/win32/Dump.h"
#include "toolkits/win32/controls/BoxWindow.h"
#include "toolkits/win32/controls/HintWindow.h"
#include "toolkits/win32/window/Text.h"

/// The year-by-year form as a person meets it: a modal window worked by keys.
namespace brivane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tests::RecordingScenario;

constexpr char kVraag[] =
    "Scenario: De gewijzigde rijen worden niet bewaard als u het venster sluit zonder op OK te drukken. Wilt u het "
    "sluiten?";

class ScenarioForm : public testing::Test {
 protected:
  ScenarioForm() {
    scenario_->basis = 100;
    ShowWindow(stage_.Window(), SW_SHOW);
    SetForegroundWindow(stage_.Window());
    stage_.Settle();
    toolkit_.Desktop().answer = [this](const std::string& title, const std::string& text, host::MessageStyle) {
      messages_.push_back(title + ": " + text);
      return answer_;
    };
  }

  /// Opens the form, runs a script in it, and closes what it left open without asking.
  void Open(int rows, const std::function<void()>& script, bool korting = false) {
    frmScenario formulier(toolkit_);
    form_ = &formulier;
    for (const int row : disabled_) formulier.SetDisableJaar(static_cast<std::int16_t>(row), true);
    formulier.Invoeren(scenario_, static_cast<std::int16_t>(rows), 0, 0, false, korting, 0);
    bool ran = false;
    toolkit_.modal = [&](controls::Form& form) {
      window_ = GetAncestor(win32::AreaOf(form), GA_ROOT);
      stage_.Settle();
      script();
      ran = true;
      closed_ = form.IsUnloaded();
    };
    win32::Hoofdvenster eigenaar(stage_.Window());
    formulier.ShowModal(&eigenaar);
    EXPECT_TRUE(ran);
    form_ = nullptr;
  }

  [[nodiscard]] controls::Form& Form() { return dynamic_cast<controls::Form&>(form_->Form()); }
  [[nodiscard]] controls::AnyControl& Cell(std::string_view name, int row = frame::kNoIndex) {
    return *Form().Find(name, row);
  }
  [[nodiscard]] double Amount(int row) { return static_cast<controls::TextBox&>(Cell("txtBedrag", row)).Number(); }
  [[nodiscard]] static std::string Typed() { return win32::Narrow(win32::TextOf(GetFocus())); }
  [[nodiscard]] static std::string Reason() {
    return win32::Narrow(dynamic_cast<win32::BoxWindow&>(*win32::Window::Of(GetFocus())).Reason());
  }
  void Copy(const std::wstring& text) {
    OpenClipboard(stage_.Window());
    EmptyClipboard();
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t));
    std::copy_n(text.c_str(), text.size() + 1, static_cast<wchar_t*>(GlobalLock(memory)));
    GlobalUnlock(memory);
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
  }

  win32::Toolkit toolkit_{GetModuleHandleW(nullptr)};
  Stage stage_{toolkit_};
  std::shared_ptr<RecordingScenario> scenario_ = std::make_shared<RecordingScenario>();
  std::vector<int> disabled_;
  std::vector<std::string> messages_;
  host::MessageAnswer answer_ = host::MessageAnswer::No;
  frmScenario* form_ = nullptr;
  HWND window_ = nullptr;
  bool closed_ = false;
};

TEST_F(ScenarioForm, OpensInTheFirstBoxAndEnterGoesDown) {
  Open(3, [&] {
    EXPECT_EQ(Focused(), "txtBedrag(1)");
    TypeOver(L"100");
    Press(VK_RETURN);
    EXPECT_EQ(Focused(), "txtBedrag(2)");
    TypeOver(L"200,50");
    Press(VK_RETURN);
    EXPECT_EQ(Focused(), "txtBedrag(3)");
    Press(VK_RETURN);
    EXPECT_EQ(Focused(), "cmdOK");
    EXPECT_EQ(Amount(1), 100);
    EXPECT_EQ(Amount(2), 200.5);
    Press(VK_RETURN);
  });
  EXPECT_TRUE(closed_);
  EXPECT_THAT(messages_, IsEmpty());
  EXPECT_EQ(scenario_->Inhoud().size(), 2U);
}

TEST_F(ScenarioForm, IsOwnedByTheMainWindowWhichWaits) {
  Open(3, [&] {
    EXPECT_EQ(GetWindow(window_, GW_OWNER), stage_.Window());
    EXPECT_FALSE(IsWindowEnabled(stage_.Window()));
    EXPECT_TRUE(IsWindowVisible(window_));
    EXPECT_EQ(win32::TextOf(window_), L"Scenario");
  });
  EXPECT_TRUE(IsWindowEnabled(stage_.Window()));
  EXPECT_EQ(GetActiveWindow(), stage_.Window());
}

TEST_F(ScenarioForm, TabFollowsTheRowsAndTheArrowsTheColumn) {
  scenario_->invoersoort = 3;
  Open(
      4,
      [&] {
        EXPECT_EQ(Focused(), "txtBedrag(1)");
        Press(VK_TAB);
        EXPECT_EQ(Focused(), "txtPercentage(1)");
        Press(VK_TAB);
        EXPECT_EQ(Focused(), "txtKorting(1)");
        Press(VK_TAB);
        EXPECT_EQ(Focused(), "txtBedrag(2)");
        Press(VK_TAB, With::Shift);
        EXPECT_EQ(Focused(), "txtKorting(1)");
        Press(VK_DOWN);
        EXPECT_EQ(Focused(), "txtKorting(2)");
        Press(VK_UP);
        Press(VK_UP);
        EXPECT_EQ(Focused(), "txtKorting(1)");
        Press(VK_TAB, With::Shift);
        Press(VK_TAB, With::Shift);
        Press(VK_TAB, With::Shift);
        EXPECT_EQ(Focused(), "chkAanvullen");
        Press(VK_TAB);
        EXPECT_EQ(Focused(), "txtBedrag(1)");
        Click(Shown(Cell("txtKorting", 4)).Handle());
        Press(VK_TAB);
        EXPECT_EQ(Focused(), "cmdOK");
        Press(VK_TAB, With::Shift);
        EXPECT_EQ(Focused(), "txtKorting(4)");
      },
      true);
}

TEST_F(ScenarioForm, TicksAndHelpIconsAreStopsOfTheirRow) {
  Open(2, [&] {
    Press(VK_TAB);
    EXPECT_EQ(Focused(), "chkEenmalig(1)");
    EXPECT_EQ(win32::TextOf(GetFocus()), L"Op jaarbasis jaar 1");
    // Heard and not seen: beside a box that has no focus there is nothing.
    const HWND below = Shown(Cell("chkEenmalig", 2)).Handle();
    EXPECT_EQ(win32::TextOf(below), L"Op jaarbasis jaar 2");
    UpdateWindow(below);
    const HDC context = GetDC(below);
    for (const int y : {6, 8, 10, 12}) EXPECT_EQ(GetPixel(context, 16, y), GetSysColor(COLOR_BTNFACE)) << y;
    ReleaseDC(below, context);
    Press(VK_SPACE);
    auto& tick = static_cast<host::CheckBox&>(Cell("chkEenmalig", 1).Host());
    EXPECT_EQ(tick.Value(), host::kTicked);
    Press(VK_TAB);
    EXPECT_EQ(Focused(), "Hint(1)");
    EXPECT_TRUE(dynamic_cast<win32::HintWindow&>(Shown(Cell("Hint", 1))).Tip().IsShown());
    Press(VK_TAB);
    EXPECT_EQ(Focused(), "txtBedrag(2)");
    Press(VK_TAB);
    EXPECT_EQ(Focused(), "chkEenmalig(2)");
    Press(VK_UP);
    EXPECT_EQ(Focused(), "chkEenmalig(1)");
    Click(Shown(Cell("chkEenmalig", 1)).Handle(), {8, 10});
    EXPECT_EQ(tick.Value(), host::kUnticked);
  });
}

TEST_F(ScenarioForm, GrowthReachesTheBoxesBelow) {
  scenario_->invoersoort = 3;
  scenario_->basis = 0;
  Open(4, [&] {
    TypeOver(L"1000");
    Press(VK_TAB);
    TypeOver(L"10");
    Press(VK_RETURN);
    EXPECT_EQ(Focused(), "txtPercentage(2)");
    EXPECT_EQ(win32::TextOf(Shown(Cell("txtBedrag", 2)).Handle()), L"1.100,00");
    EXPECT_EQ(win32::TextOf(Shown(Cell("txtBedrag", 4)).Handle()), L"1.331,00");
  });
}

TEST_F(ScenarioForm, EscapeFirstRestoresTheBoxAndThenClosesWithoutAskingWhereNothingChanged) {
  Open(3, [&] {
    TypeOver(L"5");
    Press(VK_ESCAPE);
    EXPECT_EQ(Typed(), "100,00");
    EXPECT_FALSE(Form().IsUnloaded());
    Press(VK_ESCAPE);
  });
  EXPECT_TRUE(closed_);
  EXPECT_THAT(messages_, IsEmpty());
  EXPECT_THAT(scenario_->log, IsEmpty());
}

TEST_F(ScenarioForm, ClosingAsksFirstWhereRowsWereChanged) {
  Open(3, [&] {
    Press(VK_DOWN);
    TypeOver(L"5");
    Press(VK_RETURN);
    Press(VK_ESCAPE);
    EXPECT_FALSE(Form().IsUnloaded());
    EXPECT_THAT(messages_, ElementsAre(kVraag));
    SendMessageW(window_, WM_SYSCOMMAND, SC_CLOSE, 0);
    EXPECT_FALSE(Form().IsUnloaded());
    answer_ = host::MessageAnswer::Yes;
    Press(VK_ESCAPE);
  });
  EXPECT_TRUE(closed_);
  EXPECT_EQ(messages_.size(), 3U);
  EXPECT_THAT(scenario_->perioden, IsEmpty());
}

TEST_F(ScenarioForm, WhatIsBeingTypedInARowCountsAsChanged) {
  Open(3, [&] {
    TypeOver(L"5");
    SendMessageW(window_, WM_CLOSE, 0, 0);
    EXPECT_FALSE(Form().IsUnloaded());
  });
  EXPECT_THAT(messages_, ElementsAre(kVraag));
}

TEST_F(ScenarioForm, MalformedTypingIsRefusedBesideTheBox) {
  Open(3, [&] {
    TypeOver(L"12.50");
    Press(VK_RETURN);
    EXPECT_EQ(Focused(), "txtBedrag(1)");
    EXPECT_EQ(Typed(), "12.50");
    EXPECT_EQ(Reason(), "Bedoelt u 12,50 of 1.250? Typ een komma voor de decimalen.");
    for (const WORD key : {WORD{VK_DOWN}, WORD{VK_TAB}}) {
      Press(key);
      EXPECT_EQ(Focused(), "txtBedrag(1)");
    }
    Click(Shown(Cell("txtBedrag", 3)).Handle());
    EXPECT_EQ(Focused(), "txtBedrag(1)");
    Press('O', With::Alt);
    EXPECT_FALSE(Form().IsUnloaded());
    EXPECT_THAT(scenario_->log, IsEmpty());
  });
}

TEST_F(ScenarioForm, APastedColumnFillsTheRowsFromTheFocusedOne) {
  Open(5, [&] {
    Press(VK_DOWN);
    Copy(L"1.500,25\r\n€ 20\r\n30,5\r\n");
    Press('V', With::Control);
    EXPECT_EQ(Amount(1), 100);
    EXPECT_EQ(Amount(2), 1500.25);
    EXPECT_EQ(Amount(3), 20);
    EXPECT_EQ(Amount(4), 30.5);
    EXPECT_EQ(Amount(5), 100);
    EXPECT_EQ(Typed(), "1.500,25");
    EXPECT_TRUE(form_->Gewijzigd());
    EXPECT_EQ(Reason(), "");
  });
}

TEST_F(ScenarioForm, APastedColumnWithALineThatIsNoNumberIsRefusedWhole) {
  Open(4, [&] {
    Copy(L"1\r\n2,345\r\n");
    Press('V', With::Control);
    EXPECT_EQ(Amount(1), 100);
    EXPECT_TRUE(Reason().starts_with("Regel 2: ")) << Reason();
    Copy(L"1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n");
    Press('V', With::Control);
    EXPECT_EQ(Amount(4), 4);
    EXPECT_EQ(Reason(), "De laatste 2 regels passen niet meer in de rijen en zijn niet geplakt.");
    Copy(L" 7,5 \r\n");
    Press('V', With::Control);
    EXPECT_EQ(Typed(), "7,5");
  });
}

TEST_F(ScenarioForm, ALockedRowIsPassedOver) {
  disabled_ = {2};
  Open(3, [&] {
    Press(VK_DOWN);
    EXPECT_EQ(Focused(), "txtBedrag(3)");
  });
}

TEST_F(ScenarioForm, AFormLargerThanTheScreenScrollsToWhatHasTheFocus) {
  toolkit_.SetScale(6);
  Open(
      80,
      [&] {
        RECT window{};
        GetWindowRect(window_, &window);
        RECT screen{};
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
        EXPECT_LE(window.right - window.left, screen.right - screen.left);
        EXPECT_LE(window.bottom - window.top, screen.bottom - screen.top);
        EXPECT_NE(GetWindowLongPtrW(window_, GWL_STYLE) & WS_VSCROLL, 0);
        for (const char* name : {"txtBedrag", "cmdOK"}) {
          controls::AnyControl& control = name == std::string("cmdOK") ? Cell(name) : Cell(name, 80);
          SetFocus(Shown(control).Handle());
          RECT place{};
          GetWindowRect(GetFocus(), &place);
          MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&place), 2);
          RECT seen{};
          GetClientRect(window_, &seen);
          EXPECT_GE(place.top, 0) << name;
          EXPECT_LE(place.bottom, seen.bottom) << name;
          EXPECT_GE(place.left, 0) << name;
        }
        SendMessageW(window_, WM_VSCROLL, SB_TOP, 0);
        SCROLLINFO info{};
        info.cbSize = sizeof info;
        info.fMask = SIF_POS;
        GetScrollInfo(window_, SB_VERT, &info);
        EXPECT_EQ(info.nPos, 0);
        SendMessageW(window_, WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
        GetScrollInfo(window_, SB_VERT, &info);
        EXPECT_GT(info.nPos, 0);
      },
      true);
}

TEST_F(ScenarioForm, TheReasonStandsWhereItIsSeenAlsoInAScrolledForm) {
  toolkit_.SetScale(6);
  Open(80, [&] {
    for (const int row : {80, 1, 14, 15, 16, 17}) {
      const HWND box = Shown(Cell("txtBedrag", row)).Handle();
      SetFocus(box);
      TypeOver(L"12.50");
      Press(VK_TAB);
      const win32::Bubble* const reason = dynamic_cast<win32::BoxWindow&>(*win32::Window::Of(box)).ReasonShown();
      ASSERT_NE(reason, nullptr);
      RECT place{};
      GetWindowRect(reason->Handle(), &place);
      MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&place), 2);
      RECT seen{};
      GetClientRect(window_, &seen);
      EXPECT_GE(place.left, 0) << row;
      EXPECT_GE(place.top, 0) << row;
      EXPECT_LE(place.right, seen.right) << row;
      EXPECT_LE(place.bottom, seen.bottom) << row;
      Press(VK_ESCAPE);
    }
  });
}

TEST_F(ScenarioForm, EightyRowsShowToThePixelWhatTheControlsHold) {
  scenario_->naam = "Rente";
  scenario_->invoersoort = 2;
  scenario_->basis = 4.5;
  disabled_ = {2};
  const auto begin = std::chrono::steady_clock::now();
  Open(
      80,
      [&] {
        const auto opened = std::chrono::steady_clock::now();
        RecordProperty("milliseconds_to_open",
                       static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(opened - begin).count()));
        int windows = 0;
        const auto count = [](HWND, LPARAM counted) -> BOOL { return ++*reinterpret_cast<int*>(counted), TRUE; };
        EnumChildWindows(window_, count, reinterpret_cast<LPARAM>(&windows));
        RecordProperty("windows", windows);
        const auto held = controls::DumpAll(Form());
        const auto shown = win32::DumpShown(Form(), toolkit_);
        ASSERT_EQ(shown.size(), held.size());
        for (std::size_t i = 0; i < held.size(); ++i) EXPECT_TRUE(shown[i] == held[i]) << held[i].name;
      },
      true);
}

}  // namespace
}  // namespace brivane::test
