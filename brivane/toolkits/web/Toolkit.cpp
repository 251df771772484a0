#include <algorithm>

#include <brivane/controls/Choices.h>
#include <brivane/controls/Entrance.h>
#include <brivane/controls/Surface.h>
#include <brivane/controls/TextBox.h>
#include <brivane/controls/entry/PendingEdit.h>
#include <brivane/toolkits/memory/TextMeasure.h>
#include <brivane/toolkits/web/Toolkit.h>
#include <brivane/toolkits/web/peers/FormDialog.h>
#include <brivane/toolkits/web/peers/ListPeer.h>
#include <brivane/toolkits/web/peers/Peers.h>

namespace brivane::web {

namespace {

const controls::Surface& Outermost(const controls::AnyControl& control) {
  const auto* surface = control.Owner() != nullptr ? control.Owner() : dynamic_cast<const controls::Surface*>(&control);
  while (surface->Owner() != nullptr) surface = surface->Owner();
  return *surface;
}

char Small(char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter; }

/// What the letter of a control leads to: of a label the box in the row below it, of a frame the way into it.
controls::AnyControl* Led(const controls::AnyControl& control, const controls::AnyControl* next) {
  if (control.ControlKind() == host::Kind::Label) return const_cast<controls::AnyControl*>(next);
  if (control.ControlKind() == host::Kind::Frame) return controls::EntranceOf(control);
  return const_cast<controls::AnyControl*>(&control);
}

}  // namespace

host::Twips Toolkit::MeasureText(const frame::Design& design, std::string_view text, bool bold) const {
  return memory::TextWidth(text, design.fontSize, bold);
}

void Toolkit::Speak(Spoken language) {
  using frame::Language;
  desktop_.texts = language == Spoken::PagesOwn
                       ? &pageTexts_
                       : &frame::Texts::In(language == Spoken::English ? Language::English : Language::Dutch);
}

bool Toolkit::Act(controls::AnyControl& control, const controls::Action& action) {
  const std::shared_ptr<const controls::Life> life = Life();
  const auto* const peer = static_cast<const NodePeer*>(control.GetPeer());
  const NodeId node = peer != nullptr ? peer->Node() : kNoNode;
  const auto gone = [&] { return life->Ended() || Find(node) == nullptr; };
  if (underWay_ != nullptr && underWay_ != peer) underWay_->HandOver();
  if (gone()) return true;  // nothing is left to put right
  for (controls::PendingEdit* edit : Pending().On(Outermost(control))) {
    if (static_cast<controls::AnyControl*>(edit->Box()) == &control) continue;
    if (!edit->Commit()) return false;
    if (gone()) return true;
    break;  // of several the others were left behind before
  }
  return Hand(control, action) == controls::Outcome::Done;
}

bool Toolkit::HandOver(const controls::Surface& surface) {
  const std::shared_ptr<const controls::Life> life = Life();
  if (underWay_ != nullptr) underWay_->HandOver();
  return life->Ended() || Pending().Commit(surface);
}

bool Toolkit::GoByLetter(controls::Surface& surface, char letter) {
  const auto& made = surface.Made();
  for (std::size_t i = 0; i < made.size(); ++i) {
    controls::AnyControl& control = *made[i];
    if (control.ControlKind() == host::Kind::Surface && GoByLetter(static_cast<controls::Surface&>(control), letter))
      return true;
    if (control.Row().mnemonic == '\0' || Small(control.Row().mnemonic) != Small(letter) || !control.Reachable())
      continue;
    const auto led = [&] { return Led(control, i + 1 < made.size() ? made[i + 1].get() : nullptr); };
    controls::AnyControl* to = led();
    if (to == nullptr || !to->Reachable()) continue;
    const std::shared_ptr<const controls::Life> life = Life();
    const NodeId node = static_cast<NodePeer*>(to->GetPeer())->Node();
    if (!HandOver(Outermost(control)) || life->Ended() || Find(node) == nullptr) return true;
    // What was handed over may have closed the way.
    to = led();
    if (to == nullptr || !to->Reachable()) return true;
    to->GetPeer()->TakeFocus();
    if (to->ControlKind() == host::Kind::Button) return Act(*to, controls::Press{}), true;
    if (to == &control && to->ControlKind() == host::Kind::CheckBox)
      Act(*to, controls::Tick{1 - static_cast<controls::CheckBox*>(to)->Value()});
    return true;
  }
  return false;
}

NodePeer* Toolkit::Find(NodeId node) const {
  const auto found = peers_.find(node);
  return found != peers_.end() ? found->second : nullptr;
}

FormDialog* Toolkit::FindForm(NodeId node) const {
  const auto found = forms_.find(node);
  return found != forms_.end() ? found->second : nullptr;
}

bool Toolkit::HasDialog() const {
  const auto isOpen = [](const auto& form) { return form.second->IsOpen(); };
  return desktop_.Asks() || std::any_of(forms_.begin(), forms_.end(), isOpen);
}

std::unique_ptr<controls::Peer> Toolkit::MakePeer(controls::AnyControl& control) {
  return MakeNodePeer(control, *this);
}

std::unique_ptr<controls::FormPeer> Toolkit::MakeFormPeer(controls::Form& form) {
  return std::make_unique<FormDialog>(form, *this);
}

}  // namespace brivane::web
