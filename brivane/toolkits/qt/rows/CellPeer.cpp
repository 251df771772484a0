#include <brivane/controls/Choices.h>
#include <brivane/controls/Plain.h>
#include <brivane/controls/TextBox.h>
#include <brivane/controls/entry/Content.h>
#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/peers/Peers.h>
#include <brivane/toolkits/qt/rows/CellPeer.h>

namespace brivane::qt {

using controls::Aspect;
using host::Kind;

CellPeer::CellPeer(controls::AnyControl& control, Toolkit& toolkit)
    : control_(control), toolkit_(toolkit), canvas_(&RowCanvas::On(*ContainerWidget(control), control, toolkit)) {
  visible_ = control.Host().Visible();
  PutPlace();
  canvas_->Add(*this);
}

CellPeer::~CellPeer() {
  if (canvas_) canvas_->Remove(*this);
}

void CellPeer::PutPlace() { place_ = toolkit_.Edge().Pixels(control_.Host().Place()); }

void CellPeer::Refresh(Aspect aspect) {
  if (!canvas_) return;
  switch (aspect) {
    case Aspect::Value:
    case Aspect::Caption: stale_ = true; break;
    case Aspect::Visible: visible_ = control_.Host().Visible(); break;
    case Aspect::Place:
      if (visible_) canvas_->Changed(*this, aspect);
      PutPlace();
      break;
    default: break;
  }
  if (visible_ || aspect == Aspect::Visible) canvas_->Changed(*this, aspect);
}

void CellPeer::TakeFocus() {
  if (canvas_) canvas_->GoTo(*this);
}

const QString& CellPeer::Text() const {
  if (!std::exchange(stale_, false)) return text_;
  if (control_.ControlKind() == Kind::TextBox) {
    const auto& box = static_cast<const controls::TextBox&>(control_);
    text_ = ToQt(controls::ShowContent(box.Content(), box.Format()));
  } else if (control_.ControlKind() == Kind::Label) {
    text_ = PlainCaption(static_cast<const controls::Label&>(control_).Caption());
  }
  return text_;
}

bool CellPeer::IsStop() const {
  const Kind kind = control_.ControlKind();
  return visible_ && (kind == Kind::TextBox || kind == Kind::CheckBox || kind == Kind::Hint) && control_.Reachable();
}

bool CellPeer::Ticked() const { return static_cast<const controls::CheckBox&>(control_).Value() == host::kTicked; }

}  // namespace brivane::qt
