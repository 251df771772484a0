#include <cmath>

#include "tests/toolkits/conformance/Scenes.h"
#include "tests/toolkits/win32/SurfaceTest.h"
#include <brivane/controls/Choices.h>
#include <brivane/controls/ListBox.h>
#include <brivane/toolkits/win32/Dump.h>

/// A surface in a container that was not written for it.
namespace brivane::test {
namespace {

using testing::ElementsAre;

TEST(Embedding, ASurfaceIsAChildWindowUnderAHiddenOneUntilItIsTakenIn) {
  win32::Toolkit toolkit(GetModuleHandleW(nullptr));
  const auto surface = toolkit.MakeSurface(kSurface);
  const HWND window = win32::Toolkit::WindowOf(*surface);
  EXPECT_NE(GetWindowLongPtrW(window, GWL_STYLE) & WS_CHILD, 0);
  EXPECT_FALSE(IsWindowVisible(window));
  RECT area{};
  GetClientRect(window, &area);
  EXPECT_EQ(area.right, 12000 / 15);
  EXPECT_EQ(area.bottom, 6300 / 15);
}

TEST(Embedding, TheContainerMayDestroyTheWindowFirst) {
  win32::Toolkit toolkit(GetModuleHandleW(nullptr));
  auto surface = toolkit.MakeSurface(kSurface);
  {
    Stage stage(toolkit);
    stage.Show(*surface);
  }
  EXPECT_EQ(win32::Toolkit::WindowOf(*surface), nullptr);
  auto& box = static_cast<controls::TextBox&>(*controls::Surface::Of(*surface).Find("txtNaam"));
  box.SetText("nog steeds");
  box.SetFocus();
  surface->SetBackColor({255});
  static_cast<controls::ListBox&>(*controls::Surface::Of(*surface).Find("cboTermijn")).SetListIndex(1);
  EXPECT_EQ(box.Text(), "nog steeds");
  EXPECT_FALSE(toolkit.FocusFirst(*surface));
  surface.reset();
}

TEST(Embedding, NoWindowOrFontStaysBehind) {
  const auto count = [] {
    return std::pair(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS),
                     GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS));
  };
  const auto work = [] {
    win32::Toolkit toolkit(GetModuleHandleW(nullptr));
    EditorScene scene(toolkit, EditorState::Product);
    Stage stage(toolkit);
    stage.Show(scene.Surface());
    toolkit.FocusFirst(scene.Surface());
    stage.Settle();
  };
  work();
  const auto before = count();
  for (int i = 0; i < 5; ++i) work();
  EXPECT_EQ(count(), before);
}

/// Worked by a loop that knows nothing of the toolkit.
class PlainLoop : public SurfaceTest {
 protected:
  PlainLoop() { SetFocus(WindowOf("txtNaam")); }
  static void Key(WORD key) {
    PostMessageW(GetFocus(), WM_KEYDOWN, key, 0);
    Run();
  }
  static void Run() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
};

TEST_F(PlainLoop, TabAndTheOtherKeysWorkAllTheSame) {
  Follow("txtNaam");
  SendMessageW(GetFocus(), WM_CHAR, L'x', 0);
  Key(VK_TAB);
  EXPECT_THAT(log_, ElementsAre("txtNaam = x"));
  EXPECT_EQ(Focused(), "txtBedrag");
  SetFocus(WindowOf("jnDiep"));
  Key('J');
  EXPECT_EQ(static_cast<controls::JaNee&>(Control("jnDiep")).Value(), host::kJa);
  SetFocus(WindowOf("optSoort", 1));
  Key(VK_DOWN);
  EXPECT_EQ(Focused(), "optSoort(2)");
}

TEST_F(PlainLoop, TheDecimalKeyOfTheKeypadTypesOneSign) {
  SetFocus(WindowOf("txtBedrag"));
  Key('1');
  Key(VK_DECIMAL);
  Key('5');
  EXPECT_EQ(Typed("txtBedrag"), "1,5");
}

TEST_F(SurfaceTest, TabPastTheEndIsTheContainers) {
  SetFocus(WindowOf("Binnenste.jnBinnen"));
  MSG tab{};
  tab.hwnd = GetFocus();
  tab.message = WM_KEYDOWN;
  tab.wParam = VK_TAB;
  EXPECT_FALSE(toolkit_.Navigate(*surface_, tab));
  SetFocus(WindowOf("txtNaam"));
  tab.hwnd = GetFocus();
  EXPECT_TRUE(toolkit_.Navigate(*surface_, tab));
  EXPECT_EQ(Focused(), "txtBedrag");
}

TEST_F(SurfaceTest, AMnemonicOfTheSurfaceWorksWhileTheFocusIsElsewhere) {
  SetFocus(stage_.Window());
  MSG letter{};
  letter.hwnd = stage_.Window();
  letter.message = WM_SYSCHAR;
  letter.wParam = L'n';
  EXPECT_TRUE(toolkit_.Navigate(*surface_, letter));
  EXPECT_EQ(Focused(), "txtNaam");
  letter.wParam = L'q';
  EXPECT_FALSE(toolkit_.Navigate(*surface_, letter));
}

TEST_F(SurfaceTest, TheFocusComesInAtEitherEnd) {
  EXPECT_TRUE(toolkit_.FocusLast(*surface_));
  EXPECT_EQ(Focused(), "Binnenste.jnBinnen");
  EXPECT_TRUE(toolkit_.FocusFirst(*surface_));
  EXPECT_EQ(Focused(), "txtNaam");
  SetFocus(stage_.Window());
  SetFocus(win32::Toolkit::WindowOf(*surface_));
  EXPECT_EQ(Focused(), "txtNaam");
}

TEST_F(SurfaceTest, EverythingGrowsWithTheScale) {
  toolkit_.SetScale(1.25);
  toolkit_.Rescale(*surface_);
  for (const char* name : {"txtNaam", "cboTermijn", "cmdDoen", "fraKeuze", "Binnenste.jnBinnen"}) {
    const HWND window = WindowOf(name);
    RECT shown{};
    GetWindowRect(window, &shown);
    const host::Place asked = Control(name).Host().Place();
    EXPECT_EQ(shown.right - shown.left, std::lround(asked.Right().value / 12) - std::lround(asked.left.value / 12))
        << name;
    EXPECT_EQ(shown.bottom - shown.top, std::lround(asked.Bottom().value / 12) - std::lround(asked.top.value / 12))
        << name;
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0)), sizeof font, &font);
    EXPECT_EQ(font.lfHeight, -15) << name;
  }
  RECT whole{};
  GetClientRect(win32::Toolkit::WindowOf(*surface_), &whole);
  EXPECT_EQ(whole.right, 1000);
}

COLORREF PixelOf(HWND window, int x, int y) {
  const HDC context = GetDC(window);
  const COLORREF color = GetPixel(context, x, y);
  ReleaseDC(window, context);
  return color;
}

TEST_F(SurfaceTest, ABackgroundColourIsDrawnOnWhatHasNoneOfItsOwn) {
  surface_->SetBackColor({0x00C0FFC0});
  Control("lblNaam").Host().SetBackColor({0x000000FF});
  UpdateWindow(stage_.Window());
  stage_.Settle();
  EXPECT_EQ(PixelOf(win32::Toolkit::WindowOf(*surface_), 405, 100), 0x00C0FFC0U);
  EXPECT_EQ(PixelOf(WindowOf("fraBoxen"), 20, 40), 0x00C0FFC0U);
  EXPECT_EQ(PixelOf(WindowOf("lblNaam"), 95, 2), 0x000000FFU);
}

}  // namespace
}  // namespace brivane::test
