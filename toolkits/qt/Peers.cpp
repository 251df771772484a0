#include "toolkits/qt/Peers.h"

#include "toolkits/qt/BoxPeer.h"
#include "toolkits/qt/ChoicePeers.h"
#include "toolkits/qt/ListViewPeer.h"
#include "toolkits/qt/PlainPeers.h"
#include "toolkits/qt/SurfaceWidget.h"

namespace brivane::qt {
namespace {

using headless::Aspect;
using host::Kind;

std::unique_ptr<WidgetPeer> Make(headless::AnyControl& control, Toolkit& toolkit, QWidget* container) {
  switch (control.ControlKind()) {
    case Kind::Frame: return std::make_unique<FramePeer>(static_cast<headless::Frame&>(control), toolkit, container);
    case Kind::Label: return std::make_unique<LabelPeer>(static_cast<headless::Label&>(control), toolkit, container);
    case Kind::TextBox: return std::make_unique<BoxPeer>(static_cast<headless::TextBox&>(control), toolkit, container);
    case Kind::JaNee: return std::make_unique<TogglePeer>(static_cast<headless::JaNee&>(control), toolkit, container);
    case Kind::Hint: return std::make_unique<HintPeer>(static_cast<headless::Hint&>(control), toolkit, container);
    case Kind::OptionButton:
      return std::make_unique<OptionPeer>(static_cast<headless::OptionButton&>(control), toolkit, container);
    case Kind::CheckBox:
      return std::make_unique<CheckPeer>(static_cast<headless::CheckBox&>(control), toolkit, container);
    case Kind::ListBox:
      return std::make_unique<ComboPeer>(static_cast<headless::ListBox&>(control), toolkit, container);
    case Kind::Button: return std::make_unique<ButtonPeer>(static_cast<headless::Button&>(control), toolkit, container);
    case Kind::ListView:
      return std::make_unique<ListViewPeer>(static_cast<headless::ListView&>(control), toolkit, container);
    case Kind::Surface: break;
  }
  return std::make_unique<SurfacePeer>(static_cast<headless::Surface&>(control), toolkit, container);
}

}  // namespace

std::unique_ptr<headless::Peer> MakeWidgetPeer(headless::AnyControl& control, Toolkit& toolkit) {
  std::unique_ptr<WidgetPeer> peer = Make(control, toolkit, ContainerWidget(control));
  peer->Refresh(Aspect::Place);
  peer->Refresh(Aspect::FontSize);
  if (!control.Host().Enabled()) peer->Refresh(Aspect::Enabled);
  if (!control.Host().Visible()) peer->Refresh(Aspect::Visible);
  if (const auto color = control.Host().BackColor(); color && ToQt(*color)) peer->Refresh(Aspect::BackColor);
  return peer;
}

}  // namespace brivane::qt
