#include <algorithm>

#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::win32 {

std::wstring Wide(std::string_view text) {
  if (text.empty()) return {};
  const int length = static_cast<int>(text.size());
  const int size = MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(), size);
  return wide;
}

std::string Narrow(std::wstring_view text) {
  if (text.empty()) return {};
  const int length = static_cast<int>(text.size());
  const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), length, narrow.data(), size, nullptr, nullptr);
  return narrow;
}

std::wstring TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
  // The length may be an upper bound.
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1)));
  return text;
}

std::wstring HeldTextOf(HWND window) {
  constexpr int kEnough = 1024;
  std::wstring text(kEnough, L'\0');
  text.resize(static_cast<std::size_t>(InternalGetWindowText(window, text.data(), kEnough)));
  return text;
}

std::optional<LRESULT> AnswerText(const std::string& text, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_GETTEXT && message != WM_GETTEXTLENGTH) return std::nullopt;
  const std::wstring wide = Wide(text);
  if (message == WM_GETTEXTLENGTH) return static_cast<LRESULT>(wide.size());
  if (wParam == 0) return 0;
  const std::size_t length = std::min<std::size_t>(wide.size(), wParam - 1);
  auto* const buffer = reinterpret_cast<wchar_t*>(lParam);
  std::copy_n(wide.begin(), length, buffer);
  buffer[length] = L'\0';
  return static_cast<LRESULT>(length);
}

}  // namespace brivane::win32
