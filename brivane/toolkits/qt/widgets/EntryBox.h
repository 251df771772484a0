#pragma once

#include <QLineEdit>
#include <vector>

#include <brivane/controls/entry/PendingEdit.h>

namespace brivane::qt {

/// A line edit whose content is handed over once, when it is left after an edit or Enter is pressed; what is being
/// typed is a controls::PendingEdit.
///
///     auto* box = new EntryBox(parent);
///     box->Tie(textBox, toolkit);           // shows a control's box and hands over to it
///     box->Edit().Tie(frame::Format::Date); // or: of no control, but of a format
class EntryBox : public QLineEdit, private controls::EntryFace {
 public:
  explicit EntryBox(QWidget* parent = nullptr);
  ~EntryBox() override;

  /// Becomes the box of a control on the screen. It may become that of another when nothing is pending.
  void Tie(controls::TextBox& box, controls::DrawnToolkit& toolkit);
  [[nodiscard]] controls::PendingEdit& Edit() { return edit_; }

  /// Shows a text set by code; what was being typed is gone.
  void ShowText(const QString& text);
  /// Hands a pending edit over; false where it was refused.
  bool CommitPending() { return edit_.Commit(); }
  /// Puts back what stood there before the edit; false where nothing was edited.
  bool Restore() { return edit_.Restore(); }

  /// The box being edited within a widget, or nothing.
  [[nodiscard]] static EntryBox* PendingWithin(const QWidget& area);
  /// Every box within a widget with something typed in it, the one being edited and those that were left behind.
  [[nodiscard]] static std::vector<EntryBox*> AllPendingWithin(const QWidget& area);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  [[nodiscard]] std::string Text() const override;
  void ShowText(const std::string& text) override;
  void InsertText(const std::string& text) override;
  void SelectAll() override { selectAll(); }
  [[nodiscard]] bool HasFocus() const override { return hasFocus(); }
  void TakeFocus() override { setFocus(Qt::OtherFocusReason); }
  [[nodiscard]] bool ReadOnly() const override { return isReadOnly(); }
  [[nodiscard]] bool IsAtHand() const override { return isVisible() && isEnabled(); }
  [[nodiscard]] const frame::Texts& Texts() const override;
  void ShowReason(const std::string& reason) override;
  void ShowNote(const std::string& note) override;
  void HideReason() override;

  [[nodiscard]] bool LeavesBox(const QWidget* target) const;
  void HandOverSoon();

  controls::PendingEdit edit_{*this};
  bool bubbleShown_ = false;
  bool clickRefused_ = false;  ///< the click that is under way was refused when it took the focus
};

}  // namespace brivane::qt
