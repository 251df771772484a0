#include "app/screen/BoxAtWork.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>

#include <brivane/toolkits/qt/widgets/EntryBox.h>

namespace brivane::app {

BoxAtWork::BoxAtWork(QWidget& editor) {
  QWidget* focus = QApplication::focusWidget();
  if (focus == nullptr || !editor.isAncestorOf(focus)) return;
  focus_ = focus;
  line_ = qobject_cast<QLineEdit*>(focus);
  if (!line_) return;
  auto* box = dynamic_cast<qt::EntryBox*>(focus);
  typed_ = box != nullptr && box->Edit().IsPending();
  text_ = line_->text();
  cursor_ = line_->cursorPosition();
  from_ = line_->selectionStart();
  length_ = static_cast<int>(line_->selectedText().size());
}

void BoxAtWork::GoOn() const {
  if (!focus_ || !focus_->isVisible() || !focus_->isEnabled()) return;
  if (!focus_->hasFocus()) focus_->setFocus(Qt::OtherFocusReason);
  if (!line_) return;
  if (typed_ && line_->text() != text_) {
    line_->selectAll();
    QInputMethodEvent typing;
    typing.setCommitString(text_);
    QApplication::sendEvent(line_, &typing);
  }
  if (line_->text() != text_) return;
  line_->setCursorPosition(cursor_);
  if (from_ >= 0) line_->setSelection(from_, length_);
}

}  // namespace brivane::app
