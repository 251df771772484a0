#include "tests/component/control/ControlTest.h"

namespace brivane::component::test {
namespace {

/// A library that is loaded while this stands.
class Library {
 public:
  explicit Library(const wchar_t* name) : handle_(::LoadLibraryW(name)) {}
  ~Library() { ::FreeLibrary(handle_); }
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;
  template <class Function> [[nodiscard]] Function* Get(const char* name) const {
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(::GetProcAddress(handle_, name)));
  }

 private:
  HMODULE handle_;
};

using InitFunction = BOOL WINAPI();
using CreateFunction = HRESULT WINAPI(LPCOLESTR name, HWND window, IStream* stream, IUnknown** container,
                                      IUnknown** control, REFIID sink, IUnknown* listener);

/// The control in a window of the operating system's control container.
class AtlTest : public ::testing::TestWithParam<const wchar_t*> {
 protected:
  AtlTest() { library_.Get<InitFunction>("AtlAxWinInit")(); }

  void SetUp() override {
    window_ = ::CreateWindowExW(0, L"STATIC", L"atl", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 100, 100, 300, 200,
                                nullptr, nullptr, nullptr, nullptr);
  }
  void TearDown() override {
    dummy_.Reset();
    if (::IsWindow(window_)) ::DestroyWindow(window_);
    EXPECT_EQ(Dummy::Live(), 0);
  }

  void Create(IStream* stream = nullptr) {
    wchar_t name[64];
    ::StringFromGUID2(kDummyClass, name, 64);
    ComPtr<IUnknown> control;
    ASSERT_EQ(library_.Get<CreateFunction>("AtlAxCreateControlEx")(name, window_, stream, nullptr, control.Put(),
                                                                   IID_NULL, nullptr),
              S_OK);
    dummy_ = ComPtr<Dummy>(static_cast<Dummy*>(control.Get()));
  }
  [[nodiscard]] HWND Frame() const { return dummy_->Control().Window(); }

  Ole ole_;
  Library library_{GetParam()};
  DummyFactory factory_;
  HWND window_ = nullptr;
  ComPtr<Dummy> dummy_;
};

TEST_P(AtlTest, StandsInTheWindowAsWideAsItIs) {
  Create();
  ASSERT_NE(Frame(), nullptr);
  EXPECT_EQ(::GetAncestor(Frame(), GA_PARENT), window_);
  EXPECT_EQ(PlaceOf(Frame()), "0,0 300x100");
  EXPECT_TRUE(::IsWindowVisible(dummy_->first));
}

TEST_P(AtlTest, FollowsTheWindowsWidth) {
  Create();
  ::SetWindowPos(window_, nullptr, 0, 0, 450, 250, SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_EQ(PlaceOf(Frame()), "0,0 450x100");
  EXPECT_EQ(dummy_->Extent().width.value, 450 * 15);
}

TEST_P(AtlTest, TakesTheFocusAndKeys) {
  Create();
  ::SetFocus(Frame());
  EXPECT_EQ(::GetFocus(), dummy_->first);
  ::SendMessageW(::GetFocus(), WM_CHAR, 'x', 1);
  EXPECT_EQ(dummy_->TextOf(dummy_->first), L"x");
}

TEST_P(AtlTest, LoadsWhatWasSaved) {
  Create();
  dummy_->Control().PutBackColor({0x0000FF});
  ComPtr<IStream> stream;
  ::CreateStreamOnHGlobal(nullptr, TRUE, stream.Put());
  EXPECT_EQ(ComPtr<IUnknown>(&dummy_->Outer()).As<IPersistStreamInit>()->Save(stream.Get(), TRUE), S_OK);
  stream->Seek({}, STREAM_SEEK_SET, nullptr);
  TearDown();
  SetUp();
  Create(stream.Get());
  EXPECT_EQ(dummy_->BackColor(), host::Color{0x0000FF});
}

TEST_P(AtlTest, IsClosedWithTheWindow) {
  Create();
  const auto kept = dummy_;
  ::DestroyWindow(window_);
  EXPECT_EQ(Frame(), nullptr);
  EXPECT_TRUE(::IsWindow(kept->first));
}

INSTANTIATE_TEST_SUITE_P(Versions, AtlTest, ::testing::Values(L"atl.dll", L"atl100.dll"));

}  // namespace
}  // namespace brivane::component::test
