// A host that lets go of an editor while the editor is at work: what was going on ends quietly, and nothing of the host
// is touched when the call by which it let go has come back.

#include <functional>
#include <string>
#include <tuple>
#include <utility>

#include "tests/component/library/ComponentTest.h"

namespace brivane::component {
namespace {

/// What the editor is doing.
enum class At { Form, Question, Put };
/// How the host lets go.
enum class By { Close, Nothing, LastRelease };

std::wstring ClassOf(HWND window) {
  wchar_t name[64]{};
  GetClassNameW(window, name, 64);
  return name;
}

/// A window of this thread and what stands in it, at whatever depth; null where there is none that is wanted.
HWND FindWindowOfThread(const std::function<bool(HWND)>& wanted) {
  struct Search {
    const std::function<bool(HWND)>& wanted;
    HWND found = nullptr;
  } search{wanted};
  const auto look = [](HWND window, LPARAM data) -> BOOL {
    auto& now = *reinterpret_cast<Search*>(data);
    if (now.wanted(window)) now.found = window;
    return now.found == nullptr;
  };
  struct Both {
    Search& search;
    WNDENUMPROC look;
  } both{search, look};
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM data) -> BOOL {
        auto& now = *reinterpret_cast<Both*>(data);
        if (now.look(window, reinterpret_cast<LPARAM>(&now.search)))
          EnumChildWindows(window, now.look, reinterpret_cast<LPARAM>(&now.search));
        return now.search.found == nullptr;
      },
      reinterpret_cast<LPARAM>(&both));
  return search.found;
}

bool IsShown(const wchar_t* className) {
  return FindWindowOfThread(
             [&](HWND window) { return IsWindowVisible(window) != FALSE && ClassOf(window) == className; }) != nullptr;
}

HWND ControlWith(const wchar_t* className, const std::wstring& text) {
  return FindWindowOfThread([&](HWND window) {
    wchar_t shown[128]{};
    return ClassOf(window) == className && GetWindowTextW(window, shown, 128) != 0 && shown == text;
  });
}

constexpr const wchar_t* kForm = L"BrivaneFormulier";
constexpr const wchar_t* kBox = L"#32770";

class AbandonedTest : public ComponentTest, public testing::WithParamInterface<std::tuple<At, By>> {
 protected:
  AbandonedTest() {
    const auto assumptions = FakeObject::Make();
    assumptions->Answers(L"Leeftijd", Variant(std::int16_t{67}));
    host_.application->Answers(L"Uitgangspunten", Variant(assumptions->Dispatch().Get()));
    host_.application->Answers(L"Hoofdvenster", Variant(static_cast<std::int32_t>(reinterpret_cast<INT_PTR>(owner_))));
    host_.dossier->Answers(L"VerwijderUitVoorstel", Variant());
    editor_ = Create<IVrijeKolom>(CLSID_VrijeKolom);
    EXPECT_EQ(editor_->SetApplication(host_.application.Get(), 0, 1), S_OK);
    SetActiveWindow(owner_);
  }
  ~AbandonedTest() override {
    editor_.Reset();
    DestroyWindow(owner_);
  }

  void LetGo(By by) {
    switch (by) {
      case By::Close: editor_.As<IOleObject>()->Close(OLECLOSE_NOSAVE); break;
      case By::Nothing: editor_->SetApplication(nullptr, 0, 0); break;
      case By::LastRelease: editor_.Reset(); break;
    }
    letGo_ = true;
    reached_ = FakeObject::reached;
  }

  /// Does something once, as soon as a window of that class is seen.
  static void WhenShown(const wchar_t* className, std::function<void()> body) {
    className_ = className;
    body_ = std::move(body);
    SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR timer, DWORD) {
      if (!IsShown(className_)) return;
      KillTimer(nullptr, timer);
      std::exchange(body_, nullptr)();
    });
  }

  /// Has the editor do it, and the host let go meanwhile.
  void Run(At at, By by) {
    VARIANT cancel{};
    cancel.vt = VT_BOOL;
    switch (at) {
      case At::Form:
        WhenShown(kForm, [this, by] { LetGo(by); });
        SendMessageW(ControlWith(L"Button", L"&Scenario invullen"), BM_CLICK, 0, 0);
        break;
      case At::Question: {
        WhenShown(kBox, [this, by] { LetGo(by); });
        IVrijeKolom* const bare = editor_.Get();        // as a caller that holds it no more than the call lasts
        EXPECT_EQ(bare->Validation(&cancel, 1), S_OK);  // there is no start date
        break;
      }
      case At::Put: {
        host_.kolom->raw = [this, by](DISPPARAMS& parameters) {
          if (parameters.cNamedArgs == 1 && !letGo_) LetGo(by);
        };
        SetWindowTextW(ControlWith(L"Edit", L"Krant"), L"Vereniging");
        IVrijeKolom* const bare = editor_.Get();
        EXPECT_EQ(bare->Validation(&cancel, 2), S_OK);
        break;
      }
    }
    EXPECT_EQ(cancel.boolVal, VARIANT_FALSE);
  }

  static inline const wchar_t* className_ = nullptr;
  static inline std::function<void()> body_;
  FakeHost host_;
  const HWND owner_ = CreateWindowExW(0, L"STATIC", L"host", WS_POPUP | WS_VISIBLE, 100, 100, 600, 400, nullptr,
                                      nullptr, nullptr, nullptr);
  ComPtr<IVrijeKolom> editor_;
  bool letGo_ = false;
  int reached_ = 0;
};

TEST_P(AbandonedTest, WhatWasGoingOnEndsQuietly) {
  const auto [at, by] = GetParam();
  Run(at, by);
  ASSERT_TRUE(letGo_);
  EXPECT_EQ(FakeObject::reached, reached_) << "the host was called after it let go";
  EXPECT_EQ(host_.reports, 0);
  EXPECT_FALSE(IsShown(kForm));
  EXPECT_FALSE(IsShown(kBox));
  EXPECT_TRUE(IsWindowEnabled(owner_));
  host_.kolom->raw = nullptr;
  host_.application->AddRef();
  EXPECT_EQ(host_.application->Release(), 1U) << "the host is still held";
  if (by == By::LastRelease) return;

  // It can be used again.
  Bindingstoestand state{};
  EXPECT_EQ(editor_->get_Toestand(&state), S_OK);
  EXPECT_EQ(state, BindingLosgelaten);
  EXPECT_EQ(editor_->SetApplication(host_.application.Get(), 0, 1), S_OK);
  EXPECT_EQ(editor_->get_Toestand(&state), S_OK);
  EXPECT_EQ(state, BindingGelukt);
  EXPECT_EQ(Perform(DoorOf(editor_), L"TxtOm", L"enter", Variant("Krantje")), 0);
  EXPECT_EQ(As<std::string>(host_.kolom->members.at(L"Omschrijving")({})), "Krantje");
  EXPECT_EQ(host_.reports, 0);
}

std::string NameOf(const testing::TestParamInfo<std::tuple<At, By>>& test) {
  constexpr const char* kAt[] = {"Form", "Question", "Put"};
  constexpr const char* kBy[] = {"Close", "Nothing", "LastRelease"};
  return std::string(kAt[static_cast<int>(std::get<0>(test.param))]) + "By" +
         kBy[static_cast<int>(std::get<1>(test.param))];
}

INSTANTIATE_TEST_SUITE_P(Anywhere, AbandonedTest,
                         testing::Combine(testing::Values(At::Form, At::Question, At::Put),
                                          testing::Values(By::Close, By::Nothing, By::LastRelease)),
                         NameOf);

class BindingTest : public ComponentTest {};

TEST_F(BindingTest, TheHostIsToldWhatBecameOfABinding) {
  FakeHost host;
  const auto editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
  const auto state = [&] {
    Bindingstoestand told{};
    EXPECT_EQ(editor->get_Toestand(&told), S_OK);
    return told;
  };
  EXPECT_EQ(state(), BindingNogNiet);
  EXPECT_EQ(editor->SetApplication(host.application.Get(), 0, 1), S_OK);
  EXPECT_EQ(state(), BindingGelukt);
  EXPECT_EQ(editor->SetApplication(host.application.Get(), 9, 2), S_FALSE) << "there is no such loan";
  EXPECT_EQ(state(), BindingMislukt);
  EXPECT_EQ(host.reports, 1);
  EXPECT_EQ(editor->SetApplication(host.application.Get(), 0, 1), S_OK);
  EXPECT_EQ(state(), BindingGelukt);
  EXPECT_EQ(editor->SetApplication(nullptr, 0, 0), S_OK);
  EXPECT_EQ(state(), BindingLosgelaten);
}

TEST_F(BindingTest, WhatIsAddedToTheControlsIsInTheLanguageThatTheHostRegistered) {
  const std::wstring key = L"Software\\Classes\\CLSID\\{9E623786-EB13-493A-A455-FD19036B8E3E}\\HostClasses";
  const std::wstring english = L"en";
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), L"Language", REG_SZ, english.c_str(),
                  static_cast<DWORD>((english.size() + 1) * sizeof(wchar_t)));
  {
    FakeHost host;
    const auto editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
    EXPECT_EQ(editor->SetApplication(host.application.Get(), 9, 2), S_FALSE);
    EXPECT_NE(ControlWith(L"BrivaneVlak", L"No free column is open."), nullptr);
  }
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, key.c_str());
}

TEST_F(BindingTest, AfterOneThatFailedNothingIsShownAndNothingIsTaken) {
  FakeHost host;
  const auto editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
  EXPECT_EQ(editor->SetApplication(host.application.Get(), 0, 1), S_OK);
  const HWND box = ControlWith(L"Edit", L"Krant");
  const HWND button = ControlWith(L"Button", L"&Scenario invullen");
  const auto isVisible = [](HWND window) { return (GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE) != 0; };
  ASSERT_TRUE(isVisible(box));
  EXPECT_EQ(editor->SetApplication(host.application.Get(), 9, 2), S_FALSE);
  EXPECT_FALSE(isVisible(box));
  EXPECT_NE(ControlWith(L"BrivaneVlak", L"Er is geen vrije kolom geopend."), nullptr);
  const int reached = FakeObject::reached;
  SendMessageW(button, BM_CLICK, 0, 0);
  EXPECT_EQ(FakeObject::reached, reached);
  CONTROLINFO info{sizeof info, nullptr, 0, 0};
  EXPECT_EQ(editor.As<IOleControl>()->GetControlInfo(&info), S_OK);
  EXPECT_EQ(info.cAccel, 0) << "no letter leads anywhere";
  EXPECT_EQ(editor->SetApplication(host.application.Get(), 0, 1), S_OK);
  EXPECT_TRUE(isVisible(box));
  EXPECT_EQ(editor.As<IOleControl>()->GetControlInfo(&info), S_OK);
  EXPECT_GT(info.cAccel, 0);
}

}  // namespace
}  // namespace brivane::component
