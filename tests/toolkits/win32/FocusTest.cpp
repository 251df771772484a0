#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "tests/toolkits/conformance/Scenes.h"
#include "tests/toolkits/win32/Person.h"
#include <brivane/controls/Form.h>
#include <brivane/toolkits/win32/Toolkit.h>
#include <brivane/toolkits/win32/window/Navigation.h>

/// A person sees where the focus is.
namespace brivane::test {
namespace {

/// What stands on the screen where a window is.
std::vector<std::uint32_t> Seen(HWND window) {
  RedrawWindow(GetAncestor(window, GA_ROOT), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  RECT place{};
  GetWindowRect(window, &place);
  const LONG width = place.right - place.left;
  const LONG height = place.bottom - place.top;
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader, width, height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  const HDC screen = GetDC(nullptr);
  const HDC memory = CreateCompatibleDC(screen);
  const HBITMAP bitmap = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  const HGDIOBJ before = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, width, height, screen, place.left, place.top, SRCCOPY);
  GdiFlush();
  const auto* const first = static_cast<const std::uint32_t*>(bits);
  std::vector<std::uint32_t> pixels(first, first + width * height);
  SelectObject(memory, before);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
  return pixels;
}

class FocusSeen : public testing::Test {
 protected:
  /// Goes to each stop but the boxes, where the caret blinks, and away from it again.
  void ExpectSeen(const controls::Surface& surface) {
    std::vector<win32::ControlWindow*> stops = win32::Stops(surface);
    std::erase_if(stops, [](const auto* stop) { return stop->Control().ControlKind() == host::Kind::TextBox; });
    EXPECT_GT(stops.size(), 2U);
    for (win32::ControlWindow* const stop : stops) {
      SCOPED_TRACE(stop->Control().ElementName());
      const HWND other = (stop == stops.front() ? stops.back() : stops.front())->Handle();
      SetFocus(other);
      stage_.Settle();
      const auto without = Seen(stop->Handle());
      stop->TakeFocus();
      stage_.Settle();
      const auto with = Seen(stop->Handle());
      std::size_t different = 0;
      for (std::size_t i = 0; i < with.size(); ++i) different += with[i] != without[i];
      // A dotted line around one letter is more.
      EXPECT_GE(different, 12U);
      SetFocus(other);
      stage_.Settle();
      EXPECT_EQ(Seen(stop->Handle()), without);
    }
  }

  win32::Toolkit toolkit_{GetModuleHandleW(nullptr)};
  Stage stage_{toolkit_};
};

TEST_F(FocusSeen, InEveryControlOfTheEditor) {
  for (const EditorState state : {EditorState::Designed, EditorState::Product, EditorState::Transition}) {
    SCOPED_TRACE(NameOf(state));
    EditorScene scene(toolkit_, state);
    stage_.Show(scene.Surface());
    ExpectSeen(controls::Surface::Of(scene.Surface()));
  }
}

TEST_F(FocusSeen, InEveryControlOfTheForm) {
  toolkit_.modal = [&](controls::Form& form) {
    stage_.Settle();
    ExpectSeen(form);
  };
  ShowForm(toolkit_, FormState::Amounts, nullptr);
}

}  // namespace
}  // namespace brivane::test
