#include "toolkits/qt/widgets/EntryBox.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>

#include "toolkits/qt/widgets/Bubble.h"

namespace brivane::qt {

EntryBox::EntryBox(QWidget* parent) : QLineEdit(parent) {
  QObject::connect(this, &QLineEdit::textEdited, this, [this] { OnTextEdited(); });
}

EntryBox::~EntryBox() = default;

void EntryBox::ShowText(const QString& text) {
  edited_ = refused_ = false;
  TakeReasonAway();
  shown_ = text;
  if (this->text() == text) return;
  setText(text);
  setCursorPosition(0);
  if (hasFocus()) selectAll();
}

bool EntryBox::HasPendingEdit() const { return refused_ || edited_; }

bool EntryBox::CommitPending() {
  if (committing_ || !HasPendingEdit()) return true;
  const QPointer<EntryBox> alive(this);
  Verdict verdict;
  committing_ = true;
  if (committer_) verdict = committer_(text());
  if (!alive) return verdict.accepted;
  committing_ = false;
  refused_ = !verdict.accepted;
  if (verdict.accepted) {
    edited_ = false;
    TakeReasonAway();
    shown_ = text();
    return true;
  }
  setFocus(Qt::OtherFocusReason);
  selectAll();
  TakeReasonAway();
  if (!verdict.reason.isEmpty()) ShowReason(verdict.reason);
  return false;
}

void EntryBox::ShowReason(const QString& reason) {
  Bubble::Show(*this, reason);
  reasonShown_ = true;
}

void EntryBox::TakeReasonAway() {
  if (!reasonShown_) return;
  reasonShown_ = false;
  Bubble::Hide(*this);
}

bool EntryBox::Restore() {
  if (!HasPendingEdit()) return false;
  const QString standing = shown_;
  ShowText(standing);
  selectAll();
  if (restored_) restored_();
  return true;
}

EntryBox* EntryBox::PendingWithin(const QWidget& area) {
  auto* const box = dynamic_cast<EntryBox*>(area.window()->focusWidget());
  return box != nullptr && area.isAncestorOf(box) && box->HasPendingEdit() ? box : nullptr;
}

void EntryBox::TypeText(const QString& text) {
  setText(text);
  OnTextEdited();
}

void EntryBox::InsertTyped(const QString& text) {
  insert(text);
  OnTextEdited();
}

void EntryBox::OnTextEdited() {
  TakeReasonAway();
  if (!edited_ && onEdit_) onEdit_();
  edited_ = true;
}

bool EntryBox::TakesFocusFromBox(const QWidget* target) const {
  if (target->window() != window() || target == this || isAncestorOf(target)) return false;
  for (; target != nullptr; target = target->isWindow() ? nullptr : target->parentWidget())
    if (target->isEnabled() && (target->focusPolicy() & Qt::ClickFocus) == Qt::ClickFocus) return target != this;
  return false;
}

/// A click on another control commits first: refused content keeps the focus, and the click is dropped.
bool EntryBox::eventFilter(QObject* watched, QEvent* event) {
  const bool press = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
  if (press && watched->isWidgetType() && HasPendingEdit() && TakesFocusFromBox(static_cast<QWidget*>(watched))) {
    const QPointer<QObject> target(watched);
    if (!CommitPending() || !target) return true;
  }
  return QLineEdit::eventFilter(watched, event);
}

void EntryBox::focusInEvent(QFocusEvent* event) {
  qApp->installEventFilter(this);
  QLineEdit::focusInEvent(event);
}

void EntryBox::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  // A popup, a menu or another window borrows the focus: the box has not been left.
  const Qt::FocusReason reason = event->reason();
  if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason || reason == Qt::MenuBarFocusReason)
    return;
  qApp->removeEventFilter(this);
  if (!isEnabled() || !isVisible()) return;
  CommitPending();
}

bool EntryBox::focusNextPrevChild(bool next) {
  if (!CommitPending()) return true;
  return QLineEdit::focusNextPrevChild(next);
}

void EntryBox::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (key == Qt::Key_Escape) {
    if (Restore())
      event->accept();
    else
      event->ignore();
    return;
  }
  if (key == Qt::Key_Return || key == Qt::Key_Enter) {
    const bool pending = HasPendingEdit();
    if (pending) {
      if (CommitPending()) selectAll();
      event->accept();
    } else {
      event->ignore();
    }
    return;
  }
  if (keypadPoint_ == KeypadPoint::Comma && event->modifiers().testFlag(Qt::KeypadModifier) &&
      (event->text() == "." || event->text() == ",")) {
    InsertTyped(",");
    event->accept();
    return;
  }
  QLineEdit::keyPressEvent(event);
}

}  // namespace brivane::qt
