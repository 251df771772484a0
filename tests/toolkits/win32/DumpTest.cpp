#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/toolkits/conformance/Scenes.h"
#include "tests/toolkits/win32/Person.h"
#include <brivane/controls/Form.h>
#include <brivane/controls/Pixels.h>
#include <brivane/toolkits/win32/Dump.h>
#include <brivane/toolkits/win32/Toolkit.h>
#include <brivane/toolkits/win32/window/ControlWindow.h>

/// The dump tells what the windows are, and not what the controls asked for.
namespace brivane::test {
namespace {

using controls::ControlDump;
using host::Kind;

class Dumps : public testing::Test {
 protected:
  Dumps() : scene_(toolkit_, EditorState::Product) { stage_.Show(scene_.Surface()); }

  [[nodiscard]] std::vector<ControlDump> All() { return win32::DumpShown(Surface(), toolkit_); }
  [[nodiscard]] controls::Surface& Surface() { return controls::Surface::Of(scene_.Surface()); }
  /// The windows in the order of the dump.
  [[nodiscard]] std::vector<HWND> Windows() { return WindowsOf(Surface()); }

  win32::Toolkit toolkit_{GetModuleHandleW(nullptr)};
  Stage stage_{toolkit_};
  EditorScene scene_;

 private:
  static std::vector<HWND> WindowsOf(const controls::Surface& surface) {
    std::vector<HWND> windows;
    for (const auto& control : surface.Made()) {
      windows.push_back(Shown(*control).Handle());
      if (control->ControlKind() != Kind::Surface) continue;
      const auto inner = WindowsOf(static_cast<const controls::Surface&>(*control));
      windows.insert(windows.end(), inner.begin(), inner.end());
    }
    return windows;
  }
};

RECT PlaceOf(const ControlDump& dump) {
  const controls::PixelPlace place = controls::Pixels(dump.place, 1);
  return {place.left, place.top, place.left + place.width, place.top + place.height};
}

TEST_F(Dumps, EachControlThatIsMovedByAPixelStandsElsewhere) {
  const std::vector<HWND> windows = Windows();
  const std::vector<ControlDump> before = All();
  ASSERT_EQ(windows.size(), before.size());
  for (std::size_t i = 0; i < windows.size(); ++i) {
    SCOPED_TRACE(before[i].name);
    const RECT designed = PlaceOf(before[i]);
    const auto move = [&](LONG right, LONG down) {
      SetWindowPos(windows[i], nullptr, designed.left + right, designed.top + down, 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    };
    for (const POINT by : {POINT{1, 0}, POINT{0, -1}}) {
      move(by.x, by.y);
      const RECT moved = PlaceOf(All()[i]);
      EXPECT_EQ(moved.left, designed.left + by.x);
      EXPECT_EQ(moved.top, designed.top + by.y);
    }
    move(0, 0);
  }
}

TEST_F(Dumps, EachControlThatIsAPixelWiderIsWider) {
  const std::vector<HWND> windows = Windows();
  const std::vector<ControlDump> before = All();
  for (std::size_t i = 0; i < windows.size(); ++i) {
    SCOPED_TRACE(before[i].name);
    const RECT designed = PlaceOf(before[i]);
    const auto resize = [&](LONG by) {
      SetWindowPos(windows[i], nullptr, 0, 0, designed.right - designed.left + by, designed.bottom - designed.top,
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    };
    resize(1);
    EXPECT_EQ(PlaceOf(All()[i]).right, designed.right + 1);
    resize(0);
  }
}

TEST_F(Dumps, AControlInAnotherContainerStandsElsewhere) {
  const std::vector<ControlDump> before = All();
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (before[i].name != "TxtOm") continue;
    SetParent(Windows()[i], win32::Toolkit::WindowOf(scene_.Surface()));
    // The frame that it stood in is 172 down.
    EXPECT_EQ(PlaceOf(All()[i]).top, PlaceOf(before[i]).top - 172);
    return;
  }
  FAIL() << "no such box";
}

TEST_F(Dumps, EachCaptionIsThatOfTheWindow) {
  const std::vector<HWND> windows = Windows();
  const std::vector<ControlDump> before = All();
  int captioned = 0;
  for (std::size_t i = 0; i < windows.size(); ++i) {
    if (!before[i].caption) continue;
    SCOPED_TRACE(before[i].name);
    SetWindowTextW(windows[i], L"iets anders");
    EXPECT_EQ(All()[i].caption, "iets anders");
    ++captioned;
  }
  EXPECT_GT(captioned, 40);
}

}  // namespace
}  // namespace brivane::test
