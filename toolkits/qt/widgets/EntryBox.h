#pragma once

#include <QLineEdit>
#include <functional>

namespace brivane::qt {

/// A line edit whose content is handed over once, when it is left after an edit or Enter is pressed.
///
/// Refused content stays as typed with the focus in the box, and the reason beside it. Escape puts back
/// what stood there.
///
///     auto* box = new EntryBox(parent);
///     box->SetCommitter([](const QString& typed) { return Verdict{.accepted = !typed.isEmpty(), .reason = "..."}; });
///     box->ShowText("12,50");
class EntryBox : public QLineEdit {
 public:
  /// What became of a typed text. Without a reason the person was told in another way.
  struct Verdict {
    bool accepted = true;
    QString reason = {};
  };
  using Committer = std::function<Verdict(const QString& typed)>;

  /// What the point and comma of the numeric keypad type.
  enum class KeypadPoint { AsTyped, Comma };

  explicit EntryBox(QWidget* parent = nullptr);
  ~EntryBox() override;

  void SetCommitter(Committer committer) { committer_ = std::move(committer); }
  /// Called when Escape has put back what stood there.
  void SetOnRestore(std::function<void()> restored) { restored_ = std::move(restored); }
  /// Called by the first keystroke of an edit.
  void SetOnEdit(std::function<void()> edited) { onEdit_ = std::move(edited); }
  void SetKeypadPoint(KeypadPoint point) { keypadPoint_ = point; }

  /// Shows a text set by code; what was being typed is gone.
  void ShowText(const QString& text);
  /// Something was typed that was not handed over or was refused.
  [[nodiscard]] bool HasPendingEdit() const;
  /// Hands a pending edit over; false where it was refused.
  bool CommitPending();
  /// Puts back what stood there before the edit; false where nothing was edited.
  bool Restore();

  /// Shows a reason beside the box until the next keystroke.
  void ShowReason(const QString& reason);

  /// The box being edited within a widget, or nothing.
  [[nodiscard]] static EntryBox* PendingWithin(const QWidget& area);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void keyPressEvent(QKeyEvent* event) override;
  /// Makes a text the pending edit, as if typed.
  void TypeText(const QString& text);
  /// Inserts a text where the cursor stands, as if typed.
  void InsertTyped(const QString& text);

 private:
  void OnTextEdited();
  void TakeReasonAway();
  [[nodiscard]] bool TakesFocusFromBox(const QWidget* target) const;

  Committer committer_;
  std::function<void()> restored_;
  std::function<void()> onEdit_;
  QString shown_;
  KeypadPoint keypadPoint_ = KeypadPoint::AsTyped;
  bool edited_ = false;
  bool refused_ = false;
  bool committing_ = false;
  bool reasonShown_ = false;
};

}  // namespace brivane::qt
