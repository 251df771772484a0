#include <brivane/toolkits/win32/window/WindowsApi.h>

#include <commctrl.h>

#include "tests/toolkits/conformance/Screen.h"
#include "tests/toolkits/win32/Person.h"
#include <brivane/toolkits/win32/Dump.h>
#include <brivane/toolkits/win32/Toolkit.h>
#include <brivane/toolkits/win32/controls/DateWindow.h>
#include <brivane/toolkits/win32/controls/HintWindow.h>
#include <brivane/toolkits/win32/form/FormWindow.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::test {
namespace {

class Win32UnderTest final : public ScreenUnderTest {
 public:
  ~Win32UnderTest() override { ReturnToWindow(); }

  [[nodiscard]] win32::Toolkit& Toolkit() override { return toolkit_; }
  void Settle() override { stage_.Settle(); }
  void Show(controls::Surface& surface) override { stage_.Show(surface.HostSurface()); }
  void Gesture(controls::AnyControl& control, const controls::Action& action) override { Do(control, action); }
  void WhileOpen(std::function<void(controls::Form&)> script) override { toolkit_.modal = std::move(script); }
  [[nodiscard]] std::vector<controls::ControlDump> Shown(const controls::Surface& surface) override {
    return win32::DumpShown(surface, toolkit_);
  }

  void Press(Key key, With with) override { test::Press(CodeOf(key), with); }
  void Press(char key, With with) override {
    test::Press(static_cast<WORD>(key), with);  // capital letters and digits are their own codes
  }
  void Type(const std::string& text) override { test::Type(win32::Wide(text)); }
  void Click(controls::AnyControl& control) override {
    const HWND window = HandleOf(control);
    test::Click(window, {8, CenterOf(window).y});
  }
  void Copy(const std::string& text) override { test::Copy(stage_.Window(), win32::Wide(text)); }
  void LeaveWindow() override {
    left_ = GetFocus();
    other_ =
        CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr, nullptr, nullptr);
    SetForegroundWindow(other_);
    SetFocus(other_);
    Settle();
  }
  void ReturnToWindow() override {
    if (other_ == nullptr) return;
    DestroyWindow(std::exchange(other_, nullptr));
    SetForegroundWindow(stage_.Window());
    SetFocus(left_);  // a container gives it back
    Settle();
  }
  void ClickCalendarButton(controls::AnyControl& box) override {
    const HWND window = HandleOf(box);
    RECT area{};
    GetClientRect(window, &area);
    test::Click(window, {area.right + 8, area.bottom / 2});
  }
  void ClickRow(controls::AnyControl& list, int row) override {
    const HWND window = HandleOf(list);
    RECT place{};
    place.left = LVIR_BOUNDS;
    SendMessageW(window, LVM_GETITEMRECT, static_cast<WPARAM>(row - 1), reinterpret_cast<LPARAM>(&place));
    test::Click(window, {place.left + 8, (place.top + place.bottom) / 2});
  }
  void CloseWindow(controls::Form& form) override {
    SendMessageW(GetAncestor(win32::AreaOf(form), GA_ROOT), WM_SYSCOMMAND, SC_CLOSE, 0);
  }

  [[nodiscard]] std::string Focused() override { return test::Focused(); }
  [[nodiscard]] std::string Typed(controls::AnyControl& box) override {
    return win32::Narrow(win32::TextOf(HandleOf(box)));
  }
  [[nodiscard]] std::string Reason(controls::AnyControl& box) override {
    return win32::Narrow(dynamic_cast<win32::BoxWindow&>(test::Shown(box)).Reason());
  }
  [[nodiscard]] std::string Note(controls::AnyControl& box) override {
    return win32::Narrow(dynamic_cast<win32::BoxWindow&>(test::Shown(box)).Note());
  }
  [[nodiscard]] std::string TitleOf(controls::Form& form) override {
    return win32::Narrow(win32::TextOf(GetAncestor(win32::AreaOf(form), GA_ROOT)));
  }
  [[nodiscard]] std::string TipOf(controls::AnyControl& box) override {
    const auto& form = dynamic_cast<const win32::FormWindow&>(*box.Owner()->GetPeer());
    return form.Tips() != nullptr ? win32::Narrow(form.Tips()->TextOf(HandleOf(box))) : std::string();
  }
  [[nodiscard]] bool CalendarIsOpen(controls::AnyControl& box) override {
    return IsWindowVisible(dynamic_cast<win32::DateWindow&>(test::Shown(box)).CalendarShown()) != FALSE;
  }
  [[nodiscard]] std::string Help() override {
    // The help that is shown is that of the icon with the focus or under the pointer.
    const auto* const icon = dynamic_cast<win32::HintWindow*>(win32::Window::Of(GetFocus()));
    return icon != nullptr && icon->Tip().IsShown() ? win32::Narrow(icon->Tip().Text()) : "";
  }
  [[nodiscard]] std::vector<int> MarkedRows(controls::AnyControl& list) override {
    const auto next = [window = HandleOf(list)](int row) {
      return static_cast<int>(SendMessageW(window, LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED));
    };
    std::vector<int> rows;
    for (int row = next(-1); row >= 0; row = next(row)) rows.push_back(row + 1);
    return rows;
  }
  [[nodiscard]] bool IsOpen(controls::Form& form) override {
    return dynamic_cast<win32::FormWindow&>(*form.GetPeer()).IsOpen();
  }
  [[nodiscard]] bool IsBare() override { return GetWindow(stage_.Window(), GW_CHILD) == nullptr; }
  void Answer(std::function<host::MessageAnswer(const std::string& title, const std::string& text, host::MessageStyle)>
                  answer) override {
    toolkit_.Desktop().answer = std::move(answer);
  }
  void SetToday(host::Date today) override {
    toolkit_.Desktop().clock = [today] { return today; };
  }

 private:
  [[nodiscard]] static HWND HandleOf(controls::AnyControl& control) { return test::Shown(control).Handle(); }

  win32::Toolkit toolkit_{GetModuleHandleW(nullptr)};
  Stage stage_{toolkit_};
  HWND other_ = nullptr;
  HWND left_ = nullptr;  ///< what had the focus there
};

}  // namespace

std::vector<Subject> Subjects() {
  const auto make = [] { return std::make_unique<Win32UnderTest>(); };
  return {{"Win32Door", make, Way::Door}, {"Win32Gesture", make, Way::Gesture}};
}

std::vector<ScreenSubject> Screens() {
  return {{"Win32", [] { return std::make_unique<Win32UnderTest>(); }}};
}

}  // namespace brivane::test
