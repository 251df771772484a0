// The year-by-year form as a host shows it: a window of the library's own, above the one that the host names.

#include <functional>

#include "tests/component/library/ComponentTest.h"

namespace brivane::component {
namespace {

class ModalTest : public ComponentTest {
 protected:
  ModalTest() { SetActiveWindow(active_); }
  ~ModalTest() override {
    DestroyWindow(active_);
    DestroyWindow(owner_);
  }

  /// A form for five years of the host's amount.
  ComPtr<IfrmScenario> NewForm() {
    auto form = Create<IfrmScenario>(CLSID_frmScenario);
    EXPECT_EQ(form->Invoeren(host_.bedrag.Get(), 5, 0, 0, VARIANT_FALSE, VARIANT_FALSE, 0), S_OK);
    return form;
  }
  /// Does something once, as soon as the form is seen, then closes it.
  static void WhenOpen(std::function<void(HWND)> body) {
    body_ = std::move(body);
    SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR timer, DWORD) {
      const HWND form = FindWindowW(L"BrivaneFormulier", nullptr);
      if (!form || !IsWindowVisible(form)) return;
      KillTimer(nullptr, timer);
      std::exchange(body_, nullptr)(form);
      PostMessageW(form, WM_CLOSE, 0, 0);
    });
  }
  Variant Owner() const { return Variant(static_cast<std::int32_t>(reinterpret_cast<INT_PTR>(owner_))); }

  static HWND MakeWindow() {
    return CreateWindowExW(0, L"STATIC", L"host", WS_POPUP | WS_VISIBLE, 100, 100, 600, 400, nullptr, nullptr, nullptr,
                           nullptr);
  }

  static inline std::function<void(HWND)> body_;
  FakeHost host_;
  /// The window that the host names, and another one, which the person is in.
  const HWND owner_ = MakeWindow();
  const HWND active_ = MakeWindow();
};

TEST_F(ModalTest, TheFormBelongsToTheWindowThatTheHostNames) {
  const auto form = NewForm();
  bool seen = false;
  WhenOpen([&](HWND window) {
    seen = true;
    EXPECT_EQ(GetWindow(window, GW_OWNER), owner_);
    EXPECT_FALSE(IsWindowEnabled(owner_));
    // It is shown once at a time, and no longer to be filled.
    EXPECT_EQ(form->Tonen(Owner().Raw()), static_cast<HRESULT>(0x800A0005));
    EXPECT_EQ(form->Invoeren(host_.bedrag.Get(), 5, 0, 0, VARIANT_FALSE, VARIANT_FALSE, 0),
              static_cast<HRESULT>(0x800A0005));
  });
  EXPECT_EQ(form->Tonen(Owner().Raw()), S_OK);
  EXPECT_TRUE(seen) << "Tonen must not return before the form is closed";
  EXPECT_TRUE(IsWindowEnabled(owner_));
  EXPECT_FALSE(IsWindowVisible(FindWindowW(L"BrivaneFormulier", nullptr)));
}

TEST_F(ModalTest, WithoutANameTheFormBelongsToTheWindowThatIsActive) {
  const auto form = NewForm();
  bool seen = false;
  WhenOpen([&](HWND window) {
    seen = true;
    EXPECT_EQ(GetWindow(window, GW_OWNER), active_);
  });
  EXPECT_EQ(form->Tonen(Variant::Missing().Raw()), S_OK);
  EXPECT_TRUE(seen);
}

TEST_F(ModalTest, TheFormGoesWithTheWindowThatItBelongsTo) {
  const auto form = NewForm();
  bool seen = false;
  WhenOpen([&](HWND) {
    seen = true;
    DestroyWindow(owner_);
  });
  EXPECT_EQ(form->Tonen(Owner().Raw()), S_OK);
  EXPECT_TRUE(seen);
  EXPECT_TRUE(IsWindowEnabled(active_));
}

TEST_F(ModalTest, TheHostsObjectsAreLetGoOfWhenTheFormCloses) {
  const auto form = NewForm();
  const int alive = FakeObject::alive;
  host_ = FakeHost();
  EXPECT_EQ(FakeObject::alive, alive + 1) << "the amount of the first host is held";
  WhenOpen([](HWND) {});
  EXPECT_EQ(form->Tonen(Owner().Raw()), S_OK);
  EXPECT_EQ(FakeObject::alive, alive);
}

TEST_F(ModalTest, TheEditorsFormBelongsToTheHostsMainWindow) {
  const auto assumptions = FakeObject::Make();
  assumptions->Answers(L"Leeftijd", Variant(std::int16_t{67}));
  host_.application->Answers(L"Uitgangspunten", Variant(assumptions->Dispatch().Get()));
  host_.application->Answers(L"Hoofdvenster", Owner());
  const auto editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
  ASSERT_EQ(editor->SetApplication(host_.application.Get(), 0, 1), S_OK);
  bool seen = false;
  WhenOpen([&](HWND window) {
    seen = true;
    EXPECT_EQ(GetWindow(window, GW_OWNER), owner_);
    EXPECT_FALSE(IsWindowEnabled(owner_));
  });
  Perform(DoorOf(editor), L"cmdScenario", L"press", Variant());
  EXPECT_TRUE(seen);
  EXPECT_EQ(host_.reports, 0);
  EXPECT_TRUE(IsWindowEnabled(owner_));
}

}  // namespace
}  // namespace brivane::component
