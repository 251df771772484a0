#include <brivane/toolkits/win32/window/WindowsApi.h>

#include <commctrl.h>

#include <algorithm>
#include <cctype>
#include <string_view>

#include "tests/toolkits/person/Hands.h"
#include "tests/toolkits/win32/Person.h"
#include <brivane/toolkits/win32/Toolkit.h>
#include <brivane/toolkits/win32/window/ControlWindow.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::test {
namespace {

WORD LetterCode(char letter) { return static_cast<WORD>(std::toupper(letter)); }

/// Counts the notches of the wheel that reach a window.
LRESULT CALLBACK CountWheel(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR count) {
  if (message != WM_MOUSEWHEEL) return DefSubclassProc(window, message, wParam, lParam);
  *reinterpret_cast<int*>(count) -= GET_WHEEL_DELTA_WPARAM(wParam) / WHEEL_DELTA;
  return 0;
}

/// Presses keys in the message box that comes up, from within its own loop.
class BoxPresser {
 public:
  explicit BoxPresser(const std::vector<BoxKey>& keys) : keys_(keys) {
    current = this;
    timer_ = SetTimer(nullptr, 0, 20, &Tick);
  }
  BoxPresser(const BoxPresser&) = delete;
  BoxPresser& operator=(const BoxPresser&) = delete;
  ~BoxPresser() {
    KillTimer(nullptr, timer_);
    current = nullptr;
  }
  [[nodiscard]] bool Answered() const { return answered_; }
  [[nodiscard]] const std::string& Read() const { return read_; }

 private:
  static constexpr DWORD kPatience = 400;  ///< in which a key has its effect

  static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) {
    if (current != nullptr) current->Go();
  }

  void Go() {
    const HWND box = GetActiveWindow();
    if (!IsMessageBox(box) || IsWindowVisible(box) == FALSE) return;
    if (read_.empty()) {
      read_ = win32::Narrow(win32::TextOf(GetDlgItem(box, 0xFFFF)));
      std::erase(read_, '\r');
      last_ = GetTickCount();
    }
    const DWORD waited = GetTickCount() - last_;
    if (next_ < keys_.size()) {
      if (waited < keys_[next_].after.count()) return;
      last_ = GetTickCount();
      PressNext(box);
    } else if (waited > kPatience) {
      answered_ = false;
      PostMessageW(box, WM_COMMAND, GetDlgItem(box, IDNO) != nullptr ? IDNO : IDOK, 0);
      last_ = GetTickCount();
    }
  }

  static bool IsMessageBox(HWND window) {
    wchar_t name[16] = {};
    return window != nullptr && GetClassNameW(window, name, 16) != 0 && std::wstring_view(name) == L"#32770";
  }

  void PressNext(HWND box) {
    const BoxKey& key = keys_[next_++];
    const WORD code = key.key ? CodeOf(*key.key) : LetterCode(key.letter);
    if (!key.held) return QueueKey(code, key.alt ? With::Alt : With::None);
    const HWND focus = GetFocus();
    PostMessageW(focus != nullptr ? focus : box, WM_KEYDOWN, code, 1 << 30);
  }

  static BoxPresser* current;

  const std::vector<BoxKey>& keys_;
  std::size_t next_ = 0;
  UINT_PTR timer_ = 0;
  DWORD last_ = 0;
  bool answered_ = true;
  std::string read_;
};

BoxPresser* BoxPresser::current = nullptr;

class Win32Hands final : public Hands {
 public:
  Win32Hands() : surface_(toolkit_.MakeSurface(kSurface)) {
    // A list that drops down under the pointer marks the entry there.
    SetCursorPos(0, 0);
    stage_.Show(*surface_);
    SetWindowSubclass(stage_.Window(), &CountWheel, 1, reinterpret_cast<DWORD_PTR>(&scrolled_));
  }
  ~Win32Hands() override { RemoveWindowSubclass(stage_.Window(), &CountWheel, 1); }
  Win32Hands(const Win32Hands&) = delete;
  Win32Hands& operator=(const Win32Hands&) = delete;

  [[nodiscard]] host::Surface& Surface() override { return *surface_; }
  [[nodiscard]] win32::Toolkit& Toolkit() override { return toolkit_; }
  void Show(host::Surface& surface) override {
    ShowWindow(win32::Toolkit::WindowOf(*surface_), SW_HIDE);
    stage_.Show(surface);
  }
  void WhileOpen(std::function<void(controls::Form&)> script) override {
    toolkit_.modal = [this, script = std::move(script)](controls::Form& form) {
      stage_.Settle();
      script(form);
    };
  }

  void Press(Key key, With with) override { test::Press(CodeOf(key), with); }
  void PressAlt(char letter) override { test::Press(LetterCode(letter), With::Alt); }
  void Type(const std::string& text) override { test::Type(win32::Wide(text)); }
  void Click(controls::AnyControl& control) override {
    const HWND window = test::Shown(control).Handle();
    test::Click(window, {8, CenterOf(window).y});
  }
  void TurnWheel(controls::AnyControl& control, int notches) override {
    for (int i = 0; i < notches; ++i)
      SendMessageW(test::Shown(control).Handle(), WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
  }
  [[nodiscard]] int Scrolled() const override { return scrolled_; }
  void GiveFocus(controls::AnyControl& control) override {
    SetFocus(test::Shown(control).Handle());
    stage_.Settle();
  }
  void PickInOpenList(controls::ListBox& list, int index) override {
    const HWND window = test::Shown(list).Handle();
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    GetComboBoxInfo(window, &info);
    const auto row = static_cast<int>(SendMessageW(window, CB_GETITEMHEIGHT, 0, 0));
    test::Click(window);
    test::Click(info.hwndList, {10, index * row + row / 2});
  }
  bool CommitPending() override { return toolkit_.CommitPending(*surface_); }

  [[nodiscard]] std::string Focused() const override { return test::Focused(); }
  [[nodiscard]] int ShownEntry(controls::ListBox& list) const override {
    return static_cast<int>(SendMessageW(test::Shown(list).Handle(), CB_GETCURSEL, 0, 0));
  }
  [[nodiscard]] std::string FocusedText() const override {
    std::wstring text = win32::TextOf(GetFocus());
    DWORD from = 0;
    DWORD to = 0;
    SendMessageW(GetFocus(), EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    text.insert(to, 1, L']');
    text.insert(from, 1, L'[');
    return win32::Narrow(text);
  }

  [[nodiscard]] bool AnswerBox(std::chrono::milliseconds pause, const std::vector<BoxKey>& keys,
                               const std::function<void()>& bringUp) override {
    toolkit_.Desktop().pause = pause;
    const BoxPresser presser(keys);
    bringUp();
    read_ = presser.Read();
    stage_.Settle();
    return presser.Answered();
  }
  [[nodiscard]] std::string Read() const override { return read_; }
  void AddToQuestions(const std::string& details) override {
    toolkit_.Desktop().details = [details](const auto&, const auto&) { return details; };
  }

 private:
  win32::Toolkit toolkit_{GetModuleHandleW(nullptr)};
  Stage stage_{toolkit_};
  std::unique_ptr<host::Surface> surface_;
  int scrolled_ = 0;
  std::string read_;
};

}  // namespace

std::unique_ptr<Hands> MakeHands() { return std::make_unique<Win32Hands>(); }

}  // namespace brivane::test
