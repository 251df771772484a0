#include <optional>

#include <brivane/controls/Surface.h>
#include <brivane/toolkits/web/peers/BoxPeer.h>
#include <brivane/toolkits/web/peers/ChoicePeers.h>
#include <brivane/toolkits/web/peers/ListPeer.h>
#include <brivane/toolkits/web/peers/ListViewPeer.h>
#include <brivane/toolkits/web/peers/Peers.h>
#include <brivane/toolkits/web/peers/SurfacePeer.h>

namespace brivane::web {

using controls::Aspect;
using host::Kind;

namespace {

std::unique_ptr<NodePeer> Make(controls::AnyControl& control, Toolkit& toolkit) {
  switch (control.ControlKind()) {
    case Kind::Frame:
    case Kind::Label:
    case Kind::Hint: return std::make_unique<NodePeer>(control, toolkit);
    case Kind::TextBox: return std::make_unique<BoxPeer>(static_cast<controls::TextBox&>(control), toolkit);
    case Kind::JaNee: return std::make_unique<TogglePeer>(static_cast<controls::JaNee&>(control), toolkit);
    case Kind::OptionButton:
      return std::make_unique<OptionPeer>(static_cast<controls::OptionButton&>(control), toolkit);
    case Kind::CheckBox: return std::make_unique<CheckPeer>(static_cast<controls::CheckBox&>(control), toolkit);
    case Kind::ListBox: return std::make_unique<ListPeer>(static_cast<controls::ListBox&>(control), toolkit);
    case Kind::Button: return std::make_unique<ButtonPeer>(control, toolkit);
    case Kind::ListView: return std::make_unique<ListViewPeer>(static_cast<controls::ListView&>(control), toolkit);
    case Kind::Surface: break;
  }
  return std::make_unique<SurfacePeer>(static_cast<controls::Surface&>(control), toolkit);
}

/// Whether a control shows another caption than that of its design.
bool IsRenamed(const controls::AnyControl& control) {
  const auto* const captioned = dynamic_cast<const host::Captioned*>(&control.Host());
  return captioned != nullptr && captioned->Caption() != control.Row().caption;
}

}  // namespace

std::unique_ptr<NodePeer> MakeNodePeer(controls::AnyControl& control, Toolkit& toolkit) {
  std::unique_ptr<NodePeer> peer = Make(control, toolkit);
  const host::Control& state = control.Host();
  // What stands on a surface takes over its font.
  const std::optional<float> fontSize = state.Read(host::Measure::FontSize);
  if (fontSize && *fontSize != control.Owner()->Table().fontSize) peer->Refresh(Aspect::FontSize);
  if (IsRenamed(control)) peer->Refresh(Aspect::Caption);
  if (!state.Enabled()) peer->Refresh(Aspect::Enabled);
  if (const auto color = state.BackColor(); color && color->value >= 0) peer->Refresh(Aspect::BackColor);
  return peer;
}

}  // namespace brivane::web
