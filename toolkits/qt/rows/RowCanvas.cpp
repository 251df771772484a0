#include "toolkits/qt/rows/RowCanvas.h"

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollArea>
#include <QStyle>
#include <QStyleOptionButton>
#include <QToolTip>
#include <algorithm>

#include "controls/Choices.h"
#include "controls/Plain.h"
#include "controls/Surface.h"
#include "controls/entry/Column.h"
#include "toolkits/qt/Text.h"
#include "toolkits/qt/rows/AccessibleRows.h"
#include "toolkits/qt/rows/CellEditor.h"
#include "toolkits/qt/rows/CellPeer.h"
#include "toolkits/qt/widgets/Bubble.h"
#include "toolkits/qt/widgets/HelpIcon.h"
#include "toolkits/qt/widgets/Mnemonics.h"

namespace brivane::qt {

using controls::Aspect;
using host::Kind;

namespace {

constexpr char kCanvasName[] = "rijen";
constexpr int kTextMargin = 4;

QScrollArea* ScrollAreaAround(const QWidget& widget) {
  for (QWidget* area = widget.parentWidget(); area != nullptr; area = area->parentWidget())
    if (auto* const scroll = qobject_cast<QScrollArea*>(area)) return scroll;
  return nullptr;
}

/// A line that can be seen on a light and on a dark background.
QColor Between(const QColor& back, const QColor& front) {
  const auto mix = [](int from, int to) { return from + (to - from) * 3 / 10; };
  return {mix(back.red(), front.red()), mix(back.green(), front.green()), mix(back.blue(), front.blue())};
}

/// Paints cells with what is common to them all looked up once.
class CellPainter {
 public:
  CellPainter(QPainter& painter, const QWidget& canvas)
      : painter_(painter),
        canvas_(canvas),
        colors_(canvas.palette()),
        border_(Between(colors_.color(QPalette::Window), colors_.color(QPalette::WindowText))) {}

  void Paint(const CellPeer& cell, bool focused) {
    switch (cell.Control().ControlKind()) {
      case Kind::TextBox: return PaintBox(cell);
      case Kind::CheckBox: return PaintCheck(cell, focused);
      case Kind::Hint: return PaintHelpIcon(painter_, cell.Place(), colors_, focused);
      default: return PaintLabel(cell);
    }
  }

 private:
  void PaintLabel(const CellPeer& cell) {
    SetPen(colors_.color(Group(cell), QPalette::WindowText));
    painter_.drawText(cell.Place(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, cell.Text());
  }

  void PaintBox(const CellPeer& cell) {
    const QRect& place = cell.Place();
    painter_.fillRect(place, border_);
    const QPalette::ColorGroup group = Group(cell);
    const QRect inside = place.adjusted(1, 1, -1, -1);
    const std::optional<host::Color> asked = cell.Control().Host().BackColor();
    const std::optional<QColor> back = asked ? ToQt(*asked) : std::nullopt;
    painter_.fillRect(inside, back.value_or(colors_.color(group, QPalette::Base)));
    if (cell.Text().isEmpty()) return;
    SetPen(back ? TextOn(*back) : colors_.color(group, QPalette::Text));
    const bool text = cell.Control().Row().format == frame::Format::Text;
    painter_.drawText(inside.adjusted(kTextMargin - 1, 0, 1 - kTextMargin, 0),
                      (text ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter | Qt::TextSingleLine, cell.Text());
  }

  void PaintCheck(const CellPeer& cell, bool focused) {
    QStyleOptionButton option;
    option.initFrom(&canvas_);
    option.state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver);
    if (!cell.Control().Host().Enabled()) option.state &= ~QStyle::State_Enabled;
    option.state |= cell.Ticked() ? QStyle::State_On : QStyle::State_Off;
    const int size = canvas_.style()->pixelMetric(QStyle::PM_IndicatorWidth, &option, &canvas_);
    option.rect = QRect(cell.Place().left(), cell.Place().center().y() - size / 2, size, size);
    canvas_.style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter_, &canvas_);
    pen_ = {};
    if (!focused) return;
    SetPen(colors_.color(QPalette::Highlight));
    painter_.drawRect(option.rect.adjusted(-2, -2, 1, 1));
  }

  [[nodiscard]] static QPalette::ColorGroup Group(const CellPeer& cell) {
    return cell.Control().Host().Enabled() ? QPalette::Active : QPalette::Disabled;
  }

  void SetPen(const QColor& color) {
    if (pen_ == color) return;
    pen_ = color;
    painter_.setPen(color);
  }

  QPainter& painter_;
  const QWidget& canvas_;
  const QPalette& colors_;
  QColor border_;
  QColor pen_;
};

/// Keeps the canvas as large as its container.
class Follower final : public QObject {
 public:
  Follower(QWidget& container, QWidget& canvas) : QObject(&canvas), canvas_(canvas) {
    container.installEventFilter(this);
    canvas.setGeometry(container.rect());
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Resize) canvas_.setGeometry(static_cast<QWidget*>(watched)->rect());
    return false;
  }

 private:
  QWidget& canvas_;
};

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
    : QWidget(&container), toolkit_(toolkit), editor_(new CellEditor(*this)), link_(*editor_, toolkit) {
  InstallAccessibleRows();
  setObjectName(kCanvasName);
  setFocusPolicy(Qt::TabFocus);
  editor_->hide();
  TypesNothingWithAlt(*editor_);
  link_.entered = [this] { changed_ = true; };
  new Follower(container, *this);
  lower();
}

QWidget& RowCanvas::LineEdit() const { return *editor_; }

EntryBox* RowCanvas::Editor() const { return edited_ != nullptr ? editor_ : nullptr; }

void RowCanvas::Add(CellPeer& cell) { cells_.push_back(&cell); }

void RowCanvas::Remove(CellPeer& cell) {
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
    if (aspect == Aspect::Value) link_.ShowContent();
    if (aspect == Aspect::Locked) editor_->setReadOnly(link_.Box()->Locked());
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
  std::vector<CellPeer*> stops;
  for (CellPeer* cell : cells_)
    if (cell->IsStop()) stops.push_back(cell);
  return stops;
}

CellPeer* RowCanvas::CellAt(QPoint point) const {
  for (CellPeer* cell : cells_)
    if (cell->Visible() && cell->Place().contains(point)) return cell;
  return nullptr;
}

bool RowCanvas::GoTo(CellPeer& cell) {
  if (!editor_->CommitPending()) return false;
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
  if (moved) link_.Tie(static_cast<controls::TextBox&>(cell.Control()));
  editor_->setEnabled(true);
  editor_->setAccessibleName(ToQt(cell.Control().AccessibleName()));
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
  if (!editor_->CommitPending()) return true;  // the focus stays where it is
  const std::vector<CellPeer*> stops = Stops();
  const auto here = std::find(stops.begin(), stops.end(), current_);
  if (here == stops.end()) return false;
  if (direction == Direction::Back) return here != stops.begin() && GoTo(**std::prev(here));
  return std::next(here) != stops.end() && GoTo(**std::next(here));
}

bool RowCanvas::StepInColumn(Direction direction) {
  if (current_ == nullptr || !editor_->CommitPending()) return false;
  std::vector<CellPeer*> column = Stops();
  std::erase_if(column, [this](CellPeer* cell) { return &cell->Control().Row() != &current_->Control().Row(); });
  const auto here = std::find(column.begin(), column.end(), current_);
  if (here == column.end()) return false;
  if (direction == Direction::Back) return here != column.begin() && GoTo(**std::prev(here));
  return std::next(here) != column.end() && GoTo(**std::next(here));
}

void RowCanvas::EnterAndGoDown() {
  if (editor_->CommitPending() && !StepInColumn(Direction::Forward)) (void)LeaveRows(Direction::Forward);
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

void RowCanvas::PasteColumn(const QString& text) {
  if (edited_ == nullptr) return;
  editor_->Restore();
  controls::Column column =
      controls::ReadColumn(FromQt(text), static_cast<const controls::TextBox&>(edited_->Control()));
  if (!column.refusal.empty()) return editor_->ShowReason(ToQt(column.refusal));
  for (controls::Column::Entry& entry : column.entries) {
    controls::Outcome outcome = controls::Outcome::Done;
    toolkit_.Guard([&] { outcome = entry.box->Perform(controls::Enter{std::move(entry.value)}); });
    changed_ = true;
    if (outcome == controls::Outcome::Refused) break;
  }
  editor_->selectAll();
  if (!column.surplus.empty()) editor_->ShowReason(ToQt(column.surplus));
}

void RowCanvas::Activate(CellPeer& cell) {
  if (!cell.IsStop()) return;
  if (cell.Control().ControlKind() == Kind::Hint) return ShowHelp(cell);
  if (cell.Control().ControlKind() != Kind::CheckBox) return;
  const controls::Tick tick{cell.Ticked() ? host::kUnticked : host::kTicked};
  toolkit_.Guard([&] { cell.Control().Perform(tick); });
  changed_ = true;
}

void RowCanvas::ShowHelp(const CellPeer& cell) {
  const QString help = ToQt(static_cast<const controls::Hint&>(cell.Control()).HelpText());
  QToolTip::showText(mapToGlobal(cell.Place().bottomLeft()), WrappedToolTip(help), this, cell.Place());
}

bool RowCanvas::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const CellPeer* const cell = CellAt(static_cast<QHelpEvent*>(event)->pos());
    if (cell != nullptr && cell->Control().ControlKind() == Kind::Hint)
      ShowHelp(*cell);
    else
      QToolTip::hideText();
    return true;
  }
  return QWidget::event(event);
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
