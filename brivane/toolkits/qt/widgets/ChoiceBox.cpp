#include <QAbstractItemView>
#include <QKeyEvent>
#include <QWheelEvent>
#include <vector>

#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/widgets/ChoiceBox.h>

namespace brivane::qt {

namespace {

std::chrono::milliseconds Now() {
  return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch());
}

bool IsPlain(const QKeyEvent& event) {
  return (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier | Qt::GroupSwitchModifier)) == Qt::NoModifier;
}

bool IsEnter(const QKeyEvent& event) { return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter; }

}  // namespace

ChoiceBox::ChoiceBox(QWidget* parent) : QComboBox(parent) {
  setFocusPolicy(Qt::StrongFocus);
  // The base tells of what was picked in the open list; its own keys and wheel are not used.
  QObject::connect(this, &QComboBox::activated, this, [this] { HandOver(); });
}

void ChoiceBox::ShowEntries(const QStringList& texts, int index) {
  clear();
  addItems(texts);
  ShowIndex(index);
}

void ChoiceBox::ShowOneMore(const QString& text, int index) {
  addItem(text);
  ShowIndex(index);  // Qt selects the first entry by itself
}

void ChoiceBox::ShowIndex(int index) {
  standing_ = index;
  typed_.Forget();
  setCurrentIndex(index);
}

void ChoiceBox::HandOver() {
  if (!IsUnderWay()) return;
  standing_ = currentIndex();
  typed_.Forget();
  if (chosen_) chosen_(standing_);
}

ChoiceBox* ChoiceBox::UnderWayWithin(const QWidget& area) {
  auto* const box = dynamic_cast<ChoiceBox*>(area.window()->focusWidget());
  return box != nullptr && area.isAncestorOf(box) && box->IsUnderWay() ? box : nullptr;
}

void ChoiceBox::GoTo(int index) {
  typed_.Forget();
  if (index >= 0 && index < count()) setCurrentIndex(index);
}

bool ChoiceBox::TakesTyped(const QKeyEvent& event) const {
  const QString text = event.text();
  if (!IsPlain(event) || text.isEmpty() || !text.front().isPrint()) return false;
  return event.key() != Qt::Key_Space || typed_.GoesOn(Now());
}

int ChoiceBox::EntryTyped(const QString& text, int current) {
  std::vector<std::string> entries;
  entries.reserve(static_cast<std::size_t>(count()));
  for (int i = 0; i < count(); ++i) entries.push_back(FromQt(itemText(i)));
  return typed_.Type(entries, current, FromQt(text), Now());
}

void ChoiceBox::showPopup() {
  typed_.Forget();
  open_ = true;  // also while the focus goes to it
  QComboBox::showPopup();
  open_ = view()->isVisible();
  // Typing in the open list is to reach this before the list itself: the filter that came last comes first.
  view()->installEventFilter(this);
}

void ChoiceBox::hidePopup() {
  QComboBox::hidePopup();
  // What was picked is told after this, and shown again then.
  if (std::exchange(open_, false) && IsUnderWay()) PutBack();
}

/// A key that means something here is no shortcut of the window.
bool ChoiceBox::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool ends = (key.key() == Qt::Key_Escape || IsEnter(key)) && IsPlain(key) && IsUnderWay();
    if (ends || TakesTyped(key)) event->accept();
  }
  return QComboBox::event(event);
}

bool ChoiceBox::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && open_ && watched == view()) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (TakesTyped(key)) {
      view()->setCurrentIndex(model()->index(EntryTyped(key.text(), view()->currentIndex().row()), modelColumn()));
      return true;
    }
  }
  return QComboBox::eventFilter(watched, event);
}

void ChoiceBox::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (TakesTyped(*event)) return setCurrentIndex(EntryTyped(event->text(), currentIndex()));
  if (key == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier)) return showPopup();
  if (!IsPlain(*event)) return event->ignore();
  switch (key) {
    case Qt::Key_Up:
    case Qt::Key_PageUp: return GoTo(currentIndex() - 1);
    case Qt::Key_Down:
    case Qt::Key_PageDown: return GoTo(currentIndex() + 1);
    case Qt::Key_Home: return GoTo(0);
    case Qt::Key_End: return GoTo(count() - 1);
    case Qt::Key_F4:
    case Qt::Key_Space: return showPopup();
    default: break;
  }
  if (!IsUnderWay()) return event->ignore();
  if (IsEnter(*event)) return HandOver();
  if (key == Qt::Key_Escape) return PutBack();
  event->ignore();
}

void ChoiceBox::wheelEvent(QWheelEvent* event) { event->ignore(); }

void ChoiceBox::focusOutEvent(QFocusEvent* event) {
  QComboBox::focusOutEvent(event);
  // A popup, a menu or another window borrows the focus: the list has not been left.
  const Qt::FocusReason reason = event->reason();
  if (open_ || reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason ||
      reason == Qt::MenuBarFocusReason)
    return;
  HandOver();
}

}  // namespace brivane::qt
