#include "toolkits/win32/controls/BoxWindow.h"

#include <windowsx.h>

#include <algorithm>

#include "controls/entry/Column.h"
#include "controls/entry/Content.h"
#include "frame/Trim.h"
#include "toolkits/win32/form/FormWindow.h"
#include "toolkits/win32/window/Fonts.h"
#include "toolkits/win32/window/Text.h"

namespace brivane::win32 {

using controls::Aspect;
using frame::Format;

namespace {

constexpr UINT kTakeFocusBack = WM_APP + 1;
/// Between the edit control's edge and its text.
constexpr LONG kInnerMargin = 1;

bool IsDecimal(Format format) { return format == Format::Amount || format == Format::Number; }

Making BoxMaking(const controls::TextBox& box) {
  const bool right = IsDecimal(box.Format()) || box.Format() == Format::WholeNumber;
  return {.className = L"EDIT",
          .style = WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | WS_TABSTOP | ES_AUTOHSCROLL |
                   (right ? DWORD{ES_RIGHT} : DWORD{ES_LEFT}),
          .extendedStyle = WS_EX_CLIENTEDGE};
}

std::wstring ShownContent(const controls::BoxValue& content, Format format) {
  return Wide(controls::ShowContent(content, format));
}

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
  ShowContent();
}

BoxWindow* BoxWindow::PendingWith(HWND window) {
  const HWND focus = GetFocus();
  auto* const box = dynamic_cast<BoxWindow*>(Window::Of(focus));
  const bool same = box != nullptr && GetAncestor(focus, GA_ROOT) == GetAncestor(window, GA_ROOT);
  return same && box->HasPendingEdit() ? box : nullptr;
}

BoxWindow* BoxWindow::PendingOn(const controls::Surface& surface) {
  for (const auto& control : surface.Made()) {
    BoxWindow* found = nullptr;
    if (control->ControlKind() == host::Kind::Surface)
      found = PendingOn(static_cast<const controls::Surface&>(*control));
    else if (control->ControlKind() == host::Kind::TextBox)
      found = static_cast<BoxWindow*>(control->GetPeer());
    if (found != nullptr && found->HasPendingEdit()) return found;
  }
  return nullptr;
}

void BoxWindow::Refresh(Aspect aspect) {
  if (Handle() == nullptr) return;
  switch (aspect) {
    case Aspect::Value: ShowContent(); break;
    case Aspect::Locked: SendMessageW(Handle(), EM_SETREADONLY, box_.Locked() ? TRUE : FALSE, 0); break;
    default: ControlWindow::Refresh(aspect);
  }
}

void BoxWindow::FocusByKey() {
  TakeFocus();
  SelectAll();
}

void BoxWindow::SelectAll() const { SendMessageW(Handle(), EM_SETSEL, 0, -1); }

bool BoxWindow::IsReadOnly() const { return (GetWindowLongPtrW(Handle(), GWL_STYLE) & ES_READONLY) != 0; }

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

void BoxWindow::PaintRoomAbove(HDC context) {
  const RECT room = RoomAbove();
  const bool open = IsWindowEnabled(Handle()) != FALSE && !IsReadOnly();
  if (const HBRUSH brush = OnColor(open ? WM_CTLCOLOREDIT : WM_CTLCOLORSTATIC, context))
    FillRect(context, &room, brush);
}

/// Nothing while the box is taking an entry: what was typed stays as typed until it is accepted.
void BoxWindow::ShowContent() {
  if (!taking_) ShowText(ShownContent(box_.Content(), box_.Format()));
}

void BoxWindow::ShowText(const std::wstring& text) {
  edited_ = refused_ = false;
  bubble_.reset();
  shown_ = text;
  if (TextOf(Handle()) == text) return;
  Show([&] { SetWindowTextW(Handle(), text.c_str()); });
  SendMessageW(Handle(), EM_SETSEL, 0, 0);
  if (GetFocus() == Handle()) SelectAll();
}

void BoxWindow::TypeText(const std::wstring& text) {
  Show([&] { SetWindowTextW(Handle(), text.c_str()); });
  OnEdited();
}

void BoxWindow::OnEdited() {
  bubble_.reset();
  if (!edited_) {
    standing_ = box_.Content();
    box_.MarkEdited();
  }
  edited_ = true;
}

bool BoxWindow::CommitPending() {
  if (committing_ || !HasPendingEdit()) return true;
  const auto life = Life();
  const std::wstring typed = TextOf(Handle());
  controls::TypedContent content = controls::ReadContent(Narrow(typed), box_.Format());
  bool accepted = content.refusal.empty();
  if (accepted) {
    // What reads as what stood there is what stood there, decimals that are not shown included.
    if (typed == ShownContent(standing_, box_.Format())) content.value = standing_;
    controls::Outcome outcome = controls::Outcome::Done;
    committing_ = taking_ = true;
    Toolkit().Guard([&] { outcome = box_.Perform(controls::Enter{std::move(content.value)}); });
    if (life.expired()) return true;
    committing_ = taking_ = false;
    if (IsRowElement() && outcome != controls::Outcome::Ignored) FormWindow::MarkChanged(*this);
    accepted = outcome != controls::Outcome::Refused;
  }
  if (accepted) {
    ShowContent();
    return true;
  }
  refused_ = true;
  if (GetFocus() != Handle()) SetFocus(Handle());
  SelectAll();
  bubble_.reset();
  if (!content.refusal.empty()) ShowReason(content.refusal);
  return false;
}

void BoxWindow::ShowReason(const std::string& reason) {
  bubble_ = std::make_unique<Bubble>(Toolkit(), AreaOf(RootOf(box_)), Handle(), Font(), Wide(reason));
}

std::wstring BoxWindow::Reason() const { return bubble_ ? TextOf(bubble_->Handle()) : std::wstring(); }

bool BoxWindow::Restore() {
  if (!HasPendingEdit()) return false;
  const std::wstring standing = shown_;
  ShowText(standing);
  SelectAll();
  PutBack();
  return true;
}

/// Refused content had reached the box: what stood there goes back into it.
void BoxWindow::PutBack() {
  if (box_.Content() != standing_) box_.SetContent(standing_);
}

/// Another window, a menu or a list that drops down borrows the focus: the box has not been left.
void BoxWindow::OnLeft(HWND gaining) {
  if (!HasPendingEdit() || committing_ || gaining == nullptr || !box_.Reachable()) return;
  if (GetAncestor(gaining, GA_ROOT) != GetAncestor(Handle(), GA_ROOT)) return;
  // The focus cannot be taken back while it is being given away.
  PostMessageW(Handle(), kTakeFocusBack, 0, 0);
}

bool BoxWindow::TypeDecimalSign(WPARAM key) {
  const bool keypad = key == VK_DECIMAL || key == VK_SEPARATOR;
  if (!keypad || !IsDecimal(box_.Format()) || IsReadOnly() || !IsPlainKey()) return false;
  SendMessageW(Handle(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L","));
  return true;
}

bool BoxWindow::OnKey(WPARAM key) {
  const auto dropCharacter = [this] {
    MSG character{};
    PeekMessageW(&character, Handle(), WM_CHAR, WM_CHAR, PM_REMOVE);
    return true;
  };
  if (TypeDecimalSign(key)) return dropCharacter();
  if (key == 'A' && IsPressed(VK_CONTROL) && !IsPressed(VK_MENU)) {
    SelectAll();
    return dropCharacter();
  }
  if (!IsPlainKey()) return false;
  if (key == VK_ESCAPE) return Restore();
  if (key != VK_RETURN || IsRowElement() || !HasPendingEdit()) return false;
  const auto life = Life();
  if (CommitPending() && !life.expired()) SelectAll();
  return true;
}

void BoxWindow::OnCommand(int code) {
  if (code == EN_CHANGE && !Showing()) OnEdited();
}

void BoxWindow::Paste() {
  if (IsReadOnly()) return;
  const std::string text = ClipboardText(Handle());
  if (IsRowElement() && controls::IsColumn(text)) return PasteColumn(text);
  const std::wstring line = Wide(controls::OneLine(IsRowElement() ? frame::Trim(text) : std::string_view(text)));
  if (!line.empty()) SendMessageW(Handle(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(line.c_str()));
}

/// Fills boxes from this one down with the lines of a text, each as if typed.
void BoxWindow::PasteColumn(const std::string& text) {
  Restore();
  controls::Column column = controls::ReadColumn(text, box_);
  if (!column.refusal.empty()) return ShowReason(column.refusal);
  const auto life = Life();
  for (controls::Column::Entry& entry : column.entries) {
    controls::Outcome outcome = controls::Outcome::Done;
    Toolkit().Guard([&] { outcome = entry.box->Perform(controls::Enter{std::move(entry.value)}); });
    if (life.expired()) return;
    FormWindow::MarkChanged(*this);
    if (outcome == controls::Outcome::Refused) break;
  }
  SelectAll();
  if (!column.surplus.empty()) ShowReason(column.surplus);
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
    case kTakeFocusBack: CommitPending(); return 0;
    case WM_PASTE: Paste(); return 0;
    case WM_NCCALCSIZE: {
      const LRESULT result = ControlWindow::OnMessage(message, wParam, lParam);
      RECT& inside = *reinterpret_cast<RECT*>(lParam);  // also the first of the structure
      const LONG spare = (HeightOf(inside) - Measuring(Font()).LineHeight()) / 2 - kInnerMargin;
      inside.top += std::max<LONG>(0, spare);
      return result;
    }
    case WM_NCPAINT: {
      const LRESULT result = ControlWindow::OnMessage(message, wParam, lParam);
      const HDC context = GetWindowDC(Handle());
      PaintRoomAbove(context);
      ReleaseDC(Handle(), context);
      return result;
    }
    case WM_PRINT: {
      const LRESULT result = ControlWindow::OnMessage(message, wParam, lParam);
      if ((lParam & PRF_NONCLIENT) != 0) PaintRoomAbove(reinterpret_cast<HDC>(wParam));
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
