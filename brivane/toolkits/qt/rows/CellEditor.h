#pragma once

#include <brivane/toolkits/qt/widgets/EntryBox.h>

namespace brivane::qt {

class RowCanvas;

/// The line edit that stands in the focused box of a canvas.
class CellEditor final : public EntryBox {
 public:
  explicit CellEditor(RowCanvas& canvas);

  /// Pastes the clipboard: one value into the line, several lines into the boxes from this one down.
  void Paste();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  RowCanvas& canvas_;
};

}  // namespace brivane::qt
