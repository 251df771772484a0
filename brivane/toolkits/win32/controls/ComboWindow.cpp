#include <algorithm>
#include <string>
#include <vector>

#include <brivane/toolkits/win32/controls/ComboWindow.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::win32 {

using controls::Aspect;

namespace {

constexpr int kMostShown = 12;
/// Beside the text of an entry in the dropped list.
constexpr int kEntryMargin = 8;
constexpr UINT kLeft = WM_APP + 2;

std::chrono::milliseconds Now() { return std::chrono::milliseconds(GetTickCount64()); }

}  // namespace

ComboWindow::ComboWindow(controls::ListBox& list, win32::Toolkit& toolkit)
    : ControlWindow(
          list, toolkit,
          {.className = L"COMBOBOX",
           .style = WS_CHILD | WS_CLIPSIBLINGS | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_HASSTRINGS}),
      list_(list),
      name_(std::make_unique<NameLabel>(list, toolkit)) {
  SetWindowPos(Handle(), name_->Handle(), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  Refresh(Aspect::Entries);
}

void ComboWindow::Refresh(Aspect aspect) {
  if (Handle() == nullptr) return;
  switch (aspect) {
    case Aspect::Entries:
      SendMessageW(Handle(), CB_RESETCONTENT, 0, 0);
      for (const controls::ListBox::Entry& entry : list_.Entries()) AddEntry(entry);
      ShowIndex();
      break;
    case Aspect::EntryAdded:
      AddEntry(list_.Entries().back());
      ShowIndex();
      break;
    case Aspect::ListIndex: ShowIndex(); break;
    default: ControlWindow::Refresh(aspect);
  }
}

void ComboWindow::AddEntry(const controls::ListBox::Entry& entry) const {
  const LRESULT place = SendMessageW(Handle(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(entry.text).c_str()));
  SendMessageW(Handle(), CB_SETITEMDATA, static_cast<WPARAM>(place), entry.itemData);
}

int ComboWindow::Shown() const { return static_cast<int>(SendMessageW(Handle(), CB_GETCURSEL, 0, 0)); }

void ComboWindow::ShowIndex() {
  typed_.Forget();
  SendMessageW(Handle(), CB_SETCURSEL, static_cast<WPARAM>(list_.ListIndex()), 0);
}

bool ComboWindow::IsUnderWay() const { return Handle() != nullptr && !IsDropped() && Shown() != list_.ListIndex(); }

/// The dropped list is as wide as its longest entry, so that a person reads what there is to choose.
void ComboWindow::WidenDropped() const {
  const Measuring measuring(Font());
  int longest = 0;
  for (const controls::ListBox::Entry& entry : list_.Entries())
    longest = std::max(longest, measuring.Width(Wide(entry.text)));
  const int beside = GetSystemMetrics(SM_CXVSCROLL) + Toolkit().Edge().Designed(kEntryMargin);
  SendMessageW(Handle(), CB_SETDROPPEDWIDTH, static_cast<WPARAM>(longest) + static_cast<WPARAM>(beside), 0);
}

bool ComboWindow::IsDropped() const { return SendMessageW(Handle(), CB_GETDROPPEDSTATE, 0, 0) != FALSE; }

/// The class takes the height that it is given for that of the dropped list, and makes the closed box as high as
/// its field. The height of the field is set so that the closed box is as high as the design has it.
void ComboWindow::ShowPlace() {
  const RECT place = Toolkit().Edge().Pixels(list_.Place());
  const auto row = static_cast<int>(SendMessageW(Handle(), CB_GETITEMHEIGHT, 0, 0));
  const auto put = [&] {
    SetWindowPos(Handle(), nullptr, place.left, place.top, WidthOf(place), HeightOf(place) + kMostShown * row + 2,
                 SWP_NOZORDER | SWP_NOACTIVATE);
  };
  closedHeight_ = 0;
  put();
  RECT closed{};
  GetWindowRect(Handle(), &closed);
  const LONG missing = HeightOf(place) - HeightOf(closed);
  if (missing == 0) return;
  const LRESULT field = SendMessageW(Handle(), CB_GETITEMHEIGHT, static_cast<WPARAM>(-1), 0);
  SendMessageW(Handle(), CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), std::max<LRESULT>(1, field + missing));
  closedHeight_ = HeightOf(place);
  put();
}

void ComboWindow::ShowFont() {
  ControlWindow::ShowFont();
  ShowPlace();
}

void ComboWindow::HandOver() {
  const int index = Shown();
  if (index == list_.ListIndex() || index < 0) return;
  const auto life = Life();
  Toolkit().Act(list_, controls::Choose{index}, *this);
  if (!life.expired()) ShowIndex();
}

ComboWindow* ComboWindow::UnderWayOn(const controls::Surface& surface) {
  for (const auto& control : surface.Made()) {
    ComboWindow* found = nullptr;
    if (control->ControlKind() == host::Kind::Surface)
      found = UnderWayOn(static_cast<const controls::Surface&>(*control));
    else if (control->ControlKind() == host::Kind::ListBox)
      found = static_cast<ComboWindow*>(control->GetPeer());
    if (found != nullptr && found->IsUnderWay()) return found;
  }
  return nullptr;
}

bool ComboWindow::TypeCharacter(WPARAM character) {
  if (!IsPlainKey() || character < L' ') return false;
  std::vector<std::string> entries;
  for (const controls::ListBox::Entry& entry : list_.Entries()) entries.push_back(entry.text);
  const int shown = Shown();
  const int index = typed_.Type(entries, shown, Narrow(std::wstring(1, static_cast<wchar_t>(character))), Now());
  if (index != shown) SendMessageW(Handle(), CB_SETCURSEL, static_cast<WPARAM>(index), 0);
  return true;
}

void ComboWindow::OnCommand(int code) {
  switch (code) {
    case CBN_DROPDOWN:
      givenUp_ = false;
      WidenDropped();
      break;
    case CBN_SELENDCANCEL: givenUp_ = true; break;
    case CBN_SELENDOK: givenUp_ = false; break;
    case CBN_CLOSEUP:
      if (givenUp_)
        ShowIndex();
      else
        HandOver();
      break;
    default: break;
  }
}

bool ComboWindow::OnKey(WPARAM key) {
  if (key >= VK_PRIOR && key <= VK_DOWN) typed_.Forget();
  if (key != VK_RETURN && key != VK_ESCAPE) return false;
  // The dropped list takes these before the form does.
  if (IsDropped()) {
    Default(WM_KEYDOWN, key, 0);
    return true;
  }
  if (!IsUnderWay() || !IsPlainKey()) return false;
  if (key == VK_RETURN)
    HandOver();
  else
    ShowIndex();
  return true;
}

LRESULT ComboWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_MOUSEWHEEL:
      if (IsDropped()) break;
      return SendMessageW(GetParent(Handle()), message, wParam, lParam);
    case WM_CHAR:
      if (TypeCharacter(wParam)) return 0;
      break;
    case WM_KILLFOCUS: {
      const LRESULT result = ControlWindow::OnMessage(message, wParam, lParam);
      if (!list_.Reachable()) {
        ShowIndex();
        return result;
      }
      // Another window borrows the focus; a control beside it takes it. What the choice brings about waits until the
      // focus has moved.
      const auto gaining = reinterpret_cast<HWND>(wParam);
      if (gaining != nullptr && GetAncestor(gaining, GA_ROOT) == GetAncestor(Handle(), GA_ROOT))
        PostMessageW(Handle(), kLeft, 0, 0);
      return result;
    }
    case kLeft: HandOver(); return 0;
    default: break;
  }
  const LRESULT result = ControlWindow::OnMessage(message, wParam, lParam);
  // A field does not become lower than its font; the box does.
  if (message == WM_WINDOWPOSCHANGING && closedHeight_ > 0) {
    auto& place = *reinterpret_cast<WINDOWPOS*>(lParam);
    if ((place.flags & SWP_NOSIZE) == 0) place.cy = closedHeight_;
  }
  return result;
}

}  // namespace brivane::win32
