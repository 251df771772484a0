#include "app/desk/FlowRow.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <algorithm>

namespace brivane::app {

std::vector<int> RowsFor(const std::vector<int>& widths, int gap, int room) {
  std::vector<int> rows;
  int row = 0;
  int taken = 0;
  for (const int width : widths) {
    if (taken > 0 && taken + gap + width > room) {
      ++row;
      taken = 0;
    }
    taken += (taken > 0 ? gap : 0) + width;
    rows.push_back(row);
  }
  return rows;
}

FlowRow::~FlowRow() { qDeleteAll(parts_); }

void FlowRow::AddPair(const QString& label, QWidget* box, int at) {
  auto* pair = new QHBoxLayout;
  pair->setContentsMargins(0, 0, 0, 0);
  auto* text = new QLabel(label);
  text->setBuddy(box);
  pair->addWidget(text);
  pair->addWidget(box);
  addChildLayout(pair);
  parts_.insert(at < 0 ? parts_.size() : at, pair);
  invalidate();
}

QLayoutItem* FlowRow::takeAt(int index) { return index < 0 || index >= count() ? nullptr : parts_.takeAt(index); }

QSize FlowRow::minimumSize() const {
  QSize least;
  for (const QLayoutItem* part : parts_) least = least.expandedTo(part->minimumSize());
  return least;
}

QSize FlowRow::sizeHint() const {
  QSize whole;
  for (const QLayoutItem* part : parts_) {
    const QSize size = part->sizeHint();
    whole = {whole.width() + (whole.width() > 0 ? Gap() : 0) + size.width(), std::max(whole.height(), size.height())};
  }
  return whole;
}

void FlowRow::setGeometry(const QRect& rect) {
  QLayout::setGeometry(rect);
  Arrange(rect, Apply::Yes);
}

int FlowRow::Gap() const {
  const auto* const widget = qobject_cast<const QWidget*>(parentWidget());
  return (widget != nullptr ? widget->style() : QApplication::style())->pixelMetric(QStyle::PM_LayoutHorizontalSpacing);
}

int FlowRow::Arrange(const QRect& rect, Apply apply) const {
  std::vector<int> widths;
  for (const QLayoutItem* part : parts_) widths.push_back(part->sizeHint().width());
  const std::vector<int> rows = RowsFor(widths, Gap(), rect.width());
  int y = rect.top();
  for (std::size_t first = 0; first < rows.size();) {
    std::size_t next = first;
    int height = 0;
    for (; next < rows.size() && rows[next] == rows[first]; ++next)
      height = std::max(height, parts_[static_cast<qsizetype>(next)]->sizeHint().height());
    int x = rect.left();
    for (; first < next; ++first) {
      const int width = std::min(widths[first], rect.width());
      if (apply == Apply::Yes) parts_[static_cast<qsizetype>(first)]->setGeometry(QRect(x, y, width, height));
      x += width + Gap();
    }
    y += height + (next < rows.size() ? Gap() : 0);
  }
  return y - rect.top();
}

}  // namespace brivane::app
