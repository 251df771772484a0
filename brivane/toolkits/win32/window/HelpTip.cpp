#include <commctrl.h>

#include <brivane/toolkits/win32/Toolkit.h>
#include <brivane/toolkits/win32/window/HelpTip.h>
#include <brivane/toolkits/win32/window/Window.h>

namespace brivane::win32 {

namespace {

constexpr int kWidest = 320;
constexpr std::size_t kMost = 1024;

TTTOOLINFOW ToolOf(HWND beside) {
  TTTOOLINFOW tool{};
  // The size before the last field came in: every version knows it.
  tool.cbSize = TTTOOLINFOW_V1_SIZE;
  tool.uFlags = TTF_TRACK | TTF_ABSOLUTE | TTF_IDISHWND;
  tool.hwnd = GetAncestor(beside, GA_ROOT);
  tool.uId = reinterpret_cast<UINT_PTR>(beside);
  return tool;
}

}  // namespace

void HelpTip::Show(const Toolkit& toolkit, HWND beside, const std::wstring& text, HFONT font) {
  Hide();
  beside_ = beside;
  tip_ = toolkit.MakeWindow({.className = TOOLTIPS_CLASSW,
                             .style = WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX,
                             .extendedStyle = WS_EX_TOPMOST | WS_EX_NOACTIVATE},
                            GetAncestor(beside, GA_ROOT));
  SendMessageW(tip_, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
  SendMessageW(tip_, TTM_SETMAXTIPWIDTH, 0, toolkit.Edge().Designed(kWidest));
  TTTOOLINFOW tool = ToolOf(beside);
  std::wstring shown = text;
  tool.lpszText = shown.data();
  SendMessageW(tip_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  RECT place{};
  GetWindowRect(beside, &place);
  SendMessageW(tip_, TTM_TRACKPOSITION, 0, MAKELPARAM((place.left + place.right) / 2, place.bottom + 2));
  SendMessageW(tip_, TTM_TRACKACTIVATE, TRUE, reinterpret_cast<LPARAM>(&tool));
}

void HelpTip::Hide() {
  if (tip_ != nullptr && IsWindow(tip_) != FALSE) DestroyWindow(tip_);
  tip_ = nullptr;
}

bool HelpTip::IsShown() const { return tip_ != nullptr && IsWindowVisible(tip_) != FALSE; }

std::wstring HelpTip::Text() const {
  if (!IsShown()) return {};
  std::wstring text(kMost, L'\0');
  TTTOOLINFOW tool = ToolOf(beside_);
  tool.lpszText = text.data();
  SendMessageW(tip_, TTM_GETTEXTW, kMost, reinterpret_cast<LPARAM>(&tool));
  text.resize(text.find(L'\0'));
  return text;
}

}  // namespace brivane::win32
