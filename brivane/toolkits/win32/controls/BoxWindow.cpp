#include <windowsx.h>

#include <algorithm>

#include <brivane/toolkits/win32/controls/BoxWindow.h>
#include <brivane/toolkits/win32/window/Fonts.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::win32 {

using controls::Aspect;
using frame::Format;

namespace {

constexpr UINT kTakeFocusBack = WM_APP + 1;
/// Between the edit control's edge and its text.
constexpr LONG kInnerMargin = 1;

Making BoxMaking(const controls::TextBox& box) {
  const bool left = box.Format() == Format::Text || box.Format() == Format::Date;
  return {.className = L"EDIT",
          .style = WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | WS_TABSTOP | ES_AUTOHSCROLL |
                   (left ? DWORD{ES_LEFT} : DWORD{ES_RIGHT}),
          .extendedStyle = WS_EX_CLIENTEDGE};
}

/// What a window draws on to reach its frame.
class WholeWindow {
 public:
  explicit WholeWindow(HWND window) : window_(window), context_(GetWindowDC(window)) {}
  WholeWindow(const WholeWindow&) = delete;
  WholeWindow& operator=(const WholeWindow&) = delete;
  ~WholeWindow() { ReleaseDC(window_, context_); }
  [[nodiscard]] HDC Context() const { return context_; }

 private:
  HWND window_;
  HDC context_;
};

std::string ClipboardText(HWND window) {
  std::string text;
  if (OpenClipboard(window) == FALSE) return text;
  if (const HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
    if (const auto* content = static_cast<const wchar_t*>(GlobalLock(data))) text = Narrow(content);
    GlobalUnlock(data);
  }
  CloseClipboard();
  return text;
}

}  // namespace

BoxWindow::BoxWindow(controls::TextBox& box, win32::Toolkit& toolkit)
    : ControlWindow(box, toolkit, BoxMaking(box)), box_(box), name_(std::make_unique<NameLabel>(box, toolkit)) {
  SetWindowPos(Handle(), name_->Handle(), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  if (box.Locked()) Refresh(Aspect::Locked);
  edit_.Tie(box, toolkit);
}

BoxWindow* BoxWindow::PendingWith(HWND window) {
  const HWND focus = GetFocus();
  auto* const box = dynamic_cast<BoxWindow*>(Window::Of(focus));
  const bool same = box != nullptr && GetAncestor(focus, GA_ROOT) == GetAncestor(window, GA_ROOT);
  return same && box->edit_.IsPending() ? box : nullptr;
}

void BoxWindow::Refresh(Aspect aspect) {
  if (Handle() == nullptr) return;
  switch (aspect) {
    case Aspect::Value: edit_.ShowContent(); break;
    case Aspect::Locked: SendMessageW(Handle(), EM_SETREADONLY, box_.Locked() ? TRUE : FALSE, 0); break;
    default: ControlWindow::Refresh(aspect);
  }
}

void BoxWindow::FocusByKey() {
  TakeFocus();
  SelectAll();
}

void BoxWindow::SelectAll() { SendMessageW(Handle(), EM_SETSEL, 0, -1); }

bool BoxWindow::ReadOnly() const { return (GetWindowLongPtrW(Handle(), GWL_STYLE) & ES_READONLY) != 0; }

void BoxWindow::ShowVisible() {
  if (!box_.Visible()) bubble_.reset();
  ControlWindow::ShowVisible();
}

void BoxWindow::ShowFont() {
  ControlWindow::ShowFont();
  SetWindowPos(Handle(), nullptr, 0, 0, 0, 0,
               SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void BoxWindow::ShowBackColor() { RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME); }

/// The room inside the edge above the text: an edit control of one line begins at its top, so that top is made
/// lower for the text to stand in the middle. In pixels of the window.
RECT BoxWindow::RoomAbove() const {
  RECT window{};
  GetWindowRect(Handle(), &window);
  const LONG across = GetSystemMetrics(SM_CXEDGE);
  const LONG along = GetSystemMetrics(SM_CYEDGE);
  const LONG spare = (HeightOf(window) - 2 * along - Measuring(Font()).LineHeight()) / 2 - kInnerMargin;
  return {across, along, std::max(across, WidthOf(window) - across), along + std::max<LONG>(0, spare)};
}

void BoxWindow::PaintFrame(HDC context) {
  const RECT room = RoomAbove();
  const bool open = IsWindowEnabled(Handle()) != FALSE && !ReadOnly();
  if (const HBRUSH brush = OnColor(open ? WM_CTLCOLOREDIT : WM_CTLCOLORSTATIC, context))
    FillRect(context, &room, brush);
}

bool BoxWindow::IsAtHand() const {
  for (HWND window = Handle(); window != nullptr; window = GetAncestor(window, GA_PARENT)) {
    if (IsWindowEnabled(window) == FALSE) return false;
    if ((GetWindowLongPtrW(window, GWL_STYLE) & WS_CHILD) == 0) break;
  }
  return IsWindowVisible(Handle()) != FALSE;
}

std::string BoxWindow::Text() const { return Narrow(TextOf(Handle())); }

void BoxWindow::ShowText(const std::string& text) {
  Show([&] { SetWindowTextW(Handle(), Wide(text).c_str()); });
  SendMessageW(Handle(), EM_SETSEL, 0, 0);
}

void BoxWindow::InsertText(const std::string& text) {
  SendMessageW(Handle(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(Wide(text).c_str()));
}

void BoxWindow::ShowReason(const std::string& reason) {
  bubble_ = std::make_unique<Bubble>(Toolkit(), AreaOf(RootOf(box_)), Handle(), Font(), Wide(reason), Saying::Reason);
  isNote_ = false;
}

void BoxWindow::ShowNote(const std::string& note) {
  bubble_ = std::make_unique<Bubble>(Toolkit(), AreaOf(RootOf(box_)), Handle(), Font(), Wide(note), Saying::Note);
  isNote_ = true;
}

std::wstring BoxWindow::Reason() const { return bubble_ && !isNote_ ? TextOf(bubble_->Handle()) : std::wstring(); }
std::wstring BoxWindow::Note() const { return bubble_ && isNote_ ? TextOf(bubble_->Handle()) : std::wstring(); }

/// Another window, a menu or a list that drops down borrows the focus: the box has not been left.
void BoxWindow::OnLeft(HWND gaining) {
  if (edit_.IsCommitting() || gaining == nullptr || !box_.Reachable()) return;
  if (GetAncestor(gaining, GA_ROOT) != GetAncestor(Handle(), GA_ROOT)) return;
  // Nothing to hand over: what was refused, as a pasted column is, has been given up.
  if (!edit_.IsPending()) return HideReason();
  // The focus cannot be taken back while it is being given away.
  PostMessageW(Handle(), kTakeFocusBack, 0, 0);
}

void BoxWindow::DropCharacter() const {
  MSG character{};
  PeekMessageW(&character, Handle(), WM_CHAR, WM_CHAR, PM_REMOVE);
}

bool BoxWindow::OnKey(WPARAM key) {
  const bool keypadSign = key == VK_DECIMAL || key == VK_SEPARATOR;
  if (keypadSign && IsPlainKey() && edit_.TypeDecimalSign()) return DropCharacter(), true;
  if (key == 'A' && IsPressed(VK_CONTROL) && !IsPressed(VK_MENU)) {
    SelectAll();
    DropCharacter();
    return true;
  }
  if (!IsPlainKey()) return false;
  if (key == VK_ESCAPE) return edit_.Restore();
  if (key != VK_RETURN || IsRowElement() || !edit_.IsPending()) return false;
  edit_.CommitAndSelect();
  return true;
}

void BoxWindow::OnCommand(int code) {
  if (code == EN_CHANGE && !Showing()) edit_.Typed();
}

LRESULT BoxWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  // The class expects that the first of two clicks gave it the focus; a key may have led away between them.
  if (message == WM_LBUTTONDBLCLK && GetFocus() != Handle()) message = WM_LBUTTONDOWN;
  switch (message) {
    case WM_KILLFOCUS: {
      const LRESULT result = ControlWindow::OnMessage(message, wParam, lParam);
      OnLeft(reinterpret_cast<HWND>(wParam));
      return result;
    }
    case kTakeFocusBack: edit_.Commit(); return 0;
    case WM_PASTE: edit_.Paste(ClipboardText(Handle())); return 0;
    case WM_NCCALCSIZE: {
      const LRESULT result = ControlWindow::OnMessage(message, wParam, lParam);
      RECT& inside = *reinterpret_cast<RECT*>(lParam);  // also the first of the structure
      const LONG spare = (HeightOf(inside) - Measuring(Font()).LineHeight()) / 2 - kInnerMargin;
      inside.top += std::max<LONG>(0, spare);
      return result;
    }
    case WM_NCPAINT: {
      const LRESULT result = ControlWindow::OnMessage(message, wParam, lParam);
      PaintFrame(WholeWindow(Handle()).Context());
      return result;
    }
    case WM_PRINT: {
      const LRESULT result = ControlWindow::OnMessage(message, wParam, lParam);
      if ((lParam & PRF_NONCLIENT) != 0) PaintFrame(reinterpret_cast<HDC>(wParam));
      return result;
    }
    case WM_NCHITTEST: {
      const LRESULT result = ControlWindow::OnMessage(message, wParam, lParam);
      RECT window{};
      GetWindowRect(Handle(), &window);
      RECT room = RoomAbove();
      OffsetRect(&room, window.left, window.top);
      return PtInRect(&room, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}) != FALSE ? HTCLIENT : result;
    }
    case WM_ENABLE:
    case EM_SETREADONLY: {
      const LRESULT result = ControlWindow::OnMessage(message, wParam, lParam);
      RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
      return result;
    }
    default: return ControlWindow::OnMessage(message, wParam, lParam);
  }
}

}  // namespace brivane::win32
