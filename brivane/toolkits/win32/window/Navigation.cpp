#include <algorithm>
#include <cwctype>
#include <set>

#include <brivane/controls/Caption.h>
#include <brivane/controls/Choices.h>
#include <brivane/controls/Entrance.h>
#include <brivane/controls/Plain.h>
#include <brivane/toolkits/win32/controls/BoxWindow.h>
#include <brivane/toolkits/win32/controls/ComboWindow.h>
#include <brivane/toolkits/win32/form/FormWindow.h>
#include <brivane/toolkits/win32/window/Navigation.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::win32 {

using controls::AnyControl;
using host::Kind;

namespace {

bool IsRow(const AnyControl& control) { return control.Row().index == frame::kTemplateIndex; }
bool IsStop(const AnyControl& control) {
  return frame::detail::TakesFocus(control.ControlKind()) && control.Reachable();
}

bool IsOptionOf(const AnyControl& control, const AnyControl& other) {
  return control.ControlKind() == Kind::OptionButton && control.DesignName() == other.DesignName() &&
         control.Owner() == other.Owner();
}

/// The options of a group that a person can go to, in the order of the screen.
std::vector<AnyControl*> GroupOf(const AnyControl& option) {
  std::vector<AnyControl*> group;
  for (const auto& control : option.Owner()->Made())
    if (IsOptionOf(*control, option) && control->Reachable()) group.push_back(control.get());
  std::sort(group.begin(), group.end(), [](auto* a, auto* b) { return a->Row().tab < b->Row().tab; });
  return group;
}

/// The stop of a group: its selected option, else the first.
AnyControl* StopOf(const std::vector<AnyControl*>& group) {
  const auto selected = std::find_if(group.begin(), group.end(), [](const AnyControl* option) {
    return static_cast<const controls::OptionButton*>(option)->Value();
  });
  return selected != group.end() ? *selected : group.front();
}

void Collect(const controls::Surface& surface, std::vector<AnyControl*>& stops) {
  std::vector<AnyControl*> designed;
  for (const auto& control : surface.Made())
    if (control->Row().tab > 0 && control->Index() == control->Row().index) designed.push_back(control.get());
  std::sort(designed.begin(), designed.end(), [](auto* a, auto* b) { return a->Row().tab < b->Row().tab; });
  std::set<std::string_view> groups;
  std::set<const AnyControl*> rowAreas;
  for (AnyControl* control : designed) {
    if (control->ControlKind() == Kind::Surface) {
      Collect(static_cast<const controls::Surface&>(*control), stops);
    } else if (control->ControlKind() == Kind::OptionButton) {
      if (!groups.insert(control->DesignName()).second) continue;
      if (const auto group = GroupOf(*control); !group.empty()) stops.push_back(StopOf(group));
    } else if (IsRow(*control)) {
      if (!rowAreas.insert(control->Container()).second) continue;
      for (const auto& element : surface.Made())
        if (IsRow(*element) && element->Container() == control->Container() && IsStop(*element))
          stops.push_back(element.get());
    } else if (IsStop(*control)) {
      stops.push_back(control);
    }
  }
}

FormWindow* FormOf(ControlWindow& window) { return dynamic_cast<FormWindow*>(RootOf(window.Control()).GetPeer()); }

/// Hands over what is being typed or chosen in a window. False where it was refused, or where nothing is left to go
/// on from.
bool CommitBox(ControlWindow& window) {
  const auto life = window.Life();
  if (auto* const list = dynamic_cast<ComboWindow*>(&window); list != nullptr && list->IsUnderWay()) list->HandOver();
  if (life.expired()) return false;
  auto* const box = dynamic_cast<BoxWindow*>(&window);
  return (box == nullptr || box->CommitPending()) && !life.expired();
}

/// An arrow in a group of options selects the next one.
bool MoveInGroup(ControlWindow& from, Direction direction) {
  const std::vector<AnyControl*> group = GroupOf(from.Control());
  const auto here = std::find(group.begin(), group.end(), &from.Control());
  if (here == group.end()) return false;
  AnyControl* next = nullptr;
  if (direction == Direction::Forward)
    next = std::next(here) != group.end() ? *std::next(here) : group.front();
  else
    next = here != group.begin() ? *std::prev(here) : group.back();
  ControlWindow& window = WindowFor(*next);
  window.FocusByKey();
  window.Toolkit().Act(*next, controls::Select{}, window);
  return true;
}

/// What is being typed elsewhere goes first, and may disable what a frame leads to.
void EnterFrame(const AnyControl& frame) {
  ControlWindow& window = WindowFor(frame);
  const auto life = window.Life();
  if (!window.Toolkit().LeaveBox(window) || life.expired()) return;
  if (const AnyControl* const entrance = controls::EntranceOf(frame)) WindowFor(*entrance).FocusByKey();
}

/// The letter after the marking "&" of a caption, as a small letter; 0 where none is marked.
wchar_t MnemonicOf(const AnyControl& control) {
  const auto* const captioned = dynamic_cast<const host::Captioned*>(&control.Host());
  if (captioned == nullptr) return 0;
  const std::wstring marked = Wide(controls::MarkedCaption(control.Row(), captioned->Caption()));
  for (std::size_t i = 0; i + 1 < marked.size(); ++i) {
    if (marked[i] != L'&') continue;
    if (marked[i + 1] != L'&') return static_cast<wchar_t>(std::towlower(marked[i + 1]));
    ++i;
  }
  return 0;
}

/// The elements of a control array of rows that a person can go to.
std::vector<ControlWindow*> ColumnOf(const ControlWindow& element) {
  std::vector<ControlWindow*> column = Stops(RootOf(element.Control()));
  std::erase_if(column, [&](const ControlWindow* stop) { return &stop->Control().Row() != &element.Control().Row(); });
  return column;
}

}  // namespace

std::vector<ControlWindow*> Stops(const controls::Surface& root) {
  std::vector<AnyControl*> controls;
  Collect(root, controls);
  std::vector<ControlWindow*> stops;
  for (const AnyControl* control : controls)
    if (ControlWindow& window = WindowFor(*control); window.Handle() != nullptr) stops.push_back(&window);
  return stops;
}

bool FocusEnd(const controls::Surface& root, Direction direction) {
  const std::vector<ControlWindow*> stops = Stops(root);
  if (stops.empty()) return false;
  (direction == Direction::Forward ? stops.front() : stops.back())->FocusByKey();
  return true;
}

bool Step(ControlWindow& from, Direction direction) {
  const controls::Surface& root = RootOf(from.Control());
  const bool form = FormOf(from) != nullptr;
  AnyControl& current = from.Control();
  if (!CommitBox(from)) return true;
  // What was handed over may have hidden or disabled anything.
  const std::vector<ControlWindow*> stops = Stops(root);
  const auto here = std::find_if(stops.begin(), stops.end(), [&](const ControlWindow* stop) {
    return &stop->Control() == &current ||
           (current.ControlKind() == Kind::OptionButton && IsOptionOf(stop->Control(), current));
  });
  if (stops.empty()) return form;
  if (here == stops.end()) return FocusEnd(root, direction);
  if (direction == Direction::Forward) {
    if (std::next(here) != stops.end()) return (*std::next(here))->FocusByKey(), true;
  } else if (here != stops.begin()) {
    return (*std::prev(here))->FocusByKey(), true;
  }
  return form && FocusEnd(root, direction);
}

bool StepInColumn(ControlWindow& from, Direction direction) {
  if (!CommitBox(from)) return false;
  const std::vector<ControlWindow*> column = ColumnOf(from);
  const auto here = std::find(column.begin(), column.end(), &from);
  if (here == column.end()) return false;
  if (direction == Direction::Back ? here == column.begin() : std::next(here) == column.end()) return false;
  (direction == Direction::Back ? *std::prev(here) : *std::next(here))->FocusByKey();
  return true;
}

void StepPage(ControlWindow& from, Direction direction) {
  if (!CommitBox(from)) return;
  std::vector<ControlWindow*> column = ColumnOf(from);
  if (direction == Direction::Back) std::reverse(column.begin(), column.end());
  const auto here = std::find(column.begin(), column.end(), &from);
  if (here == column.end()) return;
  const host::Twips left = from.Control().Host().Place().left;
  const auto page = std::count_if(column.begin(), column.end(), [&](const ControlWindow* stop) {
    return stop->Control().Host().Place().left == left;
  });
  (*std::next(here, std::min(page, std::distance(here, std::prev(column.end())))))->FocusByKey();
}

void EnterAndGoDown(ControlWindow& from) {
  if (!CommitBox(from) || StepInColumn(from, Direction::Forward)) return;
  const std::vector<ControlWindow*> stops = Stops(RootOf(from.Control()));
  auto next = std::find(stops.begin(), stops.end(), &from);
  while (next != stops.end() && (*next)->IsRowElement()) ++next;
  if (next != stops.end()) (*next)->FocusByKey();
}

bool MoveByKey(ControlWindow& from, WPARAM key) {
  if (!IsPlainKey()) return false;
  const bool option = from.Control().ControlKind() == Kind::OptionButton;
  switch (key) {
    case VK_TAB: return Step(from, IsPressed(VK_SHIFT) ? Direction::Back : Direction::Forward);
    case VK_UP:
      if (from.IsRowElement()) return StepInColumn(from, Direction::Back), true;
      return option && MoveInGroup(from, Direction::Back);
    case VK_DOWN:
      if (from.IsRowElement()) return StepInColumn(from, Direction::Forward), true;
      return option && MoveInGroup(from, Direction::Forward);
    case VK_PRIOR: return from.IsRowElement() && (StepPage(from, Direction::Back), true);
    case VK_NEXT: return from.IsRowElement() && (StepPage(from, Direction::Forward), true);
    case VK_LEFT: return option && MoveInGroup(from, Direction::Back);
    case VK_RIGHT: return option && MoveInGroup(from, Direction::Forward);
    case VK_RETURN:
      if (from.IsRowElement()) return EnterAndGoDown(from), true;
      if (FormWindow* const form = FormOf(from)) return form->PressDefault(), true;
      return false;
    case VK_ESCAPE:
      if (FormWindow* const form = FormOf(from)) return form->Close(), true;
      return false;
    default: return false;
  }
}

bool PressMnemonic(const controls::Surface& root, wchar_t letter) {
  const auto wanted = static_cast<wchar_t>(std::towlower(letter));
  const auto& made = root.Made();
  for (std::size_t i = 0; i < made.size(); ++i) {
    AnyControl& control = *made[i];
    if (control.ControlKind() == Kind::Surface) {
      if (PressMnemonic(static_cast<const controls::Surface&>(control), letter)) return true;
      continue;
    }
    if (MnemonicOf(control) != wanted || !control.Reachable()) continue;
    if (control.ControlKind() == Kind::Frame) {
      if (control.Row().mnemonic == '\0' || controls::EntranceOf(control) == nullptr) continue;
      return EnterFrame(control), true;
    }
    AnyControl* target = &control;
    if (control.ControlKind() == Kind::Label) {
      if (control.Row().mnemonic == '\0' || i + 1 == made.size() || !IsStop(*made[i + 1])) continue;
      target = made[i + 1].get();
    }
    ControlWindow& window = WindowFor(*target);
    const auto life = window.Life();
    if (window.Toolkit().LeaveBox(window) && !life.expired() && target->Reachable()) window.Choose();
    return true;
  }
  return false;
}

void LeaveInside(const ControlWindow& window) {
  const HWND focus = GetFocus();
  if (focus == nullptr || (focus != window.Handle() && IsChild(window.Handle(), focus) == FALSE)) return;
  const std::vector<ControlWindow*> stops = Stops(RootOf(window.Control()));
  const HWND inside = window.Handle();
  const auto outside = [&](const ControlWindow* stop) {
    return stop->Handle() != inside && IsChild(inside, stop->Handle()) == FALSE;
  };
  // The first stop after it in the tab order; the control is no stop itself any more.
  const auto* const current = dynamic_cast<const ControlWindow*>(Window::Of(focus));
  const int tab = current != nullptr ? current->Control().Row().tab : 0;
  auto next = std::find_if(stops.begin(), stops.end(), [&](const ControlWindow* stop) {
    return outside(stop) && current != nullptr && stop->Control().Owner() == current->Control().Owner() &&
           stop->Control().Row().tab >= tab;
  });
  if (next == stops.end()) next = std::find_if(stops.begin(), stops.end(), outside);
  SetFocus(next != stops.end() ? (*next)->Handle() : AreaOf(RootOf(window.Control())));
}

}  // namespace brivane::win32
