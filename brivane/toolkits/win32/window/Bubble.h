#pragma once

#include <string>

#include <brivane/toolkits/win32/window/Window.h>

namespace brivane::win32 {

/// Why the content of a box was refused, which interrupts a screen reader, or a note of what it stands for.
enum class Saying { Reason, Note };

/// A small text beside a box that says something of its content. It takes no focus and no clicks, and
/// lies on the surface around the box, so that it moves and goes with it.
class Bubble final : public Window {
 public:
  /// Under the box, or above it where there is no room. `area` is the window that it lies on.
  Bubble(win32::Toolkit& toolkit, HWND area, HWND box, HFONT font, const std::wstring& text, Saying saying);

 protected:
  HBRUSH OnColor(UINT message, HDC context) override;
};

}  // namespace brivane::win32
