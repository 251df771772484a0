#include <brivane/toolkits/qt/peers/BoxPeer.h>
#include <brivane/toolkits/qt/peers/ChoicePeers.h>
#include <brivane/toolkits/qt/peers/ListViewPeer.h>
#include <brivane/toolkits/qt/peers/Peers.h>
#include <brivane/toolkits/qt/peers/PlainPeers.h>
#include <brivane/toolkits/qt/widgets/SurfaceWidget.h>

namespace brivane::qt {
namespace {

using controls::Aspect;
using host::Kind;

std::unique_ptr<WidgetPeer> Make(controls::AnyControl& control, Toolkit& toolkit, QWidget* container) {
  switch (control.ControlKind()) {
    case Kind::Frame: return std::make_unique<FramePeer>(static_cast<controls::Frame&>(control), toolkit, container);
    case Kind::Label: return std::make_unique<LabelPeer>(static_cast<controls::Label&>(control), toolkit, container);
    case Kind::TextBox: return std::make_unique<BoxPeer>(static_cast<controls::TextBox&>(control), toolkit, container);
    case Kind::JaNee: return std::make_unique<TogglePeer>(static_cast<controls::JaNee&>(control), toolkit, container);
    case Kind::Hint: return std::make_unique<HintPeer>(static_cast<controls::Hint&>(control), toolkit, container);
    case Kind::OptionButton:
      return std::make_unique<OptionPeer>(static_cast<controls::OptionButton&>(control), toolkit, container);
    case Kind::CheckBox:
      return std::make_unique<CheckPeer>(static_cast<controls::CheckBox&>(control), toolkit, container);
    case Kind::ListBox:
      return std::make_unique<ComboPeer>(static_cast<controls::ListBox&>(control), toolkit, container);
    case Kind::Button: return std::make_unique<ButtonPeer>(static_cast<controls::Button&>(control), toolkit, container);
    case Kind::ListView:
      return std::make_unique<ListViewPeer>(static_cast<controls::ListView&>(control), toolkit, container);
    case Kind::Surface: break;
  }
  return std::make_unique<SurfacePeer>(static_cast<controls::Surface&>(control), toolkit, container);
}

}  // namespace

std::unique_ptr<controls::Peer> MakeWidgetPeer(controls::AnyControl& control, Toolkit& toolkit) {
  std::unique_ptr<WidgetPeer> peer = Make(control, toolkit, ContainerWidget(control));
  peer->Refresh(Aspect::Place);
  peer->Refresh(Aspect::FontSize);
  if (!control.Host().Enabled()) peer->Refresh(Aspect::Enabled);
  if (!control.Host().Visible()) peer->Refresh(Aspect::Visible);
  if (const auto color = control.Host().BackColor(); color && ToQt(*color)) peer->Refresh(Aspect::BackColor);
  return peer;
}

}  // namespace brivane::qt
