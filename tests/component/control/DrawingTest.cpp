#include "tests/component/control/ControlTest.h"

namespace brivane::component::test {
namespace {

constexpr COLORREF kOutside = RGB(1, 2, 3);
constexpr host::Color kMint{0x00C8FFC8};

/// A picture in memory to draw in, every pixel kOutside at first.
class Paper {
 public:
  Paper(int width, int height) {
    const HDC screen = ::GetDC(nullptr);
    drawing_ = ::CreateCompatibleDC(screen);
    bitmap_ = ::CreateCompatibleBitmap(screen, width, height);
    ::ReleaseDC(nullptr, screen);
    old_ = ::SelectObject(drawing_, bitmap_);
    const RECT whole{0, 0, width, height};
    const HBRUSH brush = ::CreateSolidBrush(kOutside);
    ::FillRect(drawing_, &whole, brush);
    ::DeleteObject(brush);
  }
  ~Paper() {
    ::SelectObject(drawing_, old_);
    ::DeleteObject(bitmap_);
    ::DeleteDC(drawing_);
  }
  Paper(const Paper&) = delete;
  Paper& operator=(const Paper&) = delete;

  [[nodiscard]] HDC Drawing() const { return drawing_; }
  [[nodiscard]] COLORREF At(int x, int y) const { return ::GetPixel(drawing_, x, y); }
  /// Pixels of a colour in a rectangle.
  [[nodiscard]] int Count(const RECT& where, COLORREF color) const {
    int count = 0;
    for (int y = where.top; y < where.bottom; ++y)
      for (int x = where.left; x < where.right; ++x) count += At(x, y) == color;
    return count;
  }

 private:
  HDC drawing_;
  HBITMAP bitmap_;
  HGDIOBJ old_;
};

class DrawingTest : public ControlTest {
 protected:
  HRESULT Draw(const Paper& paper, const RECTL& bounds) {
    return container.As<IViewObject2>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, paper.Drawing(), &bounds,
                                              nullptr, nullptr, 0);
  }
};

TEST_F(DrawingTest, LeavesTheCallersContextAsItWas) {
  const Paper paper(300, 200);
  ::SetStretchBltMode(paper.Drawing(), BLACKONWHITE);
  EXPECT_EQ(Draw(paper, {10, 20, 210, 120}), S_OK);
  EXPECT_EQ(::GetStretchBltMode(paper.Drawing()), BLACKONWHITE);
}

TEST_F(DrawingTest, DrawsItselfWithItsBoxesBeforeItWasEverOnTheScreen) {
  dummy->SetBackColor(kMint);
  const Paper paper(300, 200);
  EXPECT_EQ(Draw(paper, {10, 20, 210, 120}), S_OK);
  EXPECT_EQ(paper.At(9, 20), kOutside);
  EXPECT_EQ(paper.At(10, 20), 0x00C8FFC8U);
  EXPECT_EQ(paper.At(209, 119), 0x00C8FFC8U);
  EXPECT_EQ(paper.At(210, 119), kOutside);
  // The first box: from 20,30 and 100 by 24, with an edge of two pixels and white inside.
  EXPECT_EQ(paper.Count({23, 33, 116, 50}, RGB(255, 255, 255)), 93 * 17);
  EXPECT_NE(paper.At(20, 30), 0x00C8FFC8U);
  EXPECT_NE(paper.At(20, 30), RGB(255, 255, 255));
}

TEST_F(DrawingTest, DrawsWhatWasTyped) {
  ::SetWindowTextW(dummy->first, L"MMMM");
  const Paper paper(200, 100);
  EXPECT_EQ(Draw(paper, {0, 0, 200, 100}), S_OK);
  EXPECT_GT(paper.Count({12, 12, 108, 32}, RGB(0, 0, 0)), 20);
  EXPECT_EQ(paper.Count({12, 52, 108, 72}, RGB(0, 0, 0)), 0);
}

TEST_F(DrawingTest, IsKeptInAMetafileAsWhatItIsDrawnWith) {
  const HDC drawing = ::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
  const RECTL bounds{10, 20, 210, 120};
  EXPECT_EQ(container.As<IViewObject2>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, drawing, &bounds,
                                               nullptr, nullptr, 0),
            S_OK);
  const HENHMETAFILE kept = ::CloseEnhMetaFile(drawing);
  EXPECT_LT(::GetEnhMetaFileBits(kept, 0, nullptr), 1000U) << "a header and a rectangle";
  ::DeleteEnhMetaFile(kept);
}

TEST_F(DrawingTest, IsStretchedOverTheRoomThatItGets) {
  dummy->SetBackColor(kMint);
  const Paper paper(500, 300);
  EXPECT_EQ(Draw(paper, {0, 0, 400, 200}), S_OK);
  EXPECT_EQ(paper.At(399, 199), 0x00C8FFC8U);
  EXPECT_EQ(paper.At(400, 199), kOutside);
  EXPECT_EQ(paper.At(120, 44), RGB(255, 255, 255));  // 60,22 in the control, inside its first box
}

TEST_F(DrawingTest, DrawsNothingButItsContent) {
  const Paper paper(200, 100);
  const RECTL bounds{0, 0, 200, 100};
  const auto view = container.As<IViewObject2>();
  EXPECT_EQ(view->Draw(DVASPECT_ICON, -1, nullptr, nullptr, nullptr, paper.Drawing(), &bounds, nullptr, nullptr, 0),
            DV_E_DVASPECT);
  EXPECT_EQ(view->Draw(DVASPECT_CONTENT, 0, nullptr, nullptr, nullptr, paper.Drawing(), &bounds, nullptr, nullptr, 0),
            DV_E_LINDEX);
  EXPECT_EQ(view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, paper.Drawing(), nullptr, nullptr, nullptr, 0),
            E_INVALIDARG);
  EXPECT_EQ(paper.At(0, 0), kOutside);
}

TEST_F(DrawingTest, TellsTheContainerWhenItLooksDifferent) {
  const auto view = container.As<IViewObject2>();
  EXPECT_EQ(view->SetAdvise(DVASPECT_CONTENT, ADVF_PRIMEFIRST, &container), S_OK);
  EXPECT_THAT(container.calls, ElementsAre("OnViewChange"));
  dummy->Control().PutBackColor(kMint);
  dummy->Grow(host::Twips{3000});
  EXPECT_THAT(container.calls, ElementsAre("OnViewChange", "OnViewChange", "OnViewChange"));

  DWORD aspects = 0;
  DWORD flags = 0;
  ComPtr<IAdviseSink> sink;
  EXPECT_EQ(view->GetAdvise(&aspects, &flags, sink.Put()), S_OK);
  EXPECT_EQ(aspects, static_cast<DWORD>(DVASPECT_CONTENT));
  EXPECT_EQ(sink.Get(), static_cast<IAdviseSink*>(&container));
  EXPECT_EQ(view->SetAdvise(DVASPECT_CONTENT, 0, nullptr), S_OK);
}

TEST_F(DrawingTest, TellsOnceWhereThatIsWanted) {
  container.As<IViewObject2>()->SetAdvise(DVASPECT_CONTENT, ADVF_ONLYONCE, &container);
  dummy->Control().PutBackColor(kMint);
  dummy->Control().PutBackColor(host::kButtonFace);
  EXPECT_THAT(container.calls, ElementsAre("OnViewChange"));
}

}  // namespace
}  // namespace brivane::component::test
