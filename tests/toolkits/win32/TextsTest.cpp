#include <brivane/toolkits/win32/window/WindowsApi.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/toolkits/conformance/Scenes.h"
#include "tests/toolkits/win32/Person.h"
#include <brivane/controls/Form.h>
#include <brivane/toolkits/win32/Toolkit.h>
#include <brivane/toolkits/win32/window/ControlWindow.h>
#include <brivane/toolkits/win32/window/Text.h>

/// Every text that is shown stands in its control whole, at the usual sizes of text.
namespace brivane::test {
namespace {

using host::Kind;

/// What a tick or an option takes before its text: its glyph and the gap after it, at 96 dots an inch.
constexpr double kGlyph = 13 + 4;

HFONT FontOf(HWND window) { return reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)); }

SIZE SizeOf(HWND window, const std::wstring& text, UINT how, LONG width) {
  const HDC context = GetDC(window);
  const HGDIOBJ before = SelectObject(context, FontOf(window));
  RECT place{0, 0, width, 0};
  DrawTextW(context, text.c_str(), -1, &place, how | DT_CALCRECT);
  SelectObject(context, before);
  ReleaseDC(window, context);
  return {place.right, place.bottom};
}

LONG WidthOfText(HWND window, const std::wstring& text) { return SizeOf(window, text, DT_SINGLELINE, 0).cx; }

class Texts : public testing::TestWithParam<double> {
 protected:
  Texts() { toolkit_.SetScale(GetParam()); }

  void ExpectWhole(controls::Surface& surface) {
    for (const auto& control : surface.Made()) {
      if (control->ControlKind() == Kind::Surface) ExpectWhole(static_cast<controls::Surface&>(*control));
      const HWND window = Shown(*control).Handle();
      if (IsWindowVisible(window) == FALSE) continue;
      SCOPED_TRACE(control->ElementName());
      ExpectWhole(control->ControlKind(), control->Row(), window);
      ++looked_;
    }
  }

  void ExpectWhole(Kind kind, const frame::Row& row, HWND window) {
    RECT inside{};
    GetClientRect(window, &inside);
    const std::wstring text = win32::HeldTextOf(window);
    const auto glyph = static_cast<LONG>(kGlyph * GetParam());
    switch (kind) {
      case Kind::Label:
        if (row.multiline)
          EXPECT_LE(SizeOf(window, text, DT_WORDBREAK, inside.right).cy, inside.bottom);
        else
          ExpectLine(window, text, inside);
        break;
      case Kind::CheckBox:
      case Kind::OptionButton: EXPECT_LE(glyph + WidthOfText(window, text), inside.right); break;
      case Kind::Frame:
      case Kind::Button: EXPECT_LE(glyph + WidthOfText(window, text), inside.right); break;
      case Kind::TextBox: {
        SendMessageW(window, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&inside));
        ExpectLine(window, win32::TextOf(window), inside);
        ExpectMiddle(window);
        break;
      }
      case Kind::ListView: ExpectColumnsWhole(window); break;
      default: break;
    }
  }

  /// The text of a box stands in its middle, level with the label beside it.
  static void ExpectMiddle(HWND box) {
    RECT outer{};
    GetWindowRect(box, &outer);
    RECT line{};
    SendMessageW(box, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&line));
    MapWindowPoints(box, nullptr, reinterpret_cast<POINT*>(&line), 2);
    const LONG height = SizeOf(box, L"Ág", DT_SINGLELINE, 0).cy;
    EXPECT_NEAR(line.top - outer.top, outer.bottom - (line.top + height), 2);
  }

  static void ExpectLine(HWND window, const std::wstring& text, const RECT& place) {
    const SIZE line = SizeOf(window, text, DT_SINGLELINE, 0);
    EXPECT_LE(line.cx, place.right - place.left);
    EXPECT_LE(line.cy, place.bottom - place.top);
  }

  static void ExpectColumnsWhole(HWND list) {
    const auto header = reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0));
    const auto margin = static_cast<LONG>(SendMessageW(header, HDM_GETBITMAPMARGIN, 0, 0));
    const auto columns = static_cast<int>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
    EXPECT_EQ(columns, 4);
    LONG right = 0;
    for (int i = 0; i < columns; ++i) {
      wchar_t text[64] = {};
      HDITEMW item{};
      item.mask = HDI_TEXT;
      item.pszText = text;
      item.cchTextMax = 64;
      SendMessageW(header, HDM_GETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
      RECT place{};
      SendMessageW(header, HDM_GETITEMRECT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&place));
      EXPECT_LE(2 * margin + WidthOfText(header, text), place.right - place.left) << win32::Narrow(text);
      right = place.right;
    }
    RECT inside{};
    GetClientRect(list, &inside);
    EXPECT_LE(right, inside.right);
    RECT last{};
    last.left = LVIR_BOUNDS;
    SendMessageW(list, LVM_GETITEMRECT, 5, reinterpret_cast<LPARAM>(&last));
    EXPECT_LE(last.bottom, inside.bottom);
    // Neither bar is needed.
    EXPECT_EQ(GetWindowLongPtrW(list, GWL_STYLE) & (WS_HSCROLL | WS_VSCROLL), 0);
  }

  win32::Toolkit toolkit_{GetModuleHandleW(nullptr)};
  Stage stage_{toolkit_};
  int looked_ = 0;
};

INSTANTIATE_TEST_SUITE_P(Scales, Texts, testing::Values(1.0, 1.25, 1.5, 1.75, 2.0));

TEST_P(Texts, OfTheEditorStandWhole) {
  for (const EditorState state : {EditorState::Recurring, EditorState::Product, EditorState::Transition}) {
    SCOPED_TRACE(NameOf(state));
    looked_ = 0;
    EditorScene scene(toolkit_, state);
    stage_.Show(scene.Surface());
    ExpectWhole(controls::Surface::Of(scene.Surface()));
    EXPECT_GE(looked_, 58);
  }
}

TEST_P(Texts, OfTheFormStandWhole) {
  for (const FormState state :
       {FormState::Amounts, FormState::PercentagesAndDiscount, FormState::Growth, FormState::Bridging}) {
    SCOPED_TRACE(NameOf(state));
    looked_ = 0;
    toolkit_.modal = [&](controls::Form& form) { ExpectWhole(form); };
    ShowForm(toolkit_, state, nullptr);
    EXPECT_GT(looked_, 50);
  }
}

}  // namespace
}  // namespace brivane::test
