#include <algorithm>

#include <brivane/controls/RowChanges.h>
#include <brivane/toolkits/web/peers/FormDialog.h>

namespace brivane::web {

using controls::Aspect;
using host::Kind;

namespace {

/// A number that no kind of control has.
constexpr int kForm = 100;

NodePeer* PeerOf(const controls::AnyControl& control) { return static_cast<NodePeer*>(control.GetPeer()); }

}  // namespace

FormDialog::FormDialog(controls::Form& form, web::Toolkit& toolkit)
    : form_(form),
      toolkit_(toolkit),
      node_(Page().Make(kNoNode, {&form.Table(), DesignKey::Of::Form}, frame::kNoIndex,
                        [&] { return NodeDesign{.kind = kForm, .name = std::string(form.Table().name)}; }, {})) {
  Refresh(Aspect::FontSize);
  Refresh(Aspect::Caption);
  Refresh(Aspect::Place);
}

FormDialog::~FormDialog() {
  toolkit_.RemoveForm(node_);
  Page().Drop(node_);
}

void FormDialog::Refresh(Aspect aspect) {
  switch (aspect) {
    case Aspect::Caption: return Page().Show(node_, aspect, 0, controls::WindowTitle(form_.Caption(), subject_));
    case Aspect::Enabled: return Page().Show(node_, aspect, form_.Enabled() ? 1 : 0);
    case Aspect::Place: return Page().Place(node_, {{0}, {0}, form_.ScaleWidth(), form_.ScaleHeight()});
    case Aspect::FontSize: return Page().Show(node_, aspect, double{form_.Table().fontSize});
    case Aspect::BackColor:
      if (const auto color = form_.BackColor()) Page().Show(node_, aspect, color->value);
      return;
    default: return;
  }
}

/// What code called the elements of rows since they were made, and what there is to know about each row.
void FormDialog::TellRows() const {
  int row = frame::kTemplateIndex;
  std::string help;
  for (const auto& control : form_.Made()) {
    if (!control->IsRowElement() || control->Index() == frame::kTemplateIndex) continue;
    if (control->Row().tab == 0) continue;
    const NodeId node = PeerOf(*control)->Node();
    Page().Show(node, Shows::Label, 0, std::string(control->AccessibleName()));
    // Those of one row stand together.
    if (row != control->Index()) help = subject_.OfRow(row = control->Index());
    if (!help.empty() && control->ControlKind() != Kind::Hint) Page().Show(node, Shows::Help, 0, help);
  }
}

void FormDialog::ShowModal(host::Hoofdvenster*) {
  if (toolkit_.modal) return toolkit_.modal(form_);
  if (!CanWait()) return;
  // What the form is about stands fixed while it is open.
  subject_ = toolkit_.Subject();
  Refresh(Aspect::Caption);
  TellRows();
  toolkit_.AddForm(node_, *this);
  open_ = Page().OpenForm(node_);
  if (!open_) return;
  for (const auto& control : form_.Made()) {
    if (!control->IsRowElement() || control->ControlKind() != Kind::TextBox || !control->Reachable()) continue;
    PeerOf(*control)->TakeFocus();
    break;
  }
  closed_.Wait();
}

void FormDialog::Unload() {
  closed_.End();
  if (std::exchange(open_, false)) Page().CloseForm(node_);
}

void FormDialog::Close() { controls::RowChanges::Close(form_, toolkit_); }

std::vector<NodePeer*> FormDialog::Stops(const frame::Row& row) const {
  std::vector<NodePeer*> stops;
  for (const auto& control : form_.Made())
    if (&control->Row() == &row && control->Reachable()) stops.push_back(PeerOf(*control));
  return stops;
}

bool FormDialog::OnRowKey(NodePeer& from, const Key& key) {
  if (!key.IsPlain() || key.shift) return false;
  const bool back = key.name == "ArrowUp" || key.name == "PageUp";
  const bool page = key.name == "PageUp" || key.name == "PageDown";
  const bool enter = key.name == "Enter";
  if (!back && !page && !enter && key.name != "ArrowDown") return false;
  const NodeId node = from.Node();
  if (!from.HandOver() || toolkit_.Find(node) != &from || toolkit_.Life()->Ended() || form_.IsUnloaded()) return true;
  if (enter)
    GoDown(from);
  else
    Step(from, back ? Direction::Back : Direction::Forward, page);
  return true;
}

/// A page is a column of rows on the screen.
void FormDialog::Step(NodePeer& from, Direction direction, bool page) {
  std::vector<NodePeer*> column = Stops(from.Control().Row());
  if (direction == Direction::Back) std::reverse(column.begin(), column.end());
  const auto here = std::find(column.begin(), column.end(), &from);
  if (here == column.end()) return;
  const host::Twips left = from.Control().Host().Place().left;
  const auto steps =
      page ? std::count_if(column.begin(), column.end(),
                           [&](const NodePeer* peer) { return peer->Control().Host().Place().left == left; })
           : 1;
  const auto far = std::min<std::ptrdiff_t>(steps, std::distance(here, std::prev(column.end())));
  if (far > 0) (*std::next(here, far))->TakeFocus();
}

void FormDialog::GoDown(NodePeer& from) {
  const frame::Row& row = from.Control().Row();
  bool after = false;
  for (const auto& control : form_.Made()) {
    if (&control->Row() != &row || !control->Reachable()) continue;
    if (after) return PeerOf(*control)->TakeFocus();
    after = PeerOf(*control) == &from;
  }
  LeaveRows(row);
}

/// To what follows the rows in the tab order.
void FormDialog::LeaveRows(const frame::Row& row) const {
  const controls::AnyControl* next = nullptr;
  for (const auto& control : form_.Made()) {
    const bool later = !control->IsRowElement() && control->Row().tab > row.tab && control->Reachable();
    if (later && (next == nullptr || control->Row().tab < next->Row().tab)) next = control.get();
  }
  if (next != nullptr) PeerOf(*next)->TakeFocus();
}

}  // namespace brivane::web
