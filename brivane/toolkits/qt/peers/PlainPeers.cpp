#include <QGroupBox>

#include <brivane/controls/Entrance.h>
#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/peers/PlainPeers.h>
#include <brivane/toolkits/qt/widgets/EntryBox.h>
#include <brivane/toolkits/qt/widgets/HelpIcon.h>
#include <brivane/toolkits/qt/widgets/Mnemonics.h>
#include <brivane/toolkits/qt/widgets/PlainFrame.h>

namespace brivane::qt {

using controls::Aspect;

namespace {

QWidget* MakeFrame(const frame::Row& row, QWidget* container) {
  if (row.bordered) return new LeadingGroup(container);
  auto* const area = new PlainFrame(container);
  area->setAccessibleName(ToQt(std::string(row.caption)));
  return area;
}

}  // namespace

FramePeer::FramePeer(controls::Frame& frame, qt::Toolkit& toolkit, QWidget* container)
    : WidgetPeer(frame, toolkit, MakeFrame(frame.Row(), container)), frame_(frame) {
  if (auto* const group = dynamic_cast<LeadingGroup*>(Widget())) group->enter = [this] { Enter(); };
  Refresh(Aspect::Caption);
}

/// What is being typed elsewhere goes first, and may disable what this leads to.
void FramePeer::Enter() {
  const QPointer<QWidget> alive(Widget());
  EntryBox* const typed = EntryBox::PendingWithin(*Widget()->window());
  if (typed != nullptr && (!typed->CommitPending() || !alive)) return;
  if (const controls::AnyControl* const entrance = controls::EntranceOf(frame_)) entrance->GetPeer()->TakeFocus();
}

void FramePeer::Refresh(Aspect aspect) {
  if (aspect != Aspect::Caption) return WidgetPeer::Refresh(aspect);
  if (auto* const group = qobject_cast<QGroupBox*>(Widget()))
    group->setTitle(ShownCaption(frame_.Row(), frame_.Caption()));
}

LabelPeer::LabelPeer(controls::Label& label, qt::Toolkit& toolkit, QWidget* container)
    : WidgetPeer(label, toolkit, new LeadingLabel(container)), label_(label) {
  auto* const text = static_cast<QLabel*>(Widget());
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(label.Row().multiline);
  text->setAlignment(Qt::AlignLeft | (label.Row().multiline ? Qt::AlignTop : Qt::AlignVCenter));
  Refresh(Aspect::Caption);
}

void LabelPeer::Refresh(Aspect aspect) {
  if (aspect != Aspect::Caption) return WidgetPeer::Refresh(aspect);
  auto* const text = static_cast<QLabel*>(Widget());
  if (text == nullptr) return;
  const bool leads = text->buddy() != nullptr;
  text->setText(leads ? ShownCaption(label_.Row(), label_.Caption()) : PlainCaption(label_.Caption()));
}

void LabelPeer::LeadTo(QWidget& widget) {
  static_cast<QLabel*>(Widget())->setBuddy(&widget);
  Refresh(Aspect::Caption);
}

HintPeer::HintPeer(controls::Hint& hint, qt::Toolkit& toolkit, QWidget* container)
    : WidgetPeer(hint, toolkit, new HelpIcon(ToQt(hint.HelpText()), container)) {}

}  // namespace brivane::qt
