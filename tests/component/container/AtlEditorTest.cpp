// The library's controls in the operating system's own control container.

#include <gtest/gtest.h>

#include <cstring>

#include "examples/windows/container/Host.h"
#include "tests/component/container/Counts.h"
#include "tests/component/container/Library.h"

namespace brivane::component::test {
namespace {

class AtlEditorTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(library_.IsLoaded());
    atl_ = ::LoadLibraryW(L"atl100.dll");
    using Init = BOOL WINAPI();
    Get<Init>("AtlAxWinInit")();
  }
  void TearDown() override {
    Pump();
    EXPECT_TRUE(library_.CanUnload());
    ::FreeLibrary(atl_);
  }
  template <class Function> [[nodiscard]] Function* Get(const char* name) const {
    Function* function = nullptr;
    const FARPROC found = ::GetProcAddress(atl_, name);
    std::memcpy(&function, &found, sizeof function);
    return function;
  }

  /// A window with a control in it, as the container makes it from the name of a class.
  void Create(const CLSID& classId) {
    window_ = ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 20, 20, 900, 600, nullptr,
                                nullptr, nullptr, nullptr);
    wchar_t name[64];
    ::StringFromGUID2(classId, name, 64);
    using Make = HRESULT WINAPI(LPCOLESTR, HWND, IStream*, IUnknown**, IUnknown**, REFIID, IUnknown*);
    ASSERT_EQ(Get<Make>("AtlAxCreateControlEx")(name, window_, nullptr, nullptr, control_.Put(), IID_NULL, nullptr),
              S_OK);
  }
  void Destroy() {
    control_.Reset();
    ::DestroyWindow(window_);
    Pump();
  }
  [[nodiscard]] HWND Frame() const {
    HWND frame = nullptr;
    control_.As<IOleInPlaceObject>()->GetWindow(&frame);
    return frame;
  }

  Ole ole_;
  Library library_;
  HMODULE atl_ = nullptr;
  HWND window_ = nullptr;
  ComPtr<IUnknown> control_;
};

TEST_F(AtlEditorTest, TheEditorStandsInItsWindowAndIsBound) {
  Create(CLSID_VrijeKolom);
  EXPECT_EQ(::GetAncestor(Frame(), GA_PARENT), window_);
  EXPECT_TRUE(::IsWindowVisible(Frame()));
  RECT frame{};
  ::GetClientRect(Frame(), &frame);
  EXPECT_EQ(frame.right, 900);

  const auto application = example::NewApplication(window_);
  EXPECT_EQ(control_.As<IVrijeKolom>()->SetApplication(application.Get(), 0, 1), S_OK);
  Destroy();
  application->AddRef();
  EXPECT_EQ(application->Release(), 1U);
}

TEST_F(AtlEditorTest, TheEditorFollowsTheWidthOfItsWindow) {
  Create(CLSID_VrijeKolom);
  ::SetWindowPos(window_, nullptr, 0, 0, 1000, 600, SWP_NOMOVE | SWP_NOZORDER);
  RECT frame{};
  ::GetClientRect(Frame(), &frame);
  EXPECT_EQ(frame.right, 1000);
  Destroy();
}

TEST_F(AtlEditorTest, TheExplanationStandsThereByItself) {
  Create(CLSID_Toelichting);
  EXPECT_TRUE(::IsWindowVisible(Frame()));
  SIZEL extent{};
  EXPECT_EQ(control_.As<IOleObject>()->GetExtent(DVASPECT_CONTENT, &extent), S_OK);
  EXPECT_EQ(extent.cx, 23813);  // 900 pixels: 13500 twips
  EXPECT_GT(extent.cy, 0);
  Destroy();
}

TEST_F(AtlEditorTest, TakesTheFocusInItsFirstPart) {
  Create(CLSID_VrijeKolom);
  ::SetFocus(Frame());
  EXPECT_TRUE(::IsChild(Frame(), ::GetFocus()));
  EXPECT_NE(::GetFocus(), Frame());
  Destroy();
}

TEST_F(AtlEditorTest, LosesNothingInAHundredWindows) {
  const auto once = [&] {
    Create(CLSID_VrijeKolom);
    control_.As<IVrijeKolom>()->SetApplication(example::NewApplication(window_).Get(), 0, 1);
    Pump();
    Destroy();
  };
  for (int run = 0; run < 20; ++run) once();
  const Counts first = CountNow();
  for (int run = 0; run < 80; ++run) once();
  const Counts last = CountNow();
  EXPECT_GT(first.gdi, 0U);
  EXPECT_GT(first.windows, 0U);
  EXPECT_GT(first.bytes, 0U);
  EXPECT_EQ(last.gdi, first.gdi);
  EXPECT_EQ(last.windows, first.windows);
  EXPECT_LT(last.bytes, first.bytes + 80 * kLeftByLabels);
  std::printf("after 20: %zu gdi, %zu windows, %zu bytes; after 100: %zu gdi, %zu windows, %zu bytes\n", first.gdi,
              first.windows, first.bytes, last.gdi, last.windows, last.bytes);
}

}  // namespace
}  // namespace brivane::component::test
