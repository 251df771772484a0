#include "toolkits/win32/Desktop.h"

#include <cmath>

#include "frame/Calendar.h"
#include "frame/GroupedNumber.h"
#include "toolkits/win32/window/Owned.h"
#include "toolkits/win32/window/Text.h"

namespace brivane::win32 {

namespace {

/// Gives the next message box of this thread Dutch buttons, whatever language Windows has, and lets Escape
/// answer "Nee".
class DutchButtons {
 public:
  DutchButtons()
      : activated_(SetWindowsHookExW(WH_CBT, &Activated, nullptr, GetCurrentThreadId())),
        filtered_(SetWindowsHookExW(WH_MSGFILTER, &Filtered, nullptr, GetCurrentThreadId())) {}

 private:
  static LRESULT CALLBACK Activated(int code, WPARAM window, LPARAM info) {
    if (code == HCBT_ACTIVATE) {
      const auto box = reinterpret_cast<HWND>(window);
      if (GetDlgItem(box, IDYES) != nullptr) {
        SetDlgItemTextW(box, IDYES, L"&Ja");
        SetDlgItemTextW(box, IDNO, L"&Nee");
      }
    }
    return CallNextHookEx(nullptr, code, window, info);
  }

  static LRESULT CALLBACK Filtered(int code, WPARAM unused, LPARAM info) {
    const auto& message = *reinterpret_cast<const MSG*>(info);
    if (code == MSGF_DIALOGBOX && message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE) {
      const HWND box = GetAncestor(message.hwnd, GA_ROOT);
      if (GetDlgItem(box, IDNO) != nullptr) {
        PostMessageW(box, WM_COMMAND, IDNO, 0);
        return 1;
      }
    }
    return CallNextHookEx(nullptr, code, unused, info);
  }

  using Hook = Owned<HHOOK, &UnhookWindowsHookEx>;
  Hook activated_;
  Hook filtered_;
};

std::wstring ProgramName() {
  std::wstring path(MAX_PATH, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
  path.erase(0, path.find_last_of(L"\\/") + 1);
  return path.substr(0, path.rfind(L'.'));
}

std::string UserSeparator() {
  wchar_t separator[8] = {};
  GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, separator, 8);
  return Narrow(separator);
}

}  // namespace

std::string Desktop::ApplicationTitle() const { return title.empty() ? Narrow(ProgramName()) : title; }

host::MessageAnswer Desktop::MessageBox(const std::string& caption, const std::string& text, host::MessageStyle style) {
  const host::MessageAnswer given = Ask(caption, text, style);
  if (answered) answered(given);
  return given;
}

host::MessageAnswer Desktop::Ask(const std::string& caption, const std::string& text, host::MessageStyle style) {
  if (answer) return answer(caption, text, style);
  const DutchButtons dutch;
  // The styles are the numbers of Windows.
  const int button = MessageBoxW(GetActiveWindow(), Wide(text).c_str(), Wide(caption).c_str(),
                                 static_cast<UINT>(style) | MB_TASKMODAL);
  switch (button) {
    case IDYES: return host::MessageAnswer::Yes;
    case IDNO: return host::MessageAnswer::No;
    default: return host::MessageAnswer::Ok;
  }
}

void Desktop::ResetMousePointer() { SetCursor(LoadCursorW(nullptr, MAKEINTRESOURCEW(32512))); }

host::Date Desktop::Today() const {
  if (clock) return clock();
  SYSTEMTIME now{};
  GetLocalTime(&now);
  return frame::MakeDate({now.wYear, now.wMonth, now.wDay});
}

void Desktop::DoPendingEvents() {
  if (pending) pending();
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    if (message.message == WM_QUIT) return PostQuitMessage(static_cast<int>(message.wParam));
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

std::string Desktop::FormatWhole(double number) const {
  const double whole = std::round(number);
  return frame::FormatGrouped(whole == 0 ? 0.0 : whole, groupSeparator ? *groupSeparator : UserSeparator());
}

}  // namespace brivane::win32
