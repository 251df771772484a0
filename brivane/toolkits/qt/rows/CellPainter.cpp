#include <QStyle>
#include <QStyleOptionButton>

#include <brivane/toolkits/qt/rows/CellPainter.h>
#include <brivane/toolkits/qt/rows/CellPeer.h>
#include <brivane/toolkits/qt/widgets/HelpIcon.h>
#include <brivane/toolkits/qt/widgets/HighContrast.h>

namespace brivane::qt {

using host::Kind;

namespace {

constexpr int kTextMargin = 4;

/// A line that can be seen on a light and on a dark background.
QColor Between(const QColor& back, const QColor& front) {
  const auto mix = [](int from, int to) { return from + (to - from) * 3 / 10; };
  return {mix(back.red(), front.red()), mix(back.green(), front.green()), mix(back.blue(), front.blue())};
}

QPalette::ColorGroup Group(const CellPeer& cell) {
  return cell.Control().Host().Enabled() ? QPalette::Active : QPalette::Disabled;
}

}  // namespace

CellPainter::CellPainter(QPainter& painter, const QWidget& canvas)
    : painter_(painter),
      canvas_(canvas),
      colors_(canvas.palette()),
      contrast_(IsHighContrast(colors_)),
      border_(contrast_ ? colors_.color(QPalette::WindowText)
                        : Between(colors_.color(QPalette::Window), colors_.color(QPalette::WindowText))) {
  painter_.setLayoutDirection(Qt::LeftToRight);
}

void CellPainter::Paint(const CellPeer& cell, bool focused) {
  switch (cell.Control().ControlKind()) {
    case Kind::TextBox: return PaintBox(cell);
    case Kind::CheckBox: return PaintCheck(cell, focused);
    case Kind::Hint: return PaintHelpIcon(painter_, cell.Place(), colors_, focused);
    default: return PaintLabel(cell);
  }
}

void CellPainter::PaintLabel(const CellPeer& cell) {
  SetPen(colors_.color(Group(cell), QPalette::WindowText));
  painter_.drawText(cell.Place(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, cell.Text());
}

void CellPainter::PaintBox(const CellPeer& cell) {
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

void CellPainter::PaintCheck(const CellPeer& cell, bool focused) {
  QStyleOptionButton option;
  option.initFrom(&canvas_);
  option.state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver);
  if (!cell.Control().Host().Enabled()) option.state &= ~QStyle::State_Enabled;
  option.state |= cell.Ticked() ? QStyle::State_On : QStyle::State_Off;
  const int size = canvas_.style()->pixelMetric(QStyle::PM_IndicatorWidth, &option, &canvas_);
  option.rect = QRect(cell.Place().left(), cell.Place().center().y() - size / 2, size, size);
  canvas_.style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter_, &canvas_);
  pen_ = {};
  if (contrast_) {
    SetPen(border_);
    painter_.drawRect(option.rect.adjusted(0, 0, -1, -1));
  }
  if (!focused) return;
  SetPen(colors_.color(QPalette::Highlight));
  painter_.drawRect(option.rect.adjusted(-2, -2, 1, 1));
}

void CellPainter::SetPen(const QColor& color) {
  if (pen_ == color) return;
  pen_ = color;
  painter_.setPen(color);
}

}  // namespace brivane::qt
