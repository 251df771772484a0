#pragma once

#include <QLabel>
#include <QPointer>

namespace brivane::qt {

/// A small text beside a box that says why its content was refused, or notes what it stands for. It takes no focus and
/// no clicks, and lies on the box's window, so that it moves and closes with it.
class Bubble : public QLabel {
 public:
  /// Shows the reason under the box, or above it where there is no room; told to screen readers too.
  static void Show(QWidget& box, const QString& reason);
  /// Shows a note in that place; screen readers find it with the box and are not interrupted.
  static void ShowNote(QWidget& box, const QString& note);
  /// Takes the bubble of this box away, if there is one.
  static void Hide(QWidget& box);
  /// The reason shown beside this box; empty where there is none.
  [[nodiscard]] static QString ReasonOf(const QWidget& box);
  /// The same of a note.
  [[nodiscard]] static QString NoteOf(const QWidget& box);
  /// Whether it says why something was refused, which a screen reader is to say at once.
  [[nodiscard]] bool IsAlert() const { return says_ == Says::Reason; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  enum class Says { Reason, Note };

  explicit Bubble(QWidget& box);
  static Bubble& Put(QWidget& box, const QString& text, Says says);
  [[nodiscard]] static QString TextOf(const QWidget& box, Says says);
  [[nodiscard]] static Bubble* Find(const QWidget& box);
  void PutBeside();

  QPointer<QWidget> box_;
  Says says_ = Says::Reason;
};

}  // namespace brivane::qt
