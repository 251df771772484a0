#include <algorithm>

#include <brivane/controls/Caption.h>
#include <brivane/controls/Surface.h>
#include <brivane/controls/TextBox.h>
#include <brivane/toolkits/web/peers/FormDialog.h>
#include <brivane/toolkits/web/peers/ListPeer.h>
#include <brivane/toolkits/web/peers/NodePeer.h>

namespace brivane::web {

using controls::Aspect;

namespace {

/// Behind what stands in the table.
constexpr int kRows = 10000;

/// Elements lie in the page in the order in which they are gone through and read: that of the tab, what takes no focus
/// before the next that does, a frame by the first that it holds.
int OrderOf(const frame::Design& design, const frame::Row& row) {
  if (row.tab > 0) return 2 * row.tab;
  int order = kRows - 1;
  if (row.kind == host::Kind::Frame) {
    for (const frame::Row& inner : design.rows)
      if (inner.parent == row.name) order = std::min(order, OrderOf(design, inner));
    return order;
  }
  bool after = false;
  for (const frame::Row& other : design.rows) {
    if (after && other.parent == row.parent && other.tab > 0) return 2 * other.tab - 1;
    after = after || &other == &row;
  }
  return order;
}

NodeId ContainerOf(const controls::AnyControl& control) {
  if (control.Container() == nullptr) return kNoNode;
  controls::Peer* const peer = control.Container()->GetPeer();
  if (const auto* const form = dynamic_cast<const FormDialog*>(peer)) return form->Node();
  return static_cast<const NodePeer*>(peer)->Node();
}

NodeDesign DesignOf(const controls::AnyControl& control) {
  const frame::Row& row = control.Row();
  const bool made = row.index == frame::kTemplateIndex;
  return {.kind = static_cast<int>(row.kind),
          .name = control.ElementName(),
          .label = std::string(control.AccessibleName()),
          .caption = row.kind == host::Kind::Hint ? std::string(row.caption)
                                                  : controls::MarkedCaption(row, std::string(row.caption)),
          .group = row.kind == host::Kind::OptionButton ? std::string(row.name) : std::string(),
          .format = static_cast<int>(row.format),
          .order = control.Owner() == nullptr ? 0
                   : made                     ? kRows
                                              : OrderOf(control.Owner()->Table(), row),
          .bordered = row.bordered,
          .multiline = row.multiline,
          .row = made};
}

/// A surface that stands in no other one has a row of its own, which goes with it.
DesignKey KeyOf(const controls::AnyControl& control) {
  using Of = DesignKey::Of;
  if (control.Owner() == nullptr) return {static_cast<const frame::Design*>(control.Row().embedded), Of::Control};
  return {&control.Row(), control.Owner()->Owner() == nullptr ? Of::Control : Of::Embedded};
}

NodeId Made(const controls::AnyControl& control, Page& page) {
  const Standing standing{control.Host().Place(), control.Host().Visible()};
  const auto design = [&] { return DesignOf(control); };
  return page.Make(ContainerOf(control), KeyOf(control), control.Index(), design, standing);
}

}  // namespace

NodePeer::NodePeer(controls::AnyControl& control, web::Toolkit& toolkit)
    : control_(control), toolkit_(toolkit), node_(Made(control, Page())) {
  toolkit.Add(node_, *this);
}

NodePeer::~NodePeer() {
  toolkit_.Remove(node_);
  Page().Drop(node_);
}

void NodePeer::Refresh(Aspect aspect) {
  const host::Control& state = control_.Host();
  switch (aspect) {
    case Aspect::Enabled: Page().Show(node_, aspect, state.Enabled() ? 1 : 0); return GiveUpOutOfReach();
    case Aspect::Visible: Page().Show(node_, aspect, state.Visible() ? 1 : 0); return GiveUpOutOfReach();
    case Aspect::Place: return Page().Place(node_, state.Place());
    case Aspect::FontSize:
      if (const auto points = state.Read(host::Measure::FontSize)) Page().Show(node_, aspect, double{*points});
      return;
    case Aspect::BackColor:
      if (const auto color = state.BackColor()) Page().Show(node_, aspect, color->value);
      return;
    case Aspect::Caption:
      return ShowText(aspect,
                      controls::MarkedCaption(control_.Row(), dynamic_cast<const host::Captioned&>(state).Caption()));
    default: return;
  }
}

/// A choice that is under way in what can be reached no more, here or in what stands here.
void NodePeer::GiveUpOutOfReach() const {
  ListPeer* const list = toolkit_.UnderWay();
  if (list != nullptr && !list->Control().Reachable()) list->PutBack();
}

void NodePeer::TakeFocus() { Page().Show(node_, Shows::Focus); }

bool NodePeer::OnKey(const Key& key) {
  auto* const form = control_.IsRowElement() ? dynamic_cast<FormDialog*>(control_.Owner()->GetPeer()) : nullptr;
  return form != nullptr && form->OnRowKey(*this, key);
}

}  // namespace brivane::web
