#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>

#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/rows/CellEditor.h>
#include <brivane/toolkits/qt/rows/RowCanvas.h>

namespace brivane::qt {

using Direction = RowCanvas::Direction;

CellEditor::CellEditor(RowCanvas& canvas) : EntryBox(&canvas), canvas_(canvas) {
  // Tab comes in by the canvas, which knows which box is next.
  setFocusPolicy(Qt::ClickFocus);
}

void CellEditor::Paste() { Edit().Paste(FromQt(QGuiApplication::clipboard()->text())); }

void CellEditor::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Paste)) return Paste();
  const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  switch (plain ? event->key() : 0) {
    case Qt::Key_Up: canvas_.StepInColumn(Direction::Back); return;
    case Qt::Key_Down: canvas_.StepInColumn(Direction::Forward); return;
    case Qt::Key_PageUp: return canvas_.StepPage(Direction::Back);
    case Qt::Key_PageDown: return canvas_.StepPage(Direction::Forward);
    case Qt::Key_Return:
    case Qt::Key_Enter: canvas_.EnterAndGoDown(); return;
    default: EntryBox::keyPressEvent(event);
  }
}

void CellEditor::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* const menu = createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  if (auto* const paste = menu->findChild<QAction*>("edit-paste")) {
    paste->disconnect();
    QObject::connect(paste, &QAction::triggered, this, [this] { Paste(); });
  }
  menu->popup(event->globalPos());
}

bool CellEditor::focusNextPrevChild(bool next) {
  const auto life = Edit().Life();
  if (!Edit().Commit() || life.expired()) return true;
  const Direction direction = next ? Direction::Forward : Direction::Back;
  return canvas_.Step(direction) || canvas_.LeaveRows(direction);
}

}  // namespace brivane::qt
