#include <brivane/toolkits/win32/window/WindowsApi.h>

#include <commctrl.h>

#include <brivane/toolkits/win32/Toolkit.h>
#include <brivane/toolkits/win32/form/RowTips.h>
#include <brivane/toolkits/win32/window/Window.h>

namespace brivane::win32 {

namespace {

constexpr int kWidestTip = 320;
constexpr std::size_t kMostText = 1024;

TTTOOLINFOW RowToolOf(HWND form, HWND window) {
  TTTOOLINFOW tool{};
  // The size before the last field came in: every version knows it.
  tool.cbSize = TTTOOLINFOW_V1_SIZE;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = form;
  tool.uId = reinterpret_cast<UINT_PTR>(window);
  return tool;
}

}  // namespace

RowTips::RowTips(const Toolkit& toolkit, HWND form, const std::vector<Row>& rows)
    : form_(form),
      tip_(toolkit.MakeWindow({.className = TOOLTIPS_CLASSW,
                               .style = WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX,
                               .extendedStyle = WS_EX_TOPMOST | WS_EX_NOACTIVATE},
                              form)) {
  SendMessageW(tip_, TTM_SETMAXTIPWIDTH, 0, toolkit.Edge().Designed(kWidestTip));
  for (const Row& row : rows) {
    TTTOOLINFOW tool = RowToolOf(form, row.window);
    std::wstring text = row.text;
    tool.lpszText = text.data();
    SendMessageW(tip_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  }
}

RowTips::~RowTips() {
  if (IsWindow(tip_) != FALSE) DestroyWindow(tip_);
}

std::wstring RowTips::TextOf(HWND window) const {
  std::wstring text(kMostText, L'\0');
  TTTOOLINFOW tool = RowToolOf(form_, window);
  tool.lpszText = text.data();
  SendMessageW(tip_, TTM_GETTEXTW, kMostText, reinterpret_cast<LPARAM>(&tool));
  text.resize(text.find(L'\0'));
  return text;
}

}  // namespace brivane::win32
