#include <brivane/controls/Surface.h>
#include <brivane/toolkits/web/peers/ChoicePeers.h>

namespace brivane::web {

using controls::Aspect;

namespace {

/// Acts, and shows again what stands there where the peer is there still: the element has changed by itself.
template <class Again>
void ActAndShow(web::Toolkit& toolkit, controls::AnyControl& control, NodeId node, const controls::Action& action,
                const Again& again) {
  const std::shared_ptr<const controls::Life> life = toolkit.Life();
  toolkit.Act(control, action);
  if (!life->Ended() && toolkit.Find(node) != nullptr) again();
}

}  // namespace

TogglePeer::TogglePeer(controls::JaNee& toggle, web::Toolkit& toolkit) : NodePeer(toggle, toolkit), toggle_(toggle) {
  Refresh(Aspect::Value);
}

void TogglePeer::Refresh(Aspect aspect) {
  if (aspect != Aspect::Value) return NodePeer::Refresh(aspect);
  ShowNumber(toggle_.Value() == host::kJa ? 1 : 0);
}

/// What stands there already is no change.
void TogglePeer::OnPicked(int value) {
  if (value != toggle_.Value()) Toolkit().Act(toggle_, controls::Toggle{value});
}

bool TogglePeer::OnKey(const Key& key) {
  if (!key.IsPlain()) return false;
  const auto pick = [&](int value) {
    OnPicked(value);
    return true;
  };
  const std::string& name = key.name;
  if (name == "j" || name == "J" || name == "ArrowLeft" || name == "ArrowUp") return pick(host::kJa);
  if (name == "n" || name == "N" || name == "ArrowRight" || name == "ArrowDown") return pick(host::kNee);
  if (name == " ") return pick(toggle_.Value() == host::kJa ? host::kNee : host::kJa);
  return false;
}

OptionPeer::OptionPeer(controls::OptionButton& option, web::Toolkit& toolkit)
    : NodePeer(option, toolkit), option_(option) {
  if (option.Value()) Refresh(Aspect::Value);
}

void OptionPeer::Refresh(Aspect aspect) {
  if (aspect != Aspect::Value) return NodePeer::Refresh(aspect);
  ShowNumber(option_.Value() ? 1 : 0);
}

void OptionPeer::OnPicked(int) {
  ActAndShow(Toolkit(), option_, Node(), controls::Select{}, [this] {
    for (const auto& other : option_.Owner()->Made())
      if (other->DesignName() == option_.DesignName()) other->GetPeer()->Refresh(Aspect::Value);
  });
}

CheckPeer::CheckPeer(controls::CheckBox& check, web::Toolkit& toolkit) : NodePeer(check, toolkit), check_(check) {
  if (check.Value() == host::kTicked) Refresh(Aspect::Value);
}

void CheckPeer::Refresh(Aspect aspect) {
  if (aspect != Aspect::Value) return NodePeer::Refresh(aspect);
  ShowNumber(check_.Value() == host::kTicked ? 1 : 0);
}

void CheckPeer::OnPicked(int value) {
  ActAndShow(Toolkit(), check_, Node(), controls::Tick{value}, [this] { Refresh(Aspect::Value); });
}

}  // namespace brivane::web
