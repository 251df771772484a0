#include <algorithm>
#include <memory>
#include <type_traits>
#include <utility>

#include <brivane/controls/RowChanges.h>
#include <brivane/toolkits/win32/controls/ButtonWindows.h>
#include <brivane/toolkits/win32/form/FormWindow.h>
#include <brivane/toolkits/win32/form/OthersDisabled.h>
#include <brivane/toolkits/win32/window/Navigation.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::win32 {

using controls::Aspect;

namespace {

constexpr UINT kOpened = WM_APP + 3;
constexpr DWORD kStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
constexpr DWORD kExtendedStyle = WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT;
constexpr int kLine = 24;

using Brush = std::unique_ptr<std::remove_pointer_t<HBRUSH>, decltype(&DeleteObject)>;

controls::Button* FirstButton(const controls::Form& form) {
  for (const auto& control : form.Made())
    if (control->ControlKind() == host::Kind::Button) return static_cast<controls::Button*>(control.get());
  return nullptr;
}

RECT ScreenAround(HWND window) {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &monitor);
  return monitor.rcWork;
}

}  // namespace

/// What the form's controls stand on; moved to scroll.
class FormWindow::AreaWindow final : public Window {
 public:
  explicit AreaWindow(FormWindow& form)
      : Window(form.Toolkit(),
               {.className = kAreaClass,
                .style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
                .extendedStyle = WS_EX_CONTROLPARENT},
               form.Handle()),
        form_(form.form_) {}

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message != WM_ERASEBKGND) return Window::OnMessage(message, wParam, lParam);
    RECT area{};
    GetClientRect(Handle(), &area);
    const Brush brush(CreateSolidBrush(DrawnColor(BackgroundOf(form_))), &DeleteObject);
    FillRect(reinterpret_cast<HDC>(wParam), &area, brush.get());
    return 1;
  }

 private:
  controls::Form& form_;
};

FormWindow::FormWindow(controls::Form& form, win32::Toolkit& toolkit)
    : Window(toolkit, {.className = kFormClass, .style = kStyle, .extendedStyle = kExtendedStyle}, nullptr),
      form_(form),
      area_(std::make_unique<AreaWindow>(*this)) {
  Refresh(Aspect::Caption);
  Refresh(Aspect::Place);
}

FormWindow::~FormWindow() = default;

FormWindow* FormWindow::Of(const ControlWindow& control) {
  return dynamic_cast<FormWindow*>(RootOf(control.Control()).GetPeer());
}

HWND FormWindow::Area() const { return area_->Handle(); }

SIZE FormWindow::Inside() const { return Toolkit().Edge().Pixels(form_.ScaleWidth(), form_.ScaleHeight()); }

void FormWindow::Refresh(Aspect aspect) {
  if (Handle() == nullptr) return;
  switch (aspect) {
    case Aspect::Caption:
      SetWindowTextW(Handle(), Wide(controls::WindowTitle(form_.Caption(), subject_)).c_str());
      break;
    case Aspect::Enabled: EnableWindow(Area(), form_.Enabled() ? TRUE : FALSE); break;
    case Aspect::Place: {
      const SIZE inside = Inside();
      SetWindowPos(Area(), nullptr, 0, 0, inside.cx, inside.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
      if (open_) Fit();
      break;
    }
    case Aspect::BackColor: RedrawWindow(Area(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN); break;
    default: break;
  }
}

/// As large as the form, but no larger than the screen; in the middle of its owner, kept on the screen.
void FormWindow::Fit() {
  const HWND owner = GetWindow(Handle(), GW_OWNER);
  const RECT screen = ScreenAround(owner != nullptr ? owner : Handle());
  RECT frame{};
  AdjustWindowRectEx(&frame, kStyle, FALSE, kExtendedStyle);
  const SIZE inside = Inside();
  const SIZE room{WidthOf(screen) - WidthOf(frame), HeightOf(screen) - HeightOf(frame)};
  const bool tooHigh = inside.cy > room.cy;
  const bool tooWide = inside.cx > room.cx;
  const LONG width = std::min(room.cx, inside.cx + (tooHigh ? GetSystemMetrics(SM_CXVSCROLL) : 0));
  const LONG height = std::min(room.cy, inside.cy + (tooWide ? GetSystemMetrics(SM_CYHSCROLL) : 0));
  RECT around = screen;
  if (owner != nullptr) GetWindowRect(owner, &around);
  const LONG outerWidth = width + WidthOf(frame);
  const LONG outerHeight = height + HeightOf(frame);
  const LONG left = std::min(around.left + (WidthOf(around) - outerWidth) / 2, screen.right - outerWidth);
  const LONG top = std::min(around.top + (HeightOf(around) - outerHeight) / 2, screen.bottom - outerHeight);
  SetWindowPos(Handle(), nullptr, std::max(left, screen.left), std::max(top, screen.top), outerWidth, outerHeight,
               SWP_NOZORDER | SWP_NOACTIVATE);
  const auto range = [&](int bar, bool needed, LONG all, LONG seen) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE;
    info.nMax = static_cast<int>(all) - 1;
    info.nPage = static_cast<UINT>(seen);
    ShowScrollBar(Handle(), bar, needed ? TRUE : FALSE);
    if (needed) SetScrollInfo(Handle(), bar, &info, TRUE);
  };
  range(SB_VERT, tooHigh, inside.cy, height - (tooWide ? GetSystemMetrics(SM_CYHSCROLL) : 0));
  range(SB_HORZ, tooWide, inside.cx, width - (tooHigh ? GetSystemMetrics(SM_CXVSCROLL) : 0));
  ScrollTo(scrolled_);
}

void FormWindow::ScrollTo(POINT place) {
  RECT seen{};
  GetClientRect(Handle(), &seen);
  const SIZE inside = Inside();
  scrolled_.x = std::max<LONG>(0, std::min(place.x, inside.cx - seen.right));
  scrolled_.y = std::max<LONG>(0, std::min(place.y, inside.cy - seen.bottom));
  SetWindowPos(Area(), nullptr, -scrolled_.x, -scrolled_.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  const auto show = [&](int bar, LONG position) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_POS;
    info.nPos = static_cast<int>(position);
    SetScrollInfo(Handle(), bar, &info, TRUE);
  };
  if ((GetWindowLongPtrW(Handle(), GWL_STYLE) & WS_VSCROLL) != 0) show(SB_VERT, scrolled_.y);
  if ((GetWindowLongPtrW(Handle(), GWL_STYLE) & WS_HSCROLL) != 0) show(SB_HORZ, scrolled_.x);
}

void FormWindow::OnScroll(int bar, int code) {
  RECT seen{};
  GetClientRect(Handle(), &seen);
  POINT place = scrolled_;
  LONG& along = bar == SB_VERT ? place.y : place.x;
  const LONG page = bar == SB_VERT ? seen.bottom : seen.right;
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_TRACKPOS | SIF_RANGE;
  GetScrollInfo(Handle(), bar, &info);
  switch (code) {
    case SB_LINEUP: along -= Toolkit().Edge().Designed(kLine); break;
    case SB_LINEDOWN: along += Toolkit().Edge().Designed(kLine); break;
    case SB_PAGEUP: along -= page; break;
    case SB_PAGEDOWN: along += page; break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION: along = info.nTrackPos; break;
    case SB_TOP: along = 0; break;
    case SB_BOTTOM: along = info.nMax; break;
    default: return;
  }
  ScrollTo(place);
}

void FormWindow::BringIntoView(const ControlWindow& control) {
  FormWindow* const form = Of(control);
  if (form == nullptr || form->Handle() == nullptr) return;
  RECT place{};
  GetWindowRect(control.Handle(), &place);
  MapWindowPoints(nullptr, form->Area(), reinterpret_cast<POINT*>(&place), 2);
  RECT seen{};
  GetClientRect(form->Handle(), &seen);
  // With half a row of room, so that one sees that there is more.
  const LONG room = HeightOf(place) / 2;
  POINT target = form->scrolled_;
  target.y = std::max(target.y, place.bottom + room - seen.bottom);
  target.y = std::min(target.y, place.top - room);
  target.x = std::max(target.x, place.right - seen.right);
  target.x = std::min(target.x, place.left);
  if (target.x != form->scrolled_.x || target.y != form->scrolled_.y) form->ScrollTo(target);
}

void FormWindow::GiveFocus() {
  if (focused_ != nullptr && IsChild(Handle(), focused_) != FALSE && IsWindowVisible(focused_) != FALSE) {
    SetFocus(focused_);
    return;
  }
  const std::vector<ControlWindow*> stops = Stops(form_);
  const auto box = std::find_if(stops.begin(), stops.end(), [](const ControlWindow* stop) {
    return stop->IsRowElement() && stop->Control().ControlKind() == host::Kind::TextBox;
  });
  if (box != stops.end())
    (*box)->FocusByKey();
  else if (!stops.empty())
    stops.front()->FocusByKey();
}

std::string FormWindow::RowText(const controls::AnyControl& control) {
  const host::Kind kind = control.ControlKind();
  const bool ofRow = control.IsRowElement() && (kind == host::Kind::TextBox || kind == host::Kind::CheckBox);
  if (!ofRow) return {};
  const auto* const form = dynamic_cast<const FormWindow*>(control.Owner()->GetPeer());
  return form != nullptr ? form->subject_.OfRow(control.Index()) : std::string();
}

/// What the form is about stands fixed while it is open.
void FormWindow::TellSubject() {
  subject_ = Toolkit().Subject();
  Refresh(Aspect::Caption);
  std::vector<RowTips::Row> rows;
  for (const auto& control : form_.Made())
    if (const std::string text = RowText(*control); control->Index() > 0 && !text.empty())
      rows.push_back({WindowFor(*control).Handle(), Wide(text)});
  tips_ = rows.empty() ? nullptr : std::make_unique<RowTips>(Toolkit(), Handle(), rows);
}

void FormWindow::ShowModal(host::Hoofdvenster* eigenaar) {
  const auto* const given = dynamic_cast<const win32::Hoofdvenster*>(eigenaar);
  const HWND owner = given != nullptr ? GetAncestor(given->Venster(), GA_ROOT) : GetActiveWindow();
  SetWindowLongPtrW(Handle(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
  if (const controls::Button* const button = FirstButton(form_))
    static_cast<const PushWindow&>(WindowFor(*button)).ShowDefault();
  {
    const ModalTime modalTime(Toolkit().Desktop());
    // Whoever was told may have taken everything away.
    if (form_.IsUnloaded() || Handle() == nullptr) return;
    const OthersDisabled others(Handle(), owner);
    open_ = true;
    TellSubject();
    Fit();
    ShowWindow(Handle(), SW_SHOW);
    SetForegroundWindow(Handle());
    GiveFocus();
    if (Toolkit().modal) PostMessageW(Handle(), kOpened, 0, 0);
    RunLoop();
  }
  // Only now that the owner takes input again, so that Windows activates no other window.
  open_ = false;
  if (Handle() == nullptr) return;
  ShowWindow(Handle(), SW_HIDE);
  SetWindowLongPtrW(Handle(), GWLP_HWNDPARENT, 0);
  if (owner != nullptr) SetActiveWindow(owner);
}

void FormWindow::RunLoop() {
  MSG message{};
  while (open_ && Handle() != nullptr) {
    if (GetMessageW(&message, nullptr, 0, 0) <= 0) {
      // The thread is to end: the loop around this one sees to that.
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    if (Toolkit().Navigate(form_, message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

void FormWindow::Unload() {
  // The loop may be waiting for a message, and the window may be gone.
  if (std::exchange(open_, false)) PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0);
}

void FormWindow::PressDefault() {
  controls::Button* const button = FirstButton(form_);
  if (button != nullptr && button->Reachable()) static_cast<PushWindow&>(WindowFor(*button)).Press();
}

void FormWindow::Close() { controls::RowChanges::Close(form_, Toolkit()); }

LRESULT FormWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CLOSE: Close(); return 0;
    case WM_DESTROY: Unload(); break;  // with its owner
    case WM_ACTIVATE:
      if (LOWORD(wParam) == WA_INACTIVE) focused_ = GetFocus();
      break;
    case WM_SETFOCUS: GiveFocus(); return 0;
    case WM_VSCROLL: OnScroll(SB_VERT, LOWORD(wParam)); return 0;
    case WM_HSCROLL: OnScroll(SB_HORZ, LOWORD(wParam)); return 0;
    case WM_MOUSEWHEEL: OnScroll(SB_VERT, GET_WHEEL_DELTA_WPARAM(wParam) > 0 ? SB_LINEUP : SB_LINEDOWN); return 0;
    case WM_ERASEBKGND: return 1;
    case kOpened: {
      const auto life = Life();
      const std::function<void(controls::Form&)> script = Toolkit().modal;
      if (script) script(form_);
      if (!life.expired()) Unload();
      return 0;
    }
    default: break;
  }
  return Window::OnMessage(message, wParam, lParam);
}

}  // namespace brivane::win32
