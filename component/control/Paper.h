#pragma once

#include "component/idl/Windows.h"

#include <map>
#include <string>
#include <vector>

#include <brivane/toolkits/win32/window/Owned.h>

namespace brivane::component {

enum class Align { Left, Center, Right };

/// What is drawn on. Places are those of the surface's window, in pixels of the screen; what a text measures is asked
/// of the screen, as some metafiles cannot tell.
class Paper {
 public:
  /// `size` of the window is stretched over `bounds` of the target.
  Paper(HDC target, const RECT& bounds, SIZE size);

  void Fill(const RECT& place, COLORREF color) const;
  void Outline(const RECT& place, COLORREF color) const;
  void Round(const RECT& place, COLORREF line, COLORREF inside) const;
  void Lines(const std::vector<POINT>& points, COLORREF color) const;
  /// One line, half way up the place and cut off at its edges.
  void Text(const RECT& place, const std::wstring& text, HFONT font, COLORREF color, Align align);

 private:
  [[nodiscard]] int X(LONG x) const;
  [[nodiscard]] int Y(LONG y) const;
  [[nodiscard]] RECT There(const RECT& place) const;
  /// The font at the size that it has there. They go with the paper: a metafile keeps what they are.
  [[nodiscard]] HFONT FontThere(HFONT font);

  HDC target_;
  RECT bounds_;
  double across_;
  double along_;
  std::map<HFONT, win32::OwnedFont> fonts_;
};

/// A text in lines that are no wider than asked, broken between words.
[[nodiscard]] std::vector<std::wstring> Wrapped(const std::wstring& text, HFONT font, LONG width);

}  // namespace brivane::component
