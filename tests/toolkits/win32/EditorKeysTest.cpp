#include <gtest/gtest.h>

#include <cwctype>
#include <string>
#include <vector>

#include "tests/toolkits/conformance/Scenes.h"
#include "tests/toolkits/win32/Person.h"
#include <brivane/controls/Choices.h>
#include <brivane/controls/ListBox.h>
#include <brivane/controls/TextBox.h>
#include <brivane/frame/Calendar.h>
#include <brivane/toolkits/win32/Toolkit.h>
#include <brivane/toolkits/win32/controls/DateWindow.h>
#include <brivane/toolkits/win32/window/Navigation.h>
#include <brivane/toolkits/win32/window/Text.h>

/// The editor as an adviser works it, without a mouse.
namespace brivane::test {
namespace {

class EditorKeys : public testing::TestWithParam<EditorState> {
 protected:
  EditorKeys() : scene_(toolkit_, GetParam()) {
    stage_.Show(scene_.Surface());
    toolkit_.FocusFirst(scene_.Surface());
  }
  [[nodiscard]] controls::AnyControl& Control(std::string_view name, int index = frame::kNoIndex) {
    return *controls::Surface::Of(scene_.Surface()).Find(name, index);
  }
  [[nodiscard]] static std::string Typed() { return win32::Narrow(win32::TextOf(GetFocus())); }
  /// Everything selected, so that typing replaces it.
  [[nodiscard]] static bool AllSelected() {
    DWORD from = 1;
    DWORD to = 0;
    SendMessageW(GetFocus(), EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    return from == 0 && to == static_cast<DWORD>(GetWindowTextLengthW(GetFocus()));
  }

  win32::Toolkit toolkit_{GetModuleHandleW(nullptr)};
  Stage stage_{toolkit_};
  EditorScene scene_;
};

using TheEditor = EditorKeys;
INSTANTIATE_TEST_SUITE_P(Editor, TheEditor, testing::Values(EditorState::Transition));
using EveryState = EditorKeys;
INSTANTIATE_TEST_SUITE_P(Editor, EveryState,
                         testing::Values(EditorState::Recurring, EditorState::Product, EditorState::Transition));

TEST_P(EveryState, TabGoesDownTheLeftSideAndThenDownTheRight) {
  std::vector<std::string> visited;
  const HWND first = GetFocus();
  POINT before{-1, -1};
  do {
    visited.push_back(Focused());
    RECT place{};
    GetWindowRect(GetFocus(), &place);
    MapWindowPoints(nullptr, win32::Toolkit::WindowOf(scene_.Surface()), reinterpret_cast<POINT*>(&place), 2);
    const bool sameSide = (place.left < 420) == (before.x < 420);
    // On one line to the right, else down; a check box and a toggle of one row differ in height.
    if (sameSide) {
      EXPECT_TRUE(place.top > before.y + 6 || (place.left > before.x && place.top > before.y - 6)) << Focused();
    } else {
      EXPECT_GE(place.left, 420) << Focused();
    }
    before = {place.left, place.top};
    if (dynamic_cast<win32::BoxWindow*>(win32::Window::Of(GetFocus())) != nullptr) {
      EXPECT_TRUE(AllSelected()) << Focused();
    }
    Press(VK_TAB);
  } while (GetFocus() != first && visited.size() < 60);
  EXPECT_EQ(visited.size(), win32::Stops(controls::Surface::Of(scene_.Surface())).size());
  EXPECT_GE(visited.size(), 16U);
}

TEST_P(EveryState, EachLetterOfTheAlphabetLeadsToOnePlace) {
  for (wchar_t letter = L'a'; letter <= L'z'; ++letter) {
    int found = 0;
    for (const auto& control : controls::Surface::Of(scene_.Surface()).Made())
      if (control->Reachable() && std::towlower(static_cast<wchar_t>(control->Row().mnemonic)) == letter) ++found;
    EXPECT_LE(found, 1) << static_cast<char>(letter);
  }
}

TEST_P(TheEditor, IsWorkedByLettersDatesListsAndToggles) {
  Press('A', With::Alt);
  EXPECT_EQ(Focused(), "TxtDtAanvang");
  Type(L"010532");
  Press(VK_TAB);
  EXPECT_EQ(static_cast<controls::TextBox&>(Control("TxtDtAanvang")).DateValue(), frame::MakeDate({2032, 5, 1}));
  EXPECT_EQ(Focused(), "TxtDtEind");
  Press(VK_F4);
  Press(VK_NEXT);
  Press(VK_RETURN);
  // Two years and six months after the new start, and a month on.
  EXPECT_EQ(Typed(), "01-12-2034");
  Press('B', With::Alt);
  EXPECT_EQ(Focused(), "TxtBd");
  Type(L"75");
  Press(VK_DECIMAL);
  Type(L"5");
  Press(VK_TAB);
  EXPECT_EQ(static_cast<controls::TextBox&>(Control("TxtBd")).Number(), 75.5);
  EXPECT_EQ(Focused(), "cboTermijn");
  Press(VK_DOWN);
  EXPECT_EQ(static_cast<controls::ListBox&>(Control("cboTermijn")).ListIndex(), 0);
  Press('I', With::Alt);
  EXPECT_EQ(static_cast<controls::ListBox&>(Control("cboTermijn")).ListIndex(), 1);
  EXPECT_EQ(Focused(), "jnInkUitArbeid");
  auto& work = static_cast<controls::JaNee&>(Control("jnInkUitArbeid"));
  Press('J');
  EXPECT_EQ(work.Value(), host::kJa);
  Press(VK_RIGHT);
  EXPECT_EQ(work.Value(), host::kNee);
}

TEST_P(TheEditor, KeysOfAnInputMethodNeitherHandOverNorLeadAway) {
  Press('O', With::Alt);
  Type(L"half");
  const HWND box = GetFocus();
  for (int i = 0; i < 3; ++i) PostMessageW(box, WM_KEYDOWN, VK_PROCESSKEY, 0);
  stage_.Settle();
  EXPECT_EQ(GetFocus(), box);
  EXPECT_EQ(Typed(), "half");
  PostMessageW(box, WM_IME_CHAR, L'é', 0);
  stage_.Settle();
  EXPECT_EQ(Typed(), "halfé");
  EXPECT_TRUE(dynamic_cast<win32::BoxWindow&>(*win32::Window::Of(box)).Edit().IsPending());
  Press(VK_RETURN);
  EXPECT_EQ(static_cast<controls::TextBox&>(Control("TxtOm")).Text(), "halfé");
}

}  // namespace
}  // namespace brivane::test
