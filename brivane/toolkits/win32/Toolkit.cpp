#include <commctrl.h>

#include <brivane/toolkits/win32/Toolkit.h>
#include <brivane/toolkits/win32/controls/BoxWindow.h>
#include <brivane/toolkits/win32/controls/ComboWindow.h>
#include <brivane/toolkits/win32/form/FormWindow.h>
#include <brivane/toolkits/win32/window/Navigation.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::win32 {

/// The activation context of the manifest in the module, which gives the controls their look: windows are
/// made while it is active. Nothing where the module has no manifest.
class Toolkit::Look {
 public:
  explicit Look(HINSTANCE module) {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(module, path.data(), MAX_PATH));
    for (const int number : {2, 1}) {
      ACTCTXW wanted{};
      wanted.cbSize = sizeof wanted;
      wanted.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
      wanted.lpSource = path.c_str();
      wanted.lpResourceName = MAKEINTRESOURCEW(number);
      wanted.hModule = module;
      if (FindResourceW(module, wanted.lpResourceName, MAKEINTRESOURCEW(24)) == nullptr) continue;
      context_ = CreateActCtxW(&wanted);
      if (context_ != INVALID_HANDLE_VALUE) break;
    }
  }
  Look(const Look&) = delete;
  Look& operator=(const Look&) = delete;
  ~Look() {
    if (context_ != INVALID_HANDLE_VALUE) ReleaseActCtx(context_);
  }

  template <class Body> auto During(const Body& body) const {
    ULONG_PTR cookie = 0;
    const bool active = context_ != INVALID_HANDLE_VALUE && ActivateActCtx(context_, &cookie) != FALSE;
    const auto result = body();
    if (active) DeactivateActCtx(0, cookie);
    return result;
  }

 private:
  HANDLE context_ = INVALID_HANDLE_VALUE;
};

namespace {

/// The classes keep the default procedure: each window gets its own when it is made, so that no class is
/// left pointing into a library that was unloaded.
void RegisterClasses(HINSTANCE module) {
  WNDCLASSEXW entry{};
  entry.cbSize = sizeof entry;
  entry.lpfnWndProc = DefWindowProcW;
  entry.hInstance = module;
  entry.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
  for (const wchar_t* name : {kAreaClass, kFormClass}) {
    entry.lpszClassName = name;
    RegisterClassExW(&entry);  // fails where an earlier toolkit did it
  }
}

double SystemScale() {
  const WindowContext screen;
  return GetDeviceCaps(screen.Get(), LOGPIXELSY) / 96.0;
}

}  // namespace

Toolkit::Toolkit(HINSTANCE module) : module_(module), edge_(SystemScale()), look_(std::make_unique<Look>(module)) {
  RegisterClasses(module);
  look_->During([] {
    INITCOMMONCONTROLSEX wanted{sizeof wanted,
                                ICC_STANDARD_CLASSES | ICC_LISTVIEW_CLASSES | ICC_DATE_CLASSES | ICC_BAR_CLASSES};
    return InitCommonControlsEx(&wanted);
  });
  parking_.Reset(CreateWindowExW(0, kAreaClass, L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, module, nullptr));
}

Toolkit::~Toolkit() = default;

HWND Toolkit::MakeWindow(const Making& making, HWND parent) const {
  const bool child = (making.style & WS_CHILD) != 0;
  return look_->During([&] {
    return CreateWindowExW(making.extendedStyle, making.className, making.text.c_str(), making.style, 0, 0, 0, 0,
                           parent == nullptr && child ? parking_.Get() : parent, nullptr, module_, nullptr);
  });
}

host::MessageAnswer Toolkit::Ask(const std::string& caption, const std::string& text, host::MessageStyle style) {
  return desktop_.Ask(caption, text, style);
}

bool Toolkit::LeaveBox(const Window& target) {
  if (const auto* const control = dynamic_cast<const ControlWindow*>(&target)) {
    const auto life = target.Life();
    ComboWindow* const list = ComboWindow::UnderWayOn(RootOf(control->Control()));
    if (list != nullptr && static_cast<const Window*>(list) != &target) list->HandOver();
    if (life.expired()) return false;
  }
  BoxWindow* const box = BoxWindow::PendingWith(target.Handle());
  return box == nullptr || static_cast<const Window*>(box) == &target || box->CommitPending();
}

bool Toolkit::Act(controls::AnyControl& control, const controls::Action& action, const Window& window) {
  const auto life = window.Life();
  if (!LeaveBox(window) || life.expired()) return false;
  return Hand(control, action) == controls::Outcome::Done;
}

HWND Toolkit::WindowOf(host::Surface& surface) { return AreaOf(controls::Surface::Of(surface)); }

bool Toolkit::Navigate(host::Surface& surface, const MSG& message) {
  const controls::Surface& area = controls::Surface::Of(surface);
  auto* const control = dynamic_cast<ControlWindow*>(Window::Of(message.hwnd));
  const bool inside = control != nullptr && &RootOf(control->Control()) == &area;
  if (message.message == WM_SYSCHAR && !inside) return PressMnemonic(area, static_cast<wchar_t>(message.wParam));
  return inside && control->TakeKey(message.message, message.wParam);
}

bool Toolkit::FocusFirst(host::Surface& surface) {
  return FocusEnd(controls::Surface::Of(surface), Direction::Forward);
}
bool Toolkit::FocusLast(host::Surface& surface) { return FocusEnd(controls::Surface::Of(surface), Direction::Back); }

bool Toolkit::CommitPending(host::Surface& surface) {
  if (ComboWindow* const list = ComboWindow::UnderWayOn(controls::Surface::Of(surface))) list->HandOver();
  return Pending().Commit(controls::Surface::Of(surface));
}

void Toolkit::LeavePending(host::Surface& surface) {
  if (ComboWindow* const list = ComboWindow::UnderWayOn(controls::Surface::Of(surface))) list->HandOver();
  Pending().Leave(controls::Surface::Of(surface));
}

void Toolkit::Rescale(host::Surface& surface) {
  const std::function<void(const controls::Surface&)> rescale = [&](const controls::Surface& area) {
    for (const auto& control : area.Made()) {
      dynamic_cast<ControlWindow&>(*control->GetPeer()).Rescale();
      if (control->ControlKind() == host::Kind::Surface) rescale(static_cast<const controls::Surface&>(*control));
    }
    area.GetPeer()->Refresh(controls::Aspect::Place);
  };
  rescale(controls::Surface::Of(surface));
}

host::Twips Toolkit::MeasureText(const frame::Design& design, std::string_view text, bool bold) const {
  const win32::Edge designed(1);
  const Measuring measuring(
      fonts_.Get(design.fontName, designed.FontPixels(design.fontSize), bold ? Weight::Bold : Weight::Regular));
  return designed.ToTwips(measuring.Width(Wide(text)));
}

HFONT Toolkit::FontOf(const frame::Design& design, float points, Weight weight) const {
  return fonts_.Get(design.fontName, edge_.FontPixels(points), weight);
}

std::unique_ptr<controls::Peer> Toolkit::MakePeer(controls::AnyControl& control) {
  return MakeControlWindow(control, *this);
}

std::unique_ptr<controls::FormPeer> Toolkit::MakeFormPeer(controls::Form& form) {
  return std::make_unique<FormWindow>(form, *this);
}

}  // namespace brivane::win32
