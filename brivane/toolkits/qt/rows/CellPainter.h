#pragma once

#include <QColor>
#include <QPainter>
#include <QPalette>
#include <QWidget>

namespace brivane::qt {

class CellPeer;

/// Paints cells with what is common to them all looked up once.
class CellPainter {
 public:
  CellPainter(QPainter& painter, const QWidget& canvas);

  void Paint(const CellPeer& cell, bool focused);

 private:
  void PaintLabel(const CellPeer& cell);
  void PaintBox(const CellPeer& cell);
  void PaintCheck(const CellPeer& cell, bool focused);
  void SetPen(const QColor& color);

  QPainter& painter_;
  const QWidget& canvas_;
  const QPalette& colors_;
  bool contrast_;
  QColor border_;
  QColor pen_;
};

}  // namespace brivane::qt
