#include <brivane/toolkits/qt/peers/BoxPeer.h>
#include <brivane/toolkits/qt/widgets/DateBox.h>
#include <brivane/toolkits/qt/widgets/Mnemonics.h>

namespace brivane::qt {

using controls::Aspect;

namespace {

EntryBox* MakeBox(frame::Format format, QWidget* parent) {
  return format == frame::Format::Date ? new DateBox(parent) : new EntryBox(parent);
}

}  // namespace

BoxPeer::BoxPeer(controls::TextBox& box, qt::Toolkit& toolkit, QWidget* container)
    : WidgetPeer(box, toolkit, MakeBox(box.Format(), container)), box_(box) {
  Entry().Tie(box, toolkit);
  TypesNothingWithAlt(Entry());
}

/// As when Tab leads there: what is typed takes the place of what stands there.
void BoxPeer::TakeFocus() {
  WidgetPeer::TakeFocus();
  if (Widget() != nullptr) Entry().selectAll();
}

void BoxPeer::Refresh(Aspect aspect) {
  if (Widget() == nullptr) return;
  switch (aspect) {
    case Aspect::Value: Entry().Edit().ShowContent(); break;
    case Aspect::Locked: Entry().setReadOnly(box_.Locked()); break;
    default: WidgetPeer::Refresh(aspect);
  }
}

}  // namespace brivane::qt
