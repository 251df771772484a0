#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <brivane/controls/Peer.h>
#include <brivane/toolkits/qt/Toolkit.h>
#include <brivane/toolkits/qt/widgets/EntryBox.h>

namespace brivane::qt {

class CellPeer;
class CellEditor;

/// Paints the cells of a form's rows, and lets a person work them: one real line edit stands in whichever
/// box has the focus, and ticks and help icons are worked by the canvas itself.
///
/// Tab follows the rows; Up and Down move within a control array, Page Up and Page Down by a whole column of rows;
/// Enter hands over and goes one down; a pasted column of numbers fills the boxes from the focused one down.
class RowCanvas : public QWidget {
 public:
  /// The canvas of a container; made for its first cell.
  [[nodiscard]] static RowCanvas& On(QWidget& container, controls::AnyControl& control, Toolkit& toolkit);
  /// The canvas of a container, or nothing.
  [[nodiscard]] static RowCanvas* Of(const QWidget& container);

  void Add(CellPeer& cell) { cells_.push_back(&cell); }
  void Remove(CellPeer& cell);
  void Changed(CellPeer& cell, controls::Aspect aspect);

  enum class Direction { Forward, Back };

  /// Moves the focus to a cell, after the box that is being edited was handed over; false where that was
  /// refused, or where a person cannot go there.
  bool GoTo(CellPeer& cell);
  /// Moves to the next or previous cell that a person can go to; false at the end, where the focus is to leave the
  /// rows. True on a refusal, which keeps the focus.
  bool Step(Direction direction);
  /// Moves to the next or previous element of the same control array; false at the end or on a refusal.
  bool StepInColumn(Direction direction);
  /// Hands over, and goes to the box below; past the last one, to what follows the rows.
  void EnterAndGoDown();
  /// Moves by as many rows as stand below each other, or to the first or last row where there are fewer.
  void StepPage(Direction direction);
  /// Goes to the first cell.
  bool GoToFirst();

  /// Who tells what a row stands for, by its number; a tool tip and a screen reader say it.
  void TellRows(std::function<std::string(int row)> teller) { teller_ = std::move(teller); }
  [[nodiscard]] QString RowText(const CellPeer& cell) const;

  [[nodiscard]] const std::vector<CellPeer*>& Cells() const { return cells_; }
  [[nodiscard]] CellPeer* Current() const { return current_; }
  /// The line edit, while it stands in a box.
  [[nodiscard]] EntryBox* Editor() const;
  /// The line edit, also while it stands nowhere: it follows the canvas in the tab order.
  [[nodiscard]] QWidget& LineEdit() const;
  /// Whether the line edit stands in this cell.
  [[nodiscard]] bool IsEdited(const CellPeer& cell) const { return edited_ == &cell; }
  [[nodiscard]] CellPeer* CellAt(QPoint point) const;
  /// Ticks or unticks, or shows help, as a person does.
  void Activate(CellPeer& cell);

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  friend class CellEditor;

  RowCanvas(QWidget& container, Toolkit& toolkit);

  [[nodiscard]] std::vector<CellPeer*> Stops() const;
  [[nodiscard]] std::vector<CellPeer*> Column() const;
  [[nodiscard]] bool LeaveRows(Direction direction);
  bool HandOver();
  void Edit(CellPeer& cell);
  void FocusSelf(CellPeer& cell);
  void StopEditing();
  void ShowHelp(const CellPeer& cell);
  void BringIntoView(const CellPeer& cell);
  void Repaint(const QRect& area);

  Toolkit& toolkit_;
  std::function<std::string(int row)> teller_;
  std::vector<CellPeer*> cells_;
  CellEditor* editor_;
  CellPeer* current_ = nullptr;
  CellPeer* edited_ = nullptr;
  CellPeer* pressed_ = nullptr;
  QRect dirty_;
};

}  // namespace brivane::qt
