#include "toolkits/win32/controls/ComboWindow.h"

#include <algorithm>

#include "toolkits/win32/window/Text.h"

namespace brivane::win32 {

using controls::Aspect;

namespace {

constexpr int kMostShown = 12;
/// Beside the text of an entry in the dropped list.
constexpr int kEntryMargin = 8;

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
    case Aspect::EntryAdded: AddEntry(list_.Entries().back()); break;
    case Aspect::ListIndex: ShowIndex(); break;
    default: ControlWindow::Refresh(aspect);
  }
}

void ComboWindow::AddEntry(const controls::ListBox::Entry& entry) const {
  const LRESULT place = SendMessageW(Handle(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(entry.text).c_str()));
  SendMessageW(Handle(), CB_SETITEMDATA, static_cast<WPARAM>(place), entry.itemData);
}

void ComboWindow::ShowIndex() const { SendMessageW(Handle(), CB_SETCURSEL, static_cast<WPARAM>(list_.ListIndex()), 0); }

/// The dropped list is as wide as its longest entry, so that a person reads what there is to choose.
void ComboWindow::WidenDropped() const {
  const Measuring measuring(Font());
  int longest = 0;
  for (const controls::ListBox::Entry& entry : list_.Entries())
    longest = std::max(longest, measuring.Width(Wide(entry.text)));
  const int beside = GetSystemMetrics(SM_CXVSCROLL) + Toolkit().Edge().Designed(kEntryMargin);
  SendMessageW(Handle(), CB_SETDROPPEDWIDTH, static_cast<WPARAM>(longest + beside), 0);
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

void ComboWindow::Take() {
  const auto index = static_cast<int>(SendMessageW(Handle(), CB_GETCURSEL, 0, 0));
  if (index == list_.ListIndex() || index < 0) return;
  const auto life = Life();
  Toolkit().Act(list_, controls::Choose{index}, *this);
  if (!life.expired()) ShowIndex();
}

void ComboWindow::OnCommand(int code) {
  switch (code) {
    case CBN_DROPDOWN:
      givenUp_ = false;
      WidenDropped();
      break;
    case CBN_SELENDCANCEL: givenUp_ = true; break;
    case CBN_SELENDOK: givenUp_ = false; break;
    case CBN_SELCHANGE:
      if (!IsDropped()) Take();
      break;
    case CBN_CLOSEUP:
      if (givenUp_)
        ShowIndex();
      else
        Take();
      break;
    default: break;
  }
}

/// The dropped list takes these before the form does.
bool ComboWindow::OnKey(WPARAM key) {
  if (!IsDropped() || (key != VK_RETURN && key != VK_ESCAPE)) return false;
  Default(WM_KEYDOWN, key, 0);
  return true;
}

LRESULT ComboWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  // Turning the wheel over a list that has no focus scrolls what it stands on.
  if (message == WM_MOUSEWHEEL && GetFocus() != Handle())
    return SendMessageW(GetParent(Handle()), message, wParam, lParam);
  const LRESULT result = ControlWindow::OnMessage(message, wParam, lParam);
  // A field does not become lower than its font; the box does.
  if (message == WM_WINDOWPOSCHANGING && closedHeight_ > 0) {
    auto& place = *reinterpret_cast<WINDOWPOS*>(lParam);
    if ((place.flags & SWP_NOSIZE) == 0) place.cy = closedHeight_;
  }
  return result;
}

}  // namespace brivane::win32
