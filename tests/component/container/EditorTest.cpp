// The example's window with the library's own editor in it.

#include <gtest/gtest.h>
#include <olectl.h>

#include <cstdio>
#include <optional>
#include <set>

#include "examples/windows/container/Host.h"
#include "examples/windows/container/MainWindow.h"
#include "tests/component/container/Counts.h"
#include "tests/component/container/Library.h"

namespace brivane::component::test {
namespace {

std::wstring TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(::GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

SIZE SizeOf(HWND window) {
  RECT rect{};
  ::GetWindowRect(window, &rect);
  return {rect.right - rect.left, rect.bottom - rect.top};
}

/// A control of a kind by its text.
HWND Find(HWND parent, const wchar_t* kind, const std::wstring& text) {
  struct Search {
    const wchar_t* kind;
    const std::wstring& text;
    HWND found = nullptr;
  } search{kind, text};
  ::EnumChildWindows(
      parent,
      [](HWND window, LPARAM data) -> BOOL {
        auto& wanted = *reinterpret_cast<Search*>(data);
        wchar_t name[32]{};
        ::GetClassNameW(window, name, 32);
        if (::lstrcmpiW(name, wanted.kind) == 0 && TextOf(window) == wanted.text) wanted.found = window;
        return wanted.found == nullptr;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.found;
}
HWND BoxWith(HWND parent, const std::wstring& text) { return Find(parent, L"Edit", text); }
HWND ButtonWith(HWND parent, const std::wstring& text) { return Find(parent, L"Button", text); }

class EditorTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(library_.IsLoaded());
    Open();
  }
  void TearDown() override {
    Shut();
    EXPECT_TRUE(library_.CanUnload());
  }

  void Open() {
    window_.emplace();
    application_ = example::NewApplication(window_->Handle());
    ASSERT_EQ(window_->Open(application_.Get()), S_OK);
    ::SetForegroundWindow(window_->Handle());
    Pump();
  }
  /// The host's objects are let go of with the window.
  void Shut() {
    if (!window_) return;
    EXPECT_TRUE(window_->Close());
    MSG quit{};
    ::PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
    window_.reset();
    Pump();
    application_->AddRef();
    EXPECT_EQ(application_->Release(), 1U);
    application_.Reset();
  }

  void Key(UINT message, WPARAM key) {
    MSG posted{};
    posted.hwnd = ::GetFocus();
    posted.message = message;
    posted.wParam = key;
    posted.lParam = 1;
    window_->Dispatch(posted);
    Pump();
  }
  void Type(const std::wstring& text) {
    for (const wchar_t letter : text) Key(WM_CHAR, static_cast<WPARAM>(letter));
  }
  [[nodiscard]] bool IsRefused() {
    VARIANT cancel;
    ::VariantInit(&cancel);
    cancel.vt = VT_BOOL;
    EXPECT_EQ(window_->Editor()->Validation(&cancel, 0), S_OK);
    return cancel.boolVal != VARIANT_FALSE;
  }
  [[nodiscard]] HWND Frame() const {
    HWND frame = nullptr;
    window_->Place()->Control().As<IOleInPlaceObject>()->GetWindow(&frame);
    return frame;
  }
  [[nodiscard]] bool HasFocus() const { return ::IsChild(Frame(), ::GetFocus()) != FALSE; }

  Ole ole_;
  Library library_;
  std::optional<example::MainWindow> window_;
  ComPtr<IDispatch> application_;
};

TEST_F(EditorTest, StandsInTheWindowAsHighAsItIs) {
  const HWND frame = Frame();
  ASSERT_NE(frame, nullptr);
  EXPECT_EQ(::GetAncestor(frame, GA_PARENT), window_->Handle());
  EXPECT_TRUE(::IsWindowVisible(frame));
  SIZEL extent{};
  window_->Place()->Control()->GetExtent(DVASPECT_CONTENT, &extent);
  // Designed 6915 twips high: 2850 above the explanation and 4065 of its own.
  EXPECT_EQ(SizeOf(frame).cy, 461);
  EXPECT_EQ(window_->Place()->Place().bottom - window_->Place()->Place().top, 461);
  EXPECT_EQ(extent.cy, 12197);
}

TEST_F(EditorTest, ShowsTheRecordOfTheHost) {
  EXPECT_NE(BoxWith(Frame(), L"Vereniging"), nullptr);
  EXPECT_NE(BoxWith(Frame(), L"12,50"), nullptr);
  EXPECT_NE(BoxWith(Frame(), L"01-04-2031"), nullptr);
}

TEST_F(EditorTest, WhatIsTypedComesBackAsTheHeadersText) {
  ::SetFocus(BoxWith(Frame(), L"Vereniging"));
  ::SendMessageW(::GetFocus(), EM_SETSEL, 0, -1);
  Type(L"Vakbond");
  EXPECT_EQ(TextOf(window_->Header()), L"");
  Key(WM_KEYDOWN, VK_RETURN);
  EXPECT_EQ(TextOf(window_->Header()), L"Vakbond");
}

TEST_F(EditorTest, TheCheckTakesWhatIsBeingTypedFirst) {
  ::SetFocus(BoxWith(Frame(), L"Vereniging"));
  ::SendMessageW(::GetFocus(), EM_SETSEL, 0, -1);
  Type(L"Vakbond");
  EXPECT_FALSE(IsRefused());
  EXPECT_EQ(TextOf(window_->Header()), L"Vakbond");
}

TEST_F(EditorTest, TheCheckRefusesWhatCannotBeADateAndKeepsItWhereItStands) {
  const HWND date = BoxWith(Frame(), L"01-04-2031");
  ::SetFocus(date);
  ::SendMessageW(date, EM_SETSEL, 0, -1);
  Type(L"morgen");
  EXPECT_TRUE(IsRefused());
  EXPECT_EQ(::GetFocus(), date);
  EXPECT_EQ(TextOf(date), L"morgen");
  Key(WM_KEYDOWN, VK_ESCAPE);
  EXPECT_FALSE(IsRefused());
  EXPECT_EQ(TextOf(date), L"01-04-2031");
}

TEST_F(EditorTest, TabGoesThroughTheEditorOnceAndOut) {
  window_->Place()->Enter(nullptr);
  ASSERT_TRUE(HasFocus());
  std::set<HWND> visited;
  while (HasFocus() && visited.insert(::GetFocus()).second) Key(WM_KEYDOWN, VK_TAB);
  EXPECT_EQ(::GetFocus(), window_->Note());
  EXPECT_GT(visited.size(), 15U);
  Key(WM_KEYDOWN, VK_TAB);
  EXPECT_EQ(::GetFocus(), window_->CloseButton());
  Key(WM_KEYDOWN, VK_TAB);
  EXPECT_TRUE(HasFocus());
}

TEST_F(EditorTest, ALetterWithAltComesInFromElsewhere) {
  ::SetFocus(window_->Note());
  MSG letter{};
  letter.hwnd = window_->Note();
  letter.message = WM_SYSCHAR;
  letter.wParam = 'a';  // "Aanvangsdatum"
  letter.lParam = 0x20000001;
  window_->Dispatch(letter);
  EXPECT_EQ(TextOf(::GetFocus()), L"01-04-2031");
}

TEST_F(EditorTest, FollowsTheWidthOfTheWindow) {
  const LONG height = SizeOf(Frame()).cy;
  ::SetWindowPos(window_->Handle(), nullptr, 0, 0, 1000, 760, SWP_NOMOVE | SWP_NOZORDER);
  RECT client{};
  ::GetClientRect(window_->Handle(), &client);
  EXPECT_EQ(SizeOf(Frame()).cx, client.right - 24);
  EXPECT_EQ(SizeOf(Frame()).cy, height);
}

TEST_F(EditorTest, GrowsWithLargerTextOfTheWindowAlone) {
  const auto tell = [&](long points) {
    wchar_t name[] = L"Arial";
    FONTDESC font{};
    font.cbSizeofstruct = sizeof font;
    font.lpstrName = name;
    font.cySize.int64 = points * 10000LL;
    ::OleCreateFontIndirect(&font, IID_IDispatch, reinterpret_cast<void**>(window_->Place()->font.Put()));
    window_->Place()->Control().As<IOleControl>()->OnAmbientPropertyChange(DISPID_AMBIENT_FONT);
  };
  tell(18);  // twice the design's 9 points
  EXPECT_EQ(SizeOf(Frame()).cy, 922);
  tell(8);
  EXPECT_EQ(SizeOf(Frame()).cy, 461);
}

TEST_F(EditorTest, AColourOfTheHostsIsKeptWithTheForm) {
  const auto editor = window_->Editor();
  EXPECT_EQ(editor->put_BackColor(0x00C8FFC8), S_OK);
  const auto state = window_->Place()->Control().As<IPersistStreamInit>();
  EXPECT_EQ(state->IsDirty(), S_OK);
  ComPtr<IStream> stream;
  ::CreateStreamOnHGlobal(nullptr, TRUE, stream.Put());
  EXPECT_EQ(state->Save(stream.Get(), TRUE), S_OK);
  EXPECT_EQ(editor->put_BackColor(0x00FF0000), S_OK);
  stream->Seek({}, STREAM_SEEK_SET, nullptr);
  EXPECT_EQ(state->Load(stream.Get()), S_OK);
  OLE_COLOR color = 0;
  EXPECT_EQ(editor->get_BackColor(&color), S_OK);
  EXPECT_EQ(color, 0x00C8FFC8U);
}

TEST_F(EditorTest, MayBeClosedByTheHostWhileItTellsAnEvent) {
  const auto events = ComPtr<example::Events>(new example::Events);
  events->Connect(*window_->Editor().Get());
  bool closed = false;
  events->refreshTopDisplay = [&](const std::wstring&) {
    events->Disconnect();
    closed = window_->Close();
  };
  ::SetFocus(BoxWith(Frame(), L"Vereniging"));
  Type(L"X");
  Key(WM_KEYDOWN, VK_RETURN);
  EXPECT_TRUE(closed);
  Shut();
}

TEST_F(EditorTest, MayBeClosedByTheHostWhileTheYearByYearFormIsOpen) {
  struct Closing {
    example::MainWindow& window;
    bool formSeen = false;
    bool closed = false;
  };
  static Closing* closing = nullptr;
  Closing now{*window_};
  closing = &now;
  const UINT_PTR timer = ::SetTimer(nullptr, 0, 200, [](HWND, UINT, UINT_PTR, DWORD) {
    const HWND form = ::FindWindowW(L"BrivaneFormulier", nullptr);
    if (!form) return;
    closing->formSeen = true;
    if (!closing->closed) closing->closed = closing->window.Close();
    ::PostMessageW(form, WM_CLOSE, 0, 0);
  });
  ::SendMessageW(ButtonWith(Frame(), L"&Scenario invullen"), BM_CLICK, 0, 0);
  ::KillTimer(nullptr, timer);
  EXPECT_TRUE(now.formSeen);
  EXPECT_TRUE(now.closed);
  EXPECT_EQ(::FindWindowW(L"BrivaneFormulier", nullptr), nullptr);
  Shut();
}

TEST_F(EditorTest, LosesNothingInAHundredTimesOpenedTypedInAndClosed) {
  const auto once = [&] {
    ::SetFocus(BoxWith(Frame(), L"Vereniging"));
    Type(L"x");
    Key(WM_KEYDOWN, VK_RETURN);
    Shut();
  };
  Counts first;
  for (int run = 0; run < 100; ++run) {
    once();
    if (run == 19) first = CountNow();
    Open();
  }
  once();
  const Counts last = CountNow();
  EXPECT_GT(first.gdi, 0U);
  EXPECT_GT(first.windows, 0U);
  EXPECT_GT(first.bytes, 0U);
  EXPECT_EQ(last.gdi, first.gdi);
  EXPECT_EQ(last.windows, first.windows);
  EXPECT_LT(last.bytes, first.bytes + 81 * kLeftByLabels);
  std::printf("after 20: %zu gdi, %zu windows, %zu bytes; after 101: %zu gdi, %zu windows, %zu bytes\n", first.gdi,
              first.windows, first.bytes, last.gdi, last.windows, last.bytes);
}

TEST(Unloading, TheLibraryLeavesTheProcessWhenNothingOfItIsInUse) {
  const Ole ole;
  {
    Library library;
    example::MainWindow window;
    const auto application = example::NewApplication(window.Handle());
    ASSERT_EQ(window.Open(application.Get()), S_OK);
    Pump();
    EXPECT_FALSE(library.CanUnload());
    EXPECT_TRUE(window.Close());
    Pump();
    EXPECT_TRUE(library.CanUnload());
    EXPECT_TRUE(IsLibraryInMemory());
  }
  EXPECT_FALSE(IsLibraryInMemory());
}

}  // namespace
}  // namespace brivane::component::test
