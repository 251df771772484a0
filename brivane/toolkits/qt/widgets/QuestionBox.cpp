#include <QApplication>
#include <QKeyEvent>
#include <QWindow>

#include <brivane/toolkits/qt/widgets/QuestionBox.h>

namespace brivane::qt {

namespace {

std::chrono::milliseconds Now() {
  return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch());
}

bool IsBareText(const QKeyEvent& event) {
  const bool bare = (event.modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier)) == Qt::NoModifier;
  return bare && !event.text().isEmpty() && event.text().front().isPrint();
}

}  // namespace

QuestionBox::QuestionBox(std::chrono::milliseconds pause, QWidget* parent)
    : QMessageBox(parent), pause_(pause), underWay_(pause, Now()) {
  setTextFormat(Qt::PlainText);
  setLayoutDirection(Qt::LeftToRight);
  qApp->installEventFilter(this);
}

QuestionBox::~QuestionBox() { qApp->removeEventFilter(this); }

/// Only from when the box has the keyboard does a pause say that somebody has seen it.
bool QuestionBox::event(QEvent* event) {
  if (event->type() == QEvent::Show || event->type() == QEvent::WindowActivate) underWay_ = {pause_, Now()};
  return QMessageBox::event(event);
}

/// The base answers with the button whose letter it is, also without Alt.
void QuestionBox::keyPressEvent(QKeyEvent* event) {
  if (IsBareText(*event))
    event->ignore();
  else
    QMessageBox::keyPressEvent(event);
}

/// Keys come by here on their way to the window, as a shortcut first, and once more on their way to a button.
bool QuestionBox::eventFilter(QObject* watched, QEvent* event) {
  const bool key = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
  if (key && IsOurs(*watched)) {
    const bool held = static_cast<const QKeyEvent*>(event)->isAutoRepeat();
    using Press = controls::KeysUnderWay::Press;
    if (!underWay_.IsMeant(Now(), held ? Press::Repeat : Press::First)) {
      event->accept();  // so that it is no shortcut either
      return true;
    }
  }
  return QMessageBox::eventFilter(watched, event);
}

bool QuestionBox::IsOurs(const QObject& receiver) const {
  if (&receiver == windowHandle()) return true;
  return receiver.isWidgetType() && static_cast<const QWidget&>(receiver).window() == this;
}

}  // namespace brivane::qt
