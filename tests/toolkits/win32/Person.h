#pragma once

#include <brivane/toolkits/win32/window/WindowsApi.h>

#include <string>

#include "tests/toolkits/conformance/Keys.h"
#include <brivane/controls/Control.h>
#include <brivane/host/controls/Surface.h>

/// What a person does with mouse and keyboard, through the input queue of Windows: a click lands on whatever is
/// under the pointer, a key goes to whatever has the focus.
namespace brivane::win32 {
class ControlWindow;
class Toolkit;
}  // namespace brivane::win32

namespace brivane::test {

/// A top-level window that holds a surface, as a container of any make would: it knows nothing of what stands in
/// it but the toolkit's door for keys.
class Stage {
 public:
  explicit Stage(win32::Toolkit& toolkit);
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;
  ~Stage();

  void Show(host::Surface& surface);
  [[nodiscard]] HWND Window() const { return window_; }
  /// Handles all that waits. Tab past an end of the surface goes round.
  void Settle();

 private:
  win32::Toolkit& toolkit_;
  HWND window_;
  HWND area_ = nullptr;
};

/// The stage that gestures are settled on; one at a time.
[[nodiscard]] Stage& TheStage();

void Click(HWND window, POINT at);
/// Clicks in the middle.
void Click(HWND window);
void MoveTo(HWND window, POINT at);

/// The code by which Windows knows a key.
[[nodiscard]] WORD CodeOf(Key key);
void Press(WORD key, With with = With::None);
/// The same for a message loop that runs already.
void QueueKey(WORD key, With with = With::None);
void Type(const std::wstring& text);
/// Replaces what stands in the focused box.
void TypeOver(const std::wstring& text);

/// Puts a text on the clipboard, which a window is to own.
void Copy(HWND owner, const std::wstring& text);

[[nodiscard]] win32::ControlWindow& Shown(controls::AnyControl& control);
/// Name of the control that has the focus; empty where none of ours has it.
[[nodiscard]] std::string Focused();
[[nodiscard]] POINT CenterOf(HWND window);

/// Does an action as a person does it.
void Do(controls::AnyControl& control, const controls::Action& action);

}  // namespace brivane::test
