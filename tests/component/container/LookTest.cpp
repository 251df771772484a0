// How the editor looks: on the screen, and drawn by its container.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "examples/windows/container/Host.h"
#include "examples/windows/container/MainWindow.h"
#include "tests/component/container/Library.h"

namespace brivane::component::test {
namespace {

constexpr int kWidth = 830;
constexpr int kHeight = 461;

// The designed size of the editor in pixels: 12450 by 6915 twips.

/// A drawing of 32 bits a pixel.
class Paper {
 public:
  Paper() : drawing_(::CreateCompatibleDC(nullptr)) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, kWidth, -kHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    bitmap_ = ::CreateDIBSection(drawing_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    pixels_ = static_cast<const std::uint32_t*>(bits);
    old_ = ::SelectObject(drawing_, bitmap_);
  }
  ~Paper() {
    ::SelectObject(drawing_, old_);
    ::DeleteObject(bitmap_);
    ::DeleteDC(drawing_);
  }
  Paper(const Paper&) = delete;
  Paper& operator=(const Paper&) = delete;

  [[nodiscard]] HDC Drawing() const { return drawing_; }
  [[nodiscard]] std::vector<std::uint32_t> Pixels() const {
    ::GdiFlush();
    std::vector<std::uint32_t> pixels(pixels_, pixels_ + kWidth * kHeight);
    for (std::uint32_t& pixel : pixels) pixel &= 0x00FFFFFF;
    return pixels;
  }
  /// A picture that a person can look at.
  void Write(const char* file) const {
    std::FILE* out = std::fopen(file, "wb");
    if (!out) return;
    std::fprintf(out, "P6\n%d %d\n255\n", kWidth, kHeight);
    for (const std::uint32_t pixel : Pixels()) {
      const unsigned char rgb[]{static_cast<unsigned char>(pixel >> 16), static_cast<unsigned char>(pixel >> 8),
                                static_cast<unsigned char>(pixel)};
      std::fwrite(rgb, 1, sizeof rgb, out);
    }
    std::fclose(out);
  }

 private:
  HDC drawing_;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ old_ = nullptr;
  const std::uint32_t* pixels_ = nullptr;
};

/// Another editor, which was never on the screen, with the same record.
ComPtr<IVrijeKolom> NewEditor(IDispatch* application) {
  ComPtr<IVrijeKolom> editor;
  EXPECT_EQ(::CoCreateInstance(CLSID_VrijeKolom, nullptr, CLSCTX_INPROC_SERVER, IID_IVrijeKolom,
                               reinterpret_cast<void**>(editor.Put())),
            S_OK);
  EXPECT_EQ(editor->SetApplication(application, 0, 1), S_OK);
  return editor;
}

class LookTest : public ::testing::Test {
 protected:
  /// The example's window as wide as the editor is designed, the focus beside the editor.
  void SetUp() override {
    application_ = example::NewApplication(window_.Handle());
    ASSERT_EQ(window_.Open(application_.Get()), S_OK);
    RECT room{0, 0, kWidth + 24, 600};
    ::AdjustWindowRectEx(&room, WS_OVERLAPPEDWINDOW, FALSE, 0);
    ::SetWindowPos(window_.Handle(), nullptr, 0, 0, room.right - room.left, room.bottom - room.top, SWP_NOZORDER);
    ::SetFocus(window_.Note());
    Pump();
  }
  void TearDown() override {
    EXPECT_TRUE(window_.Close());
    Pump();
    EXPECT_TRUE(library_.CanUnload());
  }

  [[nodiscard]] HWND Frame() const {
    HWND frame = nullptr;
    window_.Place()->Control().As<IOleInPlaceObject>()->GetWindow(&frame);
    return frame;
  }
  /// What stands on the screen.
  void Take(const Paper& paper) const {
    RECT whole{};
    ::GetClientRect(Frame(), &whole);
    EXPECT_EQ(whole.right, kWidth);
    EXPECT_EQ(whole.bottom, kHeight);
    const HDC screen = ::GetDC(Frame());
    ::BitBlt(paper.Drawing(), 0, 0, kWidth, kHeight, screen, 0, 0, SRCCOPY);
    ::ReleaseDC(Frame(), screen);
  }
  static void ExpectSame(const Paper& expected, const Paper& actual) {
    const auto pixels = actual.Pixels();
    const auto wanted = expected.Pixels();
    EXPECT_GT(std::count(wanted.begin(), wanted.end(), 0U), 1000);  // the letters
    std::size_t different = 0;
    for (std::size_t i = 0; i < wanted.size(); ++i) different += pixels[i] != wanted[i];
    EXPECT_EQ(different, 0U);
    if (different == 0) return;
    expected.Write("expected.ppm");
    actual.Write("actual.ppm");
  }

  Ole ole_;
  Library library_;
  example::MainWindow window_;
  ComPtr<IDispatch> application_;
};

TEST_F(LookTest, DrawnByItsContainerItLooksToThePixelAsOnTheScreen) {
  const Paper seen;
  Take(seen);
  const auto other = NewEditor(application_.Get());
  const Paper drawn;
  const RECTL bounds{0, 0, kWidth, kHeight};
  EXPECT_EQ(other.As<IViewObject2>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, drawn.Drawing(), &bounds,
                                           nullptr, nullptr, 0),
            S_OK);
  ExpectSame(seen, drawn);
}

/// What a metafile holds: how many bytes, and which texts among them.
struct Recorded {
  std::vector<unsigned char> bytes;

  [[nodiscard]] bool Holds(const std::string& text) const {
    return std::search(bytes.begin(), bytes.end(), text.begin(), text.end()) != bytes.end();
  }
  [[nodiscard]] bool Holds(const std::wstring& text) const {
    const auto* const first = reinterpret_cast<const unsigned char*>(text.data());
    return std::search(bytes.begin(), bytes.end(), first, first + text.size() * sizeof(wchar_t)) != bytes.end();
  }
};

TEST_F(LookTest, AMetafileKeepsItInLinesAndText) {
  const auto editor = NewEditor(application_.Get());
  const RECTL bounds{0, 0, kWidth, kHeight};
  const auto draw = [&](HDC drawing) {
    EXPECT_EQ(editor.As<IViewObject2>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, drawing, &bounds,
                                              nullptr, nullptr, 0),
              S_OK);
  };
  Recorded recorded;
  const HDC enhanced = ::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
  draw(enhanced);
  const HENHMETAFILE file = ::CloseEnhMetaFile(enhanced);
  recorded.bytes.resize(::GetEnhMetaFileBits(file, 0, nullptr));
  ::GetEnhMetaFileBits(file, static_cast<UINT>(recorded.bytes.size()), recorded.bytes.data());
  EXPECT_LT(recorded.bytes.size(), 100'000U);
  for (const wchar_t* text : {L"Vereniging", L"Omschrijving", L"Correctie last", L"Nee"})
    EXPECT_TRUE(recorded.Holds(std::wstring(text))) << text;
  EXPECT_TRUE(recorded.Holds(std::wstring(L"Scenario invullen")));
  EXPECT_FALSE(recorded.Holds(std::wstring(L"&Scenario invullen"))) << "the mark of a mnemonic";

  // Played, it fills the place: in its upper left corner the colour of a form, with letters in black.
  const Paper played;
  const RECT whole{0, 0, kWidth, kHeight};
  ::PlayEnhMetaFile(played.Drawing(), file, &whole);
  const auto pixels = played.Pixels();
  EXPECT_GT(std::count(pixels.begin(), pixels.end(), 0U), 1000);
  if (::GetEnvironmentVariableW(L"BRIVANE_PICTURES", nullptr, 0) != 0) played.Write("metafile.ppm");
  ::DeleteEnhMetaFile(file);

  // The older kind, in which no text can be measured.
  const HDC old = ::CreateMetaFileW(nullptr);
  draw(old);
  const HMETAFILE oldFile = ::CloseMetaFile(old);
  recorded.bytes.resize(::GetMetaFileBitsEx(oldFile, 0, nullptr));
  ::GetMetaFileBitsEx(oldFile, static_cast<UINT>(recorded.bytes.size()), recorded.bytes.data());
  EXPECT_LT(recorded.bytes.size(), 100'000U);
  EXPECT_TRUE(recorded.Holds(std::string("Vereniging")));
  ::DeleteMetaFile(oldFile);
}

TEST_F(LookTest, LooksTheSameAfterTheFocusWentThroughIt) {
  const Paper before;
  Take(before);
  window_.Place()->Enter(nullptr);
  while (::GetFocus() != window_.Note()) {
    MSG tab{};
    tab.hwnd = ::GetFocus();
    tab.message = WM_KEYDOWN;
    tab.wParam = VK_TAB;
    tab.lParam = 1;
    window_.Dispatch(tab);
    Pump();
  }
  const Paper after;
  Take(after);
  ExpectSame(before, after);
}

}  // namespace
}  // namespace brivane::component::test
