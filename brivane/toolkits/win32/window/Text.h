#pragma once

#include <brivane/toolkits/win32/window/WindowsApi.h>

#include <optional>
#include <string>
#include <string_view>

/// Between the UTF-8 of the controls and the UTF-16 of Windows.
namespace brivane::win32 {

[[nodiscard]] std::wstring Wide(std::string_view text);
[[nodiscard]] std::string Narrow(std::wstring_view text);
[[nodiscard]] std::wstring TextOf(HWND window);
/// The text that a window holds, whatever it answers to those who ask.
[[nodiscard]] std::wstring HeldTextOf(HWND window);
/// Answers the two messages by which a window is asked for its text; nothing for another message.
[[nodiscard]] std::optional<LRESULT> AnswerText(const std::string& text, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace brivane::win32
