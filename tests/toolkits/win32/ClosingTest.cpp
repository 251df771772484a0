#include <functional>

#include "tests/support/RecordingScenario.h"
#include "tests/toolkits/win32/SurfaceTest.h"
#include <brivane/controls/Form.h>
#include <brivane/controls/ListBox.h>
#include <brivane/scenario/frmScenario.h>
#include <brivane/toolkits/win32/controls/DateWindow.h>
#include <brivane/toolkits/win32/controls/HintWindow.h>

/// A host that goes while something is open: nothing fails, and nothing stays on the screen.
namespace brivane::test {
namespace {

using testing::ElementsAre;

/// Does something while a message box or a form waits for a person.
class Meanwhile {
 public:
  explicit Meanwhile(std::function<bool()> ready, std::function<void()> work) {
    now = {std::move(ready), std::move(work)};
    timer_ = SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR timer, DWORD) {
      if (!now.ready()) return;
      KillTimer(nullptr, timer);
      now.work();
    });
  }
  Meanwhile(const Meanwhile&) = delete;
  Meanwhile& operator=(const Meanwhile&) = delete;
  ~Meanwhile() {
    KillTimer(nullptr, timer_);
    now = {};
  }

 private:
  struct Task {
    std::function<bool()> ready;
    std::function<void()> work;
  };
  static inline Task now;
  UINT_PTR timer_;
};

bool BoxIsOpen() {
  const HWND box = FindWindowW(L"#32770", nullptr);
  return box != nullptr && IsWindowVisible(box) != FALSE;
}

int ShownWindows() {
  int count = 0;
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM counter) {
        if (IsWindowVisible(window) != FALSE) ++*reinterpret_cast<int*>(counter);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&count));
  return count;
}

class Closing : public SurfaceTest {
 protected:
  void OpenCalendar() {
    Focus("txtDatum");
    Press(VK_F4);
    ASSERT_NE(Entry<win32::DateWindow>("txtDatum").CalendarShown(), nullptr);
  }
  void DropList() {
    SetFocus(WindowOf("cboTermijn"));
    Press(VK_F4);
    ASSERT_NE(SendMessageW(WindowOf("cboTermijn"), CB_GETDROPPEDSTATE, 0, 0), FALSE);
    Press(VK_DOWN);
  }
  void ShowHelp() {
    Click(WindowOf("hntDiep"));
    ASSERT_TRUE(Entry<win32::HintWindow>("hntDiep").Tip().IsShown());
  }
  void Refuse() {
    Focus("txtBedrag");
    TypeOver(L"12.50");
    Press(VK_TAB);
    ASSERT_FALSE(Reason("txtBedrag").empty());
  }
  void TypeOnly() {
    Focus("txtNaam");
    TypeOver(L"half");
  }
  [[nodiscard]] std::vector<std::function<void()>> Open() {
    return {[this] { OpenCalendar(); }, [this] { DropList(); }, [this] { ShowHelp(); }, [this] { Refuse(); },
            [this] { TypeOnly(); }};
  }
  void NewSurface() {
    surface_ = toolkit_.MakeSurface(kSurface);
    stage_.Show(*surface_);
  }
};

TEST_F(Closing, TheHostLetsGoOfTheSurfaceWhateverIsOpen) {
  for (const auto& open : Open()) {
    open();
    surface_.reset();
    stage_.Settle();
    EXPECT_EQ(ShownWindows(), 1);  // the stage
    NewSurface();
  }
  EXPECT_TRUE(log_.empty());
}

class ClosingTheWindow : public Closing, public testing::WithParamInterface<std::size_t> {};
INSTANTIATE_TEST_SUITE_P(Open, ClosingTheWindow, testing::Range<std::size_t>(0, 5));

TEST_P(ClosingTheWindow, TheContainersWindowIsDestroyedWhateverIsOpen) {
  Follow("txtNaam");
  Open()[GetParam()]();
  DestroyWindow(stage_.Window());
  stage_.Settle();
  EXPECT_EQ(ShownWindows(), 0);
  EXPECT_EQ(win32::Toolkit::WindowOf(*surface_), nullptr);
  Box("txtNaam").SetText("later");
  Box("txtDatum").SetDate(host::kNoDate);
  static_cast<controls::ListBox&>(Control("cboTermijn")).SetListIndex(1);
  Control("cboTermijn").Host().SetEnabled(false);
  Control("fraBoxen").Host().SetVisible(false);
  surface_.reset();
  EXPECT_TRUE(log_.empty());
}

TEST_F(Closing, TheContainersWindowIsDestroyedWhileACheckAsks) {
  toolkit_.Desktop().answer = nullptr;
  host::MessageAnswer given{};
  subscriptions_ += Box("txtNaam").Validation.Connect([&](bool& Cancel) {
    given = toolkit_.Desktop().MessageBox("Onjuiste invoer", "Weet u het zeker?", host::MessageStyle::YesNoQuestion);
    Cancel = true;
  });
  TypeOnly();
  const Meanwhile meanwhile(&BoxIsOpen, [this] { DestroyWindow(stage_.Window()); });
  Press(VK_TAB);
  EXPECT_NE(given, host::MessageAnswer::Yes);
  EXPECT_EQ(ShownWindows(), 0);
  EXPECT_EQ(win32::Toolkit::WindowOf(*surface_), nullptr);
}

class ClosingTheForm : public Closing {
 protected:
  /// Opens the form on the stage; true when it came back unloaded.
  bool OpenForm(const std::function<void(controls::Form&)>& script) {
    auto scenario = std::make_shared<tests::RecordingScenario>();
    scenario->basis = 100;
    frmScenario form(toolkit_);
    form.Invoeren(scenario, 3, 0, 0, false, false, 0);
    bool ran = false;
    toolkit_.modal = [&](controls::Form& shown) {
      script(shown);
      ran = true;
    };
    win32::Hoofdvenster owner(stage_.Window());
    form.ShowModal(&owner);
    EXPECT_TRUE(ran);
    return scenario->Inhoud().empty();
  }
};

TEST_F(ClosingTheForm, TheMainWindowIsDestroyedWhileARowIsBeingTyped) {
  EXPECT_TRUE(OpenForm([&](controls::Form&) {
    TypeOver(L"250");
    DestroyWindow(stage_.Window());
  }));
  EXPECT_EQ(ShownWindows(), 0);
  stage_.Settle();
}

TEST_F(ClosingTheForm, TheMainWindowIsDestroyedWhileTheFormAsks) {
  toolkit_.Desktop().answer = nullptr;
  EXPECT_TRUE(OpenForm([&](controls::Form& form) {
    TypeOver(L"250");
    Press(VK_TAB);
    const Meanwhile meanwhile(&BoxIsOpen, [this] { DestroyWindow(stage_.Window()); });
    SendMessageW(GetAncestor(win32::AreaOf(form), GA_ROOT), WM_CLOSE, 0, 0);
  }));
  EXPECT_EQ(ShownWindows(), 0);
  stage_.Settle();
}

TEST_F(ClosingTheForm, TheProgramEndsWhileItIsOpen) {
  EXPECT_TRUE(OpenForm([&](controls::Form&) { PostQuitMessage(7); }));
  EXPECT_TRUE(IsWindowEnabled(stage_.Window()));
  EXPECT_EQ(ShownWindows(), 1);
  MSG message{};
  ASSERT_NE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE), FALSE);
  EXPECT_EQ(message.wParam, 7U);
}

}  // namespace
}  // namespace brivane::test
