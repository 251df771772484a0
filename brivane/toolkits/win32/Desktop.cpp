#include <cmath>
#include <mutex>
#include <string_view>
#include <utility>

#include <brivane/frame/Calendar.h>
#include <brivane/frame/GroupedNumber.h>
#include <brivane/toolkits/win32/Desktop.h>
#include <brivane/toolkits/win32/window/Owned.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::win32 {

namespace {

/// Gives the next message box of this thread the texts of its buttons, whatever language Windows has, lets Escape
/// answer "Nee", and keeps from it what nobody meant as an answer: bare letters, and keys that were under way when it
/// came up.
class BoxHooks {
 public:
  BoxHooks(std::chrono::milliseconds pause, const frame::Texts& texts)
      : texts_(texts),
        pause_(pause),
        underWay_(pause, Milliseconds(GetTickCount())),
        activated_(SetWindowsHookExW(WH_CBT, &Activated, nullptr, GetCurrentThreadId())),
        filtered_(SetWindowsHookExW(WH_MSGFILTER, &Filtered, nullptr, GetCurrentThreadId())) {
    const std::scoped_lock locked(lock);
    around_ = std::exchange(all, this);
  }
  BoxHooks(const BoxHooks&) = delete;
  BoxHooks& operator=(const BoxHooks&) = delete;
  ~BoxHooks() {
    const std::scoped_lock locked(lock);
    BoxHooks** place = &all;
    while (*place != this) place = &(*place)->around_;
    *place = around_;
  }

  /// Takes the box off the screen, as if somebody had said no.
  void Close() {
    closed_ = true;
    if (box_ != nullptr) EndDialog(box_, IDNO);
  }

 private:
  static std::chrono::milliseconds Milliseconds(DWORD time) { return std::chrono::milliseconds(time); }

  /// Those of this thread's innermost box.
  static BoxHooks* Current() {
    const std::scoped_lock locked(lock);
    BoxHooks* hooks = all;
    while (hooks != nullptr && hooks->thread_ != GetCurrentThreadId()) hooks = hooks->around_;
    return hooks;
  }

  static LRESULT CALLBACK Activated(int code, WPARAM window, LPARAM info) {
    if (code == HCBT_ACTIVATE) {
      const auto box = reinterpret_cast<HWND>(window);
      BoxHooks* const hooks = Current();
      if (hooks != nullptr && GetDlgItem(box, IDYES) != nullptr) {
        SetDlgItemTextW(box, IDYES, Wide(hooks->texts_.Of(frame::TextId::Yes)).c_str());
        SetDlgItemTextW(box, IDNO, Wide(hooks->texts_.Of(frame::TextId::No)).c_str());
      }
      if (hooks != nullptr && hooks->IsBox(box)) {
        // Only from when it has the keyboard does a pause say that somebody has seen it.
        hooks->underWay_ = {hooks->pause_, Milliseconds(GetTickCount())};
        if (hooks->closed_) PostMessageW(box, WM_COMMAND, IDNO, 0);
      }
    }
    return CallNextHookEx(nullptr, code, window, info);
  }

  static LRESULT CALLBACK Filtered(int code, WPARAM unused, LPARAM info) {
    const auto& message = *reinterpret_cast<const MSG*>(info);
    BoxHooks* const hooks = code == MSGF_DIALOGBOX ? Current() : nullptr;
    return hooks != nullptr && hooks->Takes(message) ? 1 : CallNextHookEx(nullptr, code, unused, info);
  }

  /// The first dialog that comes up is the box.
  bool IsBox(HWND window) {
    constexpr int kMost = 8;
    wchar_t name[kMost] = {};
    if (box_ == nullptr && GetClassNameW(window, name, kMost) != 0 && std::wstring_view(name) == L"#32770")
      box_ = window;
    return window == box_;
  }

  /// Whether a message goes no further.
  bool Takes(const MSG& message) {
    switch (message.message) {
      case WM_KEYDOWN:
      case WM_SYSKEYDOWN: {
        using Press = controls::KeysUnderWay::Press;
        const bool held = (message.lParam & (1 << 30)) != 0;
        if (!underWay_.IsMeant(Milliseconds(message.time), held ? Press::Repeat : Press::First)) return true;
        return message.wParam == VK_ESCAPE && AnswersNo(message.hwnd);
      }
      case WM_CHAR: return message.wParam >= L' ';  // the dialog would press the button of that letter
      default: return false;
    }
  }

  static bool AnswersNo(HWND window) {
    const HWND box = GetAncestor(window, GA_ROOT);
    if (GetDlgItem(box, IDNO) == nullptr) return false;
    PostMessageW(box, WM_COMMAND, IDNO, 0);
    return true;
  }

  static std::mutex lock;
  static BoxHooks* all;  ///< of every thread, the last made first

  const frame::Texts& texts_;
  DWORD thread_ = GetCurrentThreadId();
  std::chrono::milliseconds pause_;
  controls::KeysUnderWay underWay_;
  HWND box_ = nullptr;
  bool closed_ = false;
  BoxHooks* around_ = nullptr;

  using Hook = Owned<HHOOK, &UnhookWindowsHookEx>;
  Hook activated_;
  Hook filtered_;
};

std::mutex BoxHooks::lock;
BoxHooks* BoxHooks::all = nullptr;

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
  const bool question = style == host::MessageStyle::YesNoQuestion;
  life_->Check();
  const std::string below = question && details && !answer ? details(caption, text) : "";
  life_->Check();
  const host::MessageAnswer given = Ask(caption, below.empty() ? text : text + "\r\n\r\n" + below, style);
  life_->Check();
  if (answered) answered(given);
  return given;
}

host::MessageAnswer Desktop::Ask(const std::string& caption, const std::string& text, host::MessageStyle style) {
  if (answer) return answer(caption, text, style);
  const std::shared_ptr<controls::Life> life = life_;
  const ModalTime modalTime(*this);
  BoxHooks hooks(pause, *texts);
  const controls::Life::AtEnd close(*life, [&hooks] { hooks.Close(); });
  // The styles are the numbers of Windows. The second button of a question is "Nee".
  const UINT standard = style == host::MessageStyle::YesNoQuestion ? MB_DEFBUTTON2 : MB_DEFBUTTON1;
  const int button = MessageBoxW(GetActiveWindow(), Wide(text).c_str(), Wide(caption).c_str(),
                                 static_cast<UINT>(style) | standard | MB_TASKMODAL);
  switch (button) {
    case IDYES: return host::MessageAnswer::Yes;
    case IDNO:
      if (style == host::MessageStyle::YesNoQuestion) return host::MessageAnswer::No;
      [[fallthrough]];
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
  life_->Check();
  if (pending) pending();
  life_->Check();
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    if (message.message == WM_QUIT) return PostQuitMessage(static_cast<int>(message.wParam));
    TranslateMessage(&message);
    DispatchMessageW(&message);
    life_->Check();
  }
}

std::string Desktop::FormatWhole(double number) const {
  const double whole = std::round(number);
  return frame::FormatGrouped(whole == 0 ? 0.0 : whole, groupSeparator ? *groupSeparator : UserSeparator());
}

}  // namespace brivane::win32
