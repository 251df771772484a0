#include <brivane/controls/Choices.h>
#include <brivane/controls/Dump.h>
#include <brivane/controls/TextBox.h>

namespace brivane::controls {

namespace {

DumpValue EmptyValue(frame::Format format) {
  switch (format) {
    case frame::Format::Amount:
    case frame::Format::Number:
    case frame::Format::WholeNumber: return 0.0;
    case frame::Format::Date: return host::kNoDate;
    case frame::Format::None:
    case frame::Format::Text: break;
  }
  return std::string();
}

DumpValue Content(const TextBox& box) {
  return std::visit(
      [&]<class T>(const T& value) -> DumpValue {
        if constexpr (std::is_same_v<T, std::monostate>) {
          return EmptyValue(box.Format());
        } else {
          return value;
        }
      },
      box.Content());
}

void DumpList(const ListBox& list, ControlDump& dump) { dump.list = {list.Entries(), list.ListIndex()}; }

void DumpListView(const ListView& list, ControlDump& dump) {
  dump.listView = {list.Columns(), list.Items(), list.Selected()};
}

void DumpOwn(const AnyControl& control, ControlDump& dump) {
  switch (control.ControlKind()) {
    case host::Kind::TextBox: {
      const auto& box = static_cast<const TextBox&>(control);
      dump.value = Content(box);
      dump.locked = box.Locked();
      return;
    }
    case host::Kind::JaNee: dump.value = static_cast<const JaNee&>(control).Value(); return;
    case host::Kind::CheckBox: dump.value = static_cast<const CheckBox&>(control).Value(); return;
    case host::Kind::OptionButton: dump.value = static_cast<const OptionButton&>(control).Value(); return;
    case host::Kind::ListBox: DumpList(static_cast<const ListBox&>(control), dump); return;
    case host::Kind::ListView: DumpListView(static_cast<const ListView&>(control), dump); return;
    case host::Kind::Frame:
    case host::Kind::Label:
    case host::Kind::Hint:
    case host::Kind::Button:
    case host::Kind::Surface: return;
  }
}

void DumpInto(const Surface& surface, std::vector<ControlDump>& dumps) {
  for (const auto& control : surface.Made()) {
    dumps.push_back(Dump(*control));
    if (control->ControlKind() == host::Kind::Surface) DumpInto(static_cast<const Surface&>(*control), dumps);
  }
}

}  // namespace

ControlDump Dump(const AnyControl& control) {
  const host::Control& state = control.Host();
  ControlDump dump;
  dump.name = control.ElementName();
  dump.kind = control.ControlKind();
  dump.visible = state.Visible();
  dump.enabled = state.Enabled();
  dump.place = state.Place();
  dump.backColor = state.BackColor();
  if (const auto* captioned = dynamic_cast<const host::Captioned*>(&state)) dump.caption = captioned->Caption();
  DumpOwn(control, dump);
  return dump;
}

std::vector<ControlDump> DumpAll(const Surface& surface) {
  std::vector<ControlDump> dumps;
  DumpInto(surface, dumps);
  return dumps;
}

}  // namespace brivane::controls
