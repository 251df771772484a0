#include "toolkits/win32/BoxWindow.h"

#include "toolkits/entry/Column.h"
#include "toolkits/entry/Content.h"
#include "toolkits/entry/Trim.h"
#include "toolkits/win32/FormWindow.h"
#include "toolkits/win32/Text.h"

namespace brivane::win32 {

using frame::Format;
using headless::Aspect;

namespace {

constexpr UINT kTakeFocusBack = WM_APP + 1;

bool IsDecimal(Format format) { return format == Format::Amount || format == Format::Number; }

Making BoxMaking(const headless::TextBox& box) {
  const bool right = IsDecimal(box.Format()) || box.Format() == Format::WholeNumber;
  return {.className = L"EDIT",
          .style = WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | WS_TABSTOP | ES_AUTOHSCROLL |
                   (right ? DWORD{ES_RIGHT} : DWORD{ES_LEFT}),
          .extendedStyle = WS_EX_CLIENTEDGE};
}

std::wstring ShownContent(const headless::BoxValue& content, Format format) {
  return Wide(entry::ShowContent(content, format));
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

BoxWindow::BoxWindow(headless::TextBox& box, win32::Toolkit& toolkit)
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

BoxWindow* BoxWindow::PendingOn(const headless::Surface& surface) {
  for (const auto& control : surface.Made()) {
    BoxWindow* found = nullptr;
    if (control->ControlKind() == host::Kind::Surface)
      found = PendingOn(static_cast<const headless::Surface&>(*control));
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

void BoxWindow::ShowBackColor() { InvalidateRect(Handle(), nullptr, TRUE); }

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
  entry::TypedContent content = entry::ReadContent(Narrow(typed), box_.Format());
  bool accepted = content.refusal.empty();
  if (accepted) {
    // What reads as what stood there is what stood there, decimals that are not shown included.
    if (typed == ShownContent(standing_, box_.Format())) content.value = standing_;
    headless::Outcome outcome = headless::Outcome::Done;
    committing_ = taking_ = true;
    Toolkit().Guard([&] { outcome = box_.Perform(headless::Enter{std::move(content.value)}); });
    if (life.expired()) return true;
    committing_ = taking_ = false;
    if (IsRowElement() && outcome != headless::Outcome::Ignored) FormWindow::MarkChanged(*this);
    accepted = outcome != headless::Outcome::Refused;
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
  if (IsRowElement() && entry::IsColumn(text)) return PasteColumn(text);
  const std::wstring line = Wide(entry::OneLine(IsRowElement() ? entry::Trim(text) : std::string_view(text)));
  if (!line.empty()) SendMessageW(Handle(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(line.c_str()));
}

/// Fills boxes from this one down with the lines of a text, each as if typed.
void BoxWindow::PasteColumn(const std::string& text) {
  Restore();
  entry::Column column = entry::ReadColumn(text, box_);
  if (!column.refusal.empty()) return ShowReason(column.refusal);
  const auto life = Life();
  for (entry::Column::Entry& entry : column.entries) {
    headless::Outcome outcome = headless::Outcome::Done;
    Toolkit().Guard([&] { outcome = entry.box->Perform(headless::Enter{std::move(entry.value)}); });
    if (life.expired()) return;
    FormWindow::MarkChanged(*this);
    if (outcome == headless::Outcome::Refused) break;
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
    default: return ControlWindow::OnMessage(message, wParam, lParam);
  }
}

}  // namespace brivane::win32
