#include <optional>

#include <brivane/controls/Caption.h>
#include <brivane/toolkits/win32/controls/PlainWindows.h>
#include <brivane/toolkits/win32/window/Navigation.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::win32 {

using controls::Aspect;

namespace {

constexpr DWORD kAreaStyle = WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS;

Making FrameMaking(const frame::Row& row) {
  if (row.bordered)
    return {.className = L"BUTTON", .style = kAreaStyle | BS_GROUPBOX, .extendedStyle = WS_EX_CONTROLPARENT};
  return {.className = kAreaClass, .style = kAreaStyle, .extendedStyle = WS_EX_CONTROLPARENT};
}

Making LabelMaking(const frame::Row& row) {
  const DWORD kind = row.multiline ? DWORD{SS_LEFT} : SS_LEFTNOWORDWRAP | SS_CENTERIMAGE;
  return {.className = L"STATIC",
          .style = WS_CHILD | WS_CLIPSIBLINGS | kind | (row.mnemonic == '\0' ? SS_NOPREFIX : 0U)};
}

}  // namespace

FrameWindow::FrameWindow(controls::Frame& frame, win32::Toolkit& toolkit)
    : ControlWindow(frame, toolkit, FrameMaking(frame.Row())), frame_(frame) {
  Refresh(Aspect::Caption);
}

void FrameWindow::Refresh(Aspect aspect) {
  if (aspect != Aspect::Caption) return ControlWindow::Refresh(aspect);
  // The class draws a caption in a place exactly as wide as it measures, and may cut the last letter.
  const std::string marked = controls::MarkedCaption(frame_.Row(), frame_.Caption());
  SetText(marked.empty() ? marked : marked + ' ');
}

LabelWindow::LabelWindow(controls::Label& label, win32::Toolkit& toolkit)
    : ControlWindow(label, toolkit, LabelMaking(label.Row())), label_(label) {
  Refresh(Aspect::Caption);
}

void LabelWindow::Refresh(Aspect aspect) {
  if (aspect != Aspect::Caption) return ControlWindow::Refresh(aspect);
  const bool leads = label_.Row().mnemonic != '\0';
  SetText(leads ? controls::MarkedCaption(label_.Row(), label_.Caption()) : label_.Caption());
}

SurfaceWindow::SurfaceWindow(controls::Surface& surface, win32::Toolkit& toolkit)
    : ControlWindow(surface, toolkit,
                    {.className = kAreaClass, .style = kAreaStyle, .extendedStyle = WS_EX_CONTROLPARENT}),
      surface_(surface) {}

void SurfaceWindow::Refresh(Aspect aspect) {
  if (aspect != Aspect::Veil) return ControlWindow::Refresh(aspect);
  if (Handle() != nullptr) ShowVeil();
}

/// Screen readers have the veil's text too.
void SurfaceWindow::ShowVeil() {
  const bool veiled = surface_.IsVeiled();
  for (const auto& control : surface_.Made()) control->GetPeer()->Refresh(Aspect::Visible);
  // In a disabled window nothing can be given the focus, what is hidden included.
  if (const HWND focus = GetFocus(); veiled && (focus == Handle() || IsChild(Handle(), focus) != FALSE))
    SetFocus(GetParent(Handle()));
  EnableWindow(Handle(), !veiled && surface_.Host().Enabled() ? TRUE : FALSE);
  SetText(veiled ? Toolkit().Texts().Of(frame::TextId::NothingOpen) : std::string());
  RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE);
}

void SurfaceWindow::DrawVeil(HDC context) const {
  RECT area{};
  GetClientRect(Handle(), &area);
  const HGDIOBJ before = SelectObject(context, Font());
  SetBkMode(context, TRANSPARENT);
  const std::optional<COLORREF> own = OwnColor(BackgroundOf(surface_));
  SetTextColor(context, own ? TextOn(*own) : GetSysColor(COLOR_BTNTEXT));
  const std::wstring text = Wide(Toolkit().Texts().Of(frame::TextId::NothingOpen));
  DrawTextW(context, text.c_str(), -1, &area, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
  SelectObject(context, before);
}

LRESULT SurfaceWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_ERASEBKGND && surface_.IsVeiled()) {
    const LRESULT result = ControlWindow::OnMessage(message, wParam, lParam);
    DrawVeil(reinterpret_cast<HDC>(wParam));
    return result;
  }
  // A container gives the focus to the surface as a whole.
  if (message == WM_SETFOCUS && surface_.Owner() == nullptr && FocusEnd(surface_, Direction::Forward)) return 0;
  return ControlWindow::OnMessage(message, wParam, lParam);
}

/// A surface of its own is shown and hidden by its container.
void SurfaceWindow::ShowVisible() {
  if (surface_.Owner() != nullptr) return ControlWindow::ShowVisible();
  ShowWindow(Handle(), surface_.Host().Visible() ? SW_SHOWNA : SW_HIDE);
}

/// A surface of its own is moved by its container.
void SurfaceWindow::ShowPlace() {
  if (surface_.Owner() != nullptr) return ControlWindow::ShowPlace();
  const host::Place place = surface_.Host().Place();
  const SIZE size = Toolkit().Edge().Pixels(place.width, place.height);
  SetWindowPos(Handle(), nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace brivane::win32
