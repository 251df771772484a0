#include <gtest/gtest.h>

#include <chrono>

#include "tests/support/RecordingScenario.h"
#include "tests/toolkits/win32/Person.h"
#include <brivane/controls/Choices.h>
#include <brivane/controls/TextBox.h>
#include <brivane/scenario/frmScenario.h>
#include <brivane/toolkits/win32/Dump.h>
#include <brivane/toolkits/win32/controls/BoxWindow.h>
#include <brivane/toolkits/win32/controls/HintWindow.h>
#include <brivane/toolkits/win32/window/Text.h>

/// The year-by-year form as a person meets it: a modal window worked by keys.
namespace brivane::test {
namespace {

using tests::RecordingScenario;

class ScenarioForm : public testing::Test {
 protected:
  ScenarioForm() {
    scenario_->basis = 100;
    ShowWindow(stage_.Window(), SW_SHOW);
    SetForegroundWindow(stage_.Window());
    stage_.Settle();
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

  win32::Toolkit toolkit_{GetModuleHandleW(nullptr)};
  Stage stage_{toolkit_};
  std::shared_ptr<RecordingScenario> scenario_ = std::make_shared<RecordingScenario>();
  std::vector<int> disabled_;
  frmScenario* form_ = nullptr;
  HWND window_ = nullptr;
};

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

TEST_F(ScenarioForm, ATickOfARowIsHeardAndNotSeen) {
  Open(2, [&] {
    Press(VK_TAB);
    EXPECT_EQ(win32::TextOf(GetFocus()), L"Op jaarbasis jaar 1");
    // Beside a box that has no focus there is nothing.
    const HWND below = Shown(Cell("chkEenmalig", 2)).Handle();
    EXPECT_EQ(win32::TextOf(below), L"Op jaarbasis jaar 2");
    UpdateWindow(below);
    const HDC context = GetDC(below);
    for (const int y : {6, 8, 10, 12}) EXPECT_EQ(GetPixel(context, 16, y), GetSysColor(COLOR_BTNFACE)) << y;
    ReleaseDC(below, context);
    Press(VK_TAB);
    EXPECT_TRUE(dynamic_cast<win32::HintWindow&>(Shown(Cell("Hint", 1))).Tip().IsShown());
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
