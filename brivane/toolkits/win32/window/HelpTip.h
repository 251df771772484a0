#pragma once

#include <brivane/toolkits/win32/window/WindowsApi.h>

#include <string>

namespace brivane::win32 {

class Toolkit;

/// A tool tip that is shown and taken away by code. It is gone at the latest with its owner.
class HelpTip {
 public:
  HelpTip() = default;
  HelpTip(const HelpTip&) = delete;
  HelpTip& operator=(const HelpTip&) = delete;
  ~HelpTip() { Hide(); }

  /// Below a window; wraps over lines.
  void Show(const Toolkit& toolkit, HWND beside, const std::wstring& text, HFONT font);
  void Hide();
  [[nodiscard]] bool IsShown() const;
  /// The text that the tool tip really shows; empty where none is shown.
  [[nodiscard]] std::wstring Text() const;

 private:
  HWND tip_ = nullptr;
  HWND beside_ = nullptr;
};

}  // namespace brivane::win32
