#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollArea>
#include <QToolTip>
#include <algorithm>
#include <cstdlib>

#include <brivane/controls/Choices.h>
#include <brivane/controls/Plain.h>
#include <brivane/controls/Surface.h>
#include <brivane/controls/TextBox.h>
#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/rows/AccessibleRows.h>
#include <brivane/toolkits/qt/rows/CellEditor.h>
#include <brivane/toolkits/qt/rows/CellPainter.h>
#include <brivane/toolkits/qt/rows/CellPeer.h>
#include <brivane/toolkits/qt/rows/RowCanvas.h>
#include <brivane/toolkits/qt/widgets/HelpIcon.h>
#include <brivane/toolkits/qt/widgets/HighContrast.h>
#include <brivane/toolkits/qt/widgets/Mnemonics.h>

namespace brivane::qt {

using controls::Aspect;
using host::Kind;

namespace {

constexpr char kCanvasName[] = "rijen";

QScrollArea* ScrollAreaAround(const QWidget& widget) {
  for (QWidget* area = widget.parentWidget(); area != nullptr; area = area->parentWidget())
    if (auto* const scroll = qobject_cast<QScrollArea*>(area)) return scroll;
  return nullptr;
}

/// The cell before or after one; nothing past the ends, and where the one is not there.
CellPeer* Neighbour(const std::vector<CellPeer*>& cells, const CellPeer* cell, RowCanvas::Direction direction) {
  const auto here = std::find(cells.begin(), cells.end(), cell);
  if (here == cells.end()) return nullptr;
  if (direction == RowCanvas::Direction::Back) return here != cells.begin() ? *std::prev(here) : nullptr;
  return std::next(here) != cells.end() ? *std::next(here) : nullptr;
}

}  // namespace

RowCanvas& RowCanvas::On(QWidget& container, controls::AnyControl& control, Toolkit& toolkit) {
  if (RowCanvas* const present = Of(container)) return *present;
  auto* const canvas = new RowCanvas(container, toolkit);
  const controls::Surface& owner = *control.Owner();
  canvas->setFont(toolkit.Edge().Font(owner.Table(), owner.Table().fontSize));
  return *canvas;
}

RowCanvas* RowCanvas::Of(const QWidget& container) {
  return static_cast<RowCanvas*>(container.findChild<QWidget*>(kCanvasName, Qt::FindDirectChildrenOnly));
}

RowCanvas::RowCanvas(QWidget& container, Toolkit& toolkit)
    : QWidget(&container), toolkit_(toolkit), editor_(new CellEditor(*this)) {
  InstallAccessibleRows();
  setObjectName(kCanvasName);
  setFocusPolicy(Qt::TabFocus);
  editor_->hide();
  OutlineInHighContrast(*editor_);
  TypesNothingWithAlt(*editor_);
  container.installEventFilter(this);
  setGeometry(container.rect());
  lower();
}

QWidget& RowCanvas::LineEdit() const { return *editor_; }
EntryBox* RowCanvas::Editor() const { return edited_ != nullptr ? editor_ : nullptr; }

void RowCanvas::Remove(CellPeer& cell) {
  if (editor_->Edit().Box() == &cell.Control()) editor_->Edit().Tie(frame::Format::Text);
  if (edited_ == &cell) StopEditing();
  if (current_ == &cell) current_ = nullptr;
  if (pressed_ == &cell) pressed_ = nullptr;
  ForgetAccessible(cell);
  // Elements go in the reverse order of their making.
  const auto place = std::find(cells_.rbegin(), cells_.rend(), &cell);
  if (place != cells_.rend()) cells_.erase(std::next(place).base());
}

void RowCanvas::Changed(CellPeer& cell, Aspect aspect) {
  if (edited_ == &cell) {
    if (aspect == Aspect::Value) editor_->Edit().ShowContent();
    if (aspect == Aspect::Locked) editor_->setReadOnly(editor_->Edit().Box()->Locked());
    if (aspect == Aspect::Place) editor_->setGeometry(cell.Place());
    if (aspect == Aspect::Enabled) editor_->setEnabled(cell.Control().Host().Enabled());
    if (aspect == Aspect::Visible) StopEditing();
  }
  if (!isVisible()) return;
  Repaint(cell.Place());
  if (QAccessible::isActive()) TellAccessible(*this, cell, aspect);
}

/// Changes come by the hundred: they are gathered in one rectangle until it is painted.
void RowCanvas::Repaint(const QRect& area) {
  if (dirty_.contains(area)) return;
  dirty_ = dirty_.united(area);
  update(dirty_);
}

std::vector<CellPeer*> RowCanvas::Stops() const {
  std::vector<CellPeer*> stops = cells_;
  std::erase_if(stops, [](const CellPeer* cell) { return !cell->IsStop(); });
  return stops;
}

CellPeer* RowCanvas::CellAt(QPoint point) const {
  for (CellPeer* cell : cells_)
    if (cell->Visible() && cell->Place().contains(point)) return cell;
  return nullptr;
}

/// False where it was refused, or where nothing is left to go on from.
bool RowCanvas::HandOver() {
  const auto life = editor_->Edit().Life();
  return editor_->Edit().Commit() && !life.expired();
}

bool RowCanvas::GoTo(CellPeer& cell) {
  if (!HandOver()) return false;
  if (!cell.IsStop()) return false;
  if (cell.Control().ControlKind() == Kind::TextBox)
    Edit(cell);
  else
    FocusSelf(cell);
  BringIntoView(cell);
  return true;
}

void RowCanvas::Edit(CellPeer& cell) {
  if (current_ != nullptr) update(current_->Place());
  const bool moved = edited_ != &cell;
  current_ = edited_ = &cell;
  if (moved) editor_->Tie(static_cast<controls::TextBox&>(cell.Control()), toolkit_);
  editor_->setEnabled(true);
  editor_->setAccessibleName(ToQt(cell.Control().AccessibleName()));
  editor_->setToolTip(RowText(cell));
  editor_->setGeometry(cell.Place());
  editor_->show();
  const bool had = editor_->hasFocus();
  editor_->setFocus(Qt::TabFocusReason);
  editor_->selectAll();
  if (!had || !moved || !QAccessible::isActive()) return;
  // The same widget keeps the focus, so Qt does not tell that it is another box now.
  QAccessibleEvent event(editor_, QAccessible::Focus);
  QAccessible::updateAccessibility(&event);
}

void RowCanvas::FocusSelf(CellPeer& cell) {
  setFocus(Qt::OtherFocusReason);
  StopEditing();
  if (current_ != nullptr) update(current_->Place());
  current_ = &cell;
  update(cell.Place().adjusted(-2, -2, 2, 2));
  if (QAccessible::isActive()) TellFocus(*this, cell);
  if (cell.Control().ControlKind() != Kind::Hint) return;
  // A moving focus takes tool tips away, so the help comes after it.
  const auto show = [this, shown = &cell] {
    if (hasFocus() && current_ == shown) ShowHelp(*shown);
  };
  QMetaObject::invokeMethod(this, show, Qt::QueuedConnection);
}

void RowCanvas::StopEditing() {
  edited_ = nullptr;
  editor_->hide();
}

void RowCanvas::BringIntoView(const CellPeer& cell) {
  QScrollArea* const scroll = ScrollAreaAround(*this);
  if (scroll == nullptr) return;
  const QPoint center = mapTo(scroll->widget(), cell.Place().center());
  scroll->ensureVisible(center.x(), center.y(), cell.Place().width(), 2 * cell.Place().height());
}

bool RowCanvas::Step(Direction direction) {
  if (!HandOver()) return true;  // the focus stays where it is
  CellPeer* const next = Neighbour(Stops(), current_, direction);
  return next != nullptr && GoTo(*next);
}

/// The cells of the current one's control array that a person can go to.
std::vector<CellPeer*> RowCanvas::Column() const {
  std::vector<CellPeer*> column = Stops();
  std::erase_if(column, [this](CellPeer* cell) { return &cell->Control().Row() != &current_->Control().Row(); });
  return column;
}

bool RowCanvas::StepInColumn(Direction direction) {
  if (current_ == nullptr || !HandOver()) return false;
  CellPeer* const next = Neighbour(Column(), current_, direction);
  return next != nullptr && GoTo(*next);
}

void RowCanvas::StepPage(Direction direction) {
  if (current_ == nullptr || !HandOver()) return;
  std::vector<CellPeer*> column = Column();
  if (direction == Direction::Back) std::reverse(column.begin(), column.end());
  const auto here = std::find(column.begin(), column.end(), current_);
  if (here == column.end()) return;
  const int left = current_->Place().left();
  const auto page = std::count_if(column.begin(), column.end(),
                                  [left](const CellPeer* cell) { return cell->Place().left() == left; });
  GoTo(**std::next(here, std::min(page, std::distance(here, std::prev(column.end())))));
}

void RowCanvas::EnterAndGoDown() {
  if (HandOver() && !StepInColumn(Direction::Forward)) (void)LeaveRows(Direction::Forward);
}

bool RowCanvas::GoToFirst() {
  for (CellPeer* cell : cells_)
    if (cell->IsStop() && cell->Control().ControlKind() == Kind::TextBox) return GoTo(*cell);
  return false;
}

/// Gives the focus to what comes before or after the canvas in the tab order.
bool RowCanvas::LeaveRows(Direction direction) {
  setFocusPolicy(Qt::ClickFocus);  // not to itself
  const bool left = QWidget::focusNextPrevChild(direction == Direction::Forward);
  setFocusPolicy(Qt::TabFocus);
  return left;
}

bool RowCanvas::focusNextPrevChild(bool next) {
  const Direction direction = next ? Direction::Forward : Direction::Back;
  if (!hasFocus()) return QWidget::focusNextPrevChild(next);
  return Step(direction) || LeaveRows(direction);
}

void RowCanvas::Activate(CellPeer& cell) {
  if (!cell.IsStop()) return;
  if (cell.Control().ControlKind() == Kind::Hint) return ShowHelp(cell);
  if (cell.Control().ControlKind() != Kind::CheckBox) return;
  const controls::Tick tick{cell.Ticked() ? host::kUnticked : host::kTicked};
  toolkit_.Hand(cell.Control(), tick);
}

void RowCanvas::ShowHelp(const CellPeer& cell) {
  const QString help = ToQt(static_cast<const controls::Hint&>(cell.Control()).HelpText());
  QToolTip::showText(mapToGlobal(cell.Place().bottomLeft()), WrappedToolTip(help), this, cell.Place());
}

QString RowCanvas::RowText(const CellPeer& cell) const {
  if (!teller_) return {};
  // What heads a column of rows has a number of its own.
  const bool ofRow = std::any_of(cells_.begin(), cells_.end(), [&](const CellPeer* box) {
    const bool beside = std::abs(box->Place().center().y() - cell.Place().center().y()) < cell.Place().height();
    return beside && box->Control().ControlKind() == Kind::TextBox && box->Control().Index() == cell.Control().Index();
  });
  return ofRow ? ToQt(teller_(cell.Control().Index())) : QString();
}

bool RowCanvas::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto& help = static_cast<QHelpEvent&>(*event);
  const CellPeer* const cell = CellAt(help.pos());
  const QString text = cell != nullptr ? RowText(*cell) : QString();
  if (cell != nullptr && cell->Control().ControlKind() == Kind::Hint)
    ShowHelp(*cell);
  else if (!text.isEmpty())
    QToolTip::showText(help.globalPos(), WrappedToolTip(text), this, cell->Place());
  else
    QToolTip::hideText();
  return true;
}

/// Keeps the canvas as large as its container.
bool RowCanvas::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) setGeometry(static_cast<QWidget*>(watched)->rect());
  return false;
}

void RowCanvas::paintEvent(QPaintEvent* event) {
  dirty_ = {};
  QPainter painter(this);
  CellPainter cells(painter, *this);
  const bool focused = hasFocus();
  for (const CellPeer* cell : cells_)
    if (cell->Visible() && cell != edited_ && event->rect().intersects(cell->Place()))
      cells.Paint(*cell, focused && cell == current_);
}

void RowCanvas::mousePressEvent(QMouseEvent* event) {
  CellPeer* const cell = CellAt(event->position().toPoint());
  if (cell == nullptr || event->button() != Qt::LeftButton || !GoTo(*cell)) return;
  pressed_ = cell;
  if (edited_ == cell)
    editor_->setCursorPosition(editor_->cursorPositionAt(event->position().toPoint() - cell->Place().topLeft()));
}

void RowCanvas::mouseReleaseEvent(QMouseEvent* event) {
  CellPeer* const cell = std::exchange(pressed_, nullptr);
  if (cell != nullptr && CellAt(event->position().toPoint()) == cell) Activate(*cell);
}

void RowCanvas::keyPressEvent(QKeyEvent* event) {
  const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  switch (plain && current_ != nullptr ? event->key() : 0) {
    case Qt::Key_Space: return Activate(*current_);
    case Qt::Key_Up: StepInColumn(Direction::Back); return;
    case Qt::Key_Down: StepInColumn(Direction::Forward); return;
    case Qt::Key_PageUp: return StepPage(Direction::Back);
    case Qt::Key_PageDown: return StepPage(Direction::Forward);
    case Qt::Key_Return:
    case Qt::Key_Enter: return EnterAndGoDown();
    default: QWidget::keyPressEvent(event);
  }
}

void RowCanvas::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  const std::vector<CellPeer*> stops = Stops();
  if (stops.empty()) return;
  if (event->reason() == Qt::TabFocusReason)
    GoTo(*stops.front());
  else if (event->reason() == Qt::BacktabFocusReason)
    GoTo(*stops.back());
  else if (current_ != nullptr)
    update(current_->Place());
}

void RowCanvas::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  QToolTip::hideText();
  if (current_ != nullptr) update(current_->Place().adjusted(-2, -2, 2, 2));
}

}  // namespace brivane::qt
