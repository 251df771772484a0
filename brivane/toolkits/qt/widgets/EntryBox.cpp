#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTabBar>

#include <brivane/controls/DrawnToolkit.h>
#include <brivane/controls/TextBox.h>
#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/Texts.h>
#include <brivane/toolkits/qt/widgets/Bubble.h>
#include <brivane/toolkits/qt/widgets/EntryBox.h>

namespace brivane::qt {

using frame::Format;

namespace {

/// Whether a click on such a widget does something, also where it takes no focus.
bool IsWorkedByClicks(const QWidget& widget) {
  if (qobject_cast<const QAbstractSlider*>(&widget) != nullptr)
    return qobject_cast<const QScrollBar*>(&widget) == nullptr;
  if (const auto* const group = qobject_cast<const QGroupBox*>(&widget)) return group->isCheckable();
  return qobject_cast<const QAbstractButton*>(&widget) != nullptr || qobject_cast<const QTabBar*>(&widget) != nullptr ||
         qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
         qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr;
}

}  // namespace

EntryBox::EntryBox(QWidget* parent) : QLineEdit(parent) {
  QObject::connect(this, &QLineEdit::textEdited, this, [this] { edit_.Typed(); });
}

EntryBox::~EntryBox() = default;

void EntryBox::Tie(controls::TextBox& box, controls::DrawnToolkit& toolkit) {
  const Format format = box.Format();
  const bool right = format == Format::Amount || format == Format::Number || format == Format::WholeNumber;
  setAlignment((right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  if (right) setInputMethodHints(Qt::ImhFormattedNumbersOnly);
  setReadOnly(box.Locked());
  edit_.Tie(box, toolkit);
}

void EntryBox::ShowText(const QString& text) { edit_.ShowText(FromQt(text)); }

std::string EntryBox::Text() const { return FromQt(text()); }

void EntryBox::ShowText(const std::string& text) {
  setText(ToQt(text));
  setCursorPosition(0);
}

void EntryBox::InsertText(const std::string& text) { insert(ToQt(text)); }

const frame::Texts& EntryBox::Texts() const { return TranslatedTexts(); }

void EntryBox::ShowReason(const std::string& reason) {
  Bubble::Show(*this, ToQt(reason));
  bubbleShown_ = true;
}

void EntryBox::ShowNote(const std::string& note) {
  Bubble::ShowNote(*this, ToQt(note));
  bubbleShown_ = true;
}

void EntryBox::HideReason() {
  if (!std::exchange(bubbleShown_, false)) return;
  Bubble::Hide(*this);
}

EntryBox* EntryBox::PendingWithin(const QWidget& area) {
  auto* const box = dynamic_cast<EntryBox*>(area.window()->focusWidget());
  return box != nullptr && area.isAncestorOf(box) && box->edit_.IsPending() ? box : nullptr;
}

std::vector<EntryBox*> EntryBox::AllPendingWithin(const QWidget& area) {
  std::vector<EntryBox*> found;
  for (QLineEdit* const line : area.findChildren<QLineEdit*>()) {
    auto* const box = dynamic_cast<EntryBox*>(line);
    if (box != nullptr && box->edit_.IsPending()) found.push_back(box);
  }
  return found;
}

/// Whether a click there leads elsewhere: it moves the focus, or works something that takes no focus. A scroll bar
/// leads nowhere.
bool EntryBox::LeavesBox(const QWidget* target) const {
  if (target->window() != window() || target == this || isAncestorOf(target)) return false;
  for (; target != nullptr; target = target->isWindow() ? nullptr : target->parentWidget()) {
    if (!target->isEnabled()) continue;
    if ((target->focusPolicy() & Qt::ClickFocus) == Qt::ClickFocus) return true;
    if (!target->isAncestorOf(this) && IsWorkedByClicks(*target)) return true;
  }
  return false;
}

/// A click on another control commits first: refused content keeps the focus, and the click is dropped.
bool EntryBox::eventFilter(QObject* watched, QEvent* event) {
  const bool press = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
  // A click moves the focus before it comes by here: what was refused then is not asked again.
  if (press && watched->isWidgetType() && std::exchange(clickRefused_, false) && edit_.IsPending()) return true;
  if (press && watched->isWidgetType() && edit_.IsPending() && LeavesBox(static_cast<QWidget*>(watched))) {
    const QPointer<QObject> target(watched);
    const auto life = edit_.Life();
    if (!edit_.Commit() || !target) return true;
    if (life.expired()) return false;
  }
  return QLineEdit::eventFilter(watched, event);
}

/// A host hides or disables the box, or what it stands in, while something is typed there. That is handed over when the
/// host is done: it may be in the middle of taking things apart.
void EntryBox::HandOverSoon() {
  if (!edit_.IsPending()) return;
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (!hasFocus() || !IsAtHand()) edit_.Commit();
      },
      Qt::QueuedConnection);
}

void EntryBox::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  if (event->type() == QEvent::EnabledChange && !isEnabled()) HandOverSoon();
}

void EntryBox::hideEvent(QHideEvent* event) {
  QLineEdit::hideEvent(event);
  if (event->spontaneous()) return;
  HideReason();
  HandOverSoon();
}

/// Perhaps in another window: the reason goes along.
void EntryBox::showEvent(QShowEvent* event) {
  QLineEdit::showEvent(event);
  if (!event->spontaneous()) edit_.Shown();
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
  // A box that was refused takes the focus back; one that is refused as well would take it again, for ever.
  static bool handingOver = false;
  if (handingOver && reason == Qt::OtherFocusReason) return;
  const QScopedValueRollback handing(handingOver, true);
  const auto life = edit_.Life();
  const bool kept = edit_.IsPending() && !edit_.Commit();
  if (!life.expired()) clickRefused_ = kept && reason == Qt::MouseFocusReason;
}

bool EntryBox::focusNextPrevChild(bool next) {
  const auto life = edit_.Life();
  if (!edit_.Commit() || life.expired()) return true;
  return QLineEdit::focusNextPrevChild(next);
}

void EntryBox::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (key == Qt::Key_Escape) {
    event->setAccepted(edit_.Restore());
    return;
  }
  if (key == Qt::Key_Return || key == Qt::Key_Enter) {
    event->setAccepted(edit_.IsPending());
    if (edit_.IsPending()) edit_.CommitAndSelect();
    return;
  }
  const bool sign = event->text() == "." || event->text() == ",";
  if (sign && event->modifiers().testFlag(Qt::KeypadModifier) && edit_.TypeDecimalSign()) {
    event->accept();
    return;
  }
  QLineEdit::keyPressEvent(event);
}

}  // namespace brivane::qt
