#include <QKeyEvent>
#include <QLineEdit>

#include <brivane/toolkits/qt/widgets/Mnemonics.h>

namespace brivane::qt {

namespace {

class AltFilter final : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
    if (!IsTypedWithAlt(static_cast<const QKeyEvent&>(*event))) return QObject::eventFilter(watched, event);
    event->ignore();  // it may mean something to the window
    return true;
  }
};

}  // namespace

bool LeadingLabel::event(QEvent* event) {
  const bool leads = buddy() != nullptr && buddy()->isEnabled() && buddy()->isVisible();
  return (event->type() == QEvent::Shortcut && !leads) || QLabel::event(event);
}

bool LeadingGroup::event(QEvent* event) {
  if (event->type() != QEvent::Shortcut) return QGroupBox::event(event);
  if (enter) enter();
  return true;
}

bool IsTypedWithAlt(const QKeyEvent& key) {
  const bool alt = (key.modifiers() & (Qt::AltModifier | Qt::ControlModifier)) == Qt::AltModifier;
  return alt && !key.text().isEmpty() && key.text().front().isPrint();
}

void TypesNothingWithAlt(QLineEdit& box) { box.installEventFilter(new AltFilter(&box)); }

}  // namespace brivane::qt
