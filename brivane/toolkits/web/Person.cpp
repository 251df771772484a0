#include <brivane/toolkits/web/Person.h>
#include <brivane/toolkits/web/peers/FormDialog.h>

namespace brivane::web {

namespace {

enum Modifiers : unsigned { kShift = 1, kControl = 2, kAlt = 4, kKeypad = 8 };

Key KeyOf(const Done& done) {
  const auto with = static_cast<unsigned>(done.number);
  return {done.text, (with & kShift) != 0, (with & kControl) != 0, (with & kAlt) != 0, (with & kKeypad) != 0};
}

bool HandTo(Toolkit& toolkit, controls::Surface& surface, const Done& done) {
  NodePeer* const peer = toolkit.Find(done.node);
  FormDialog* const form = toolkit.FindForm(done.node);
  if (done.deed == Deed::Letter) return toolkit.GoByLetter(form != nullptr ? form->Form() : surface, done.text.front());
  if (done.deed == Deed::Close && form != nullptr) form->Close();
  if (peer == nullptr) return false;
  switch (done.deed) {
    case Deed::Key: return peer->OnKey(KeyOf(done));
    case Deed::Typed: peer->OnTyped(done.text); return true;
    case Deed::Pasted: peer->OnPasted(done.text); return true;
    case Deed::Left: peer->OnLeft(); return true;
    case Deed::Picked: peer->OnPicked(done.number); return true;
    default: return false;
  }
}

}  // namespace

bool Does(Toolkit& toolkit, controls::Surface& surface, const Done& done) {
  bool meant = false;
  toolkit.Guard([&] { meant = HandTo(toolkit, surface, done); });
  return meant;
}

bool MindsBeingLeft(const Toolkit& toolkit, NodeId node) {
  const NodePeer* const peer = toolkit.Find(node);
  return peer != nullptr && peer->MindsBeingLeft();
}

host::Date DayIn(const Toolkit& toolkit, NodeId node) {
  const NodePeer* const peer = toolkit.Find(node);
  return peer != nullptr ? peer->Day() : host::kNoDate;
}

}  // namespace brivane::web
