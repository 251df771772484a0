#pragma once

#include <QWidget>
#include <functional>

namespace brivane::qt {

/// A toggle of two halves, "Ja" and "Nee". A click picks the half; the arrows, J and N pick one; the
/// space bar picks the other one.
class JaNeeToggle : public QWidget {
 public:
  enum class Answer { Ja, Nee };

  explicit JaNeeToggle(QWidget* parent = nullptr);

  /// A person picks an answer that does not stand yet. The toggle shows it when Show is called.
  void SetOnPick(std::function<void(Answer)> picked) { picked_ = std::move(picked); }
  void Show(Answer answer);
  [[nodiscard]] Answer Shown() const { return answer_; }
  /// Picks as a person does.
  void Pick(Answer answer);

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  [[nodiscard]] QRect Half(Answer answer) const;

  std::function<void(Answer)> picked_;
  Answer answer_ = Answer::Nee;
};

[[nodiscard]] constexpr JaNeeToggle::Answer Other(JaNeeToggle::Answer answer) {
  return answer == JaNeeToggle::Answer::Ja ? JaNeeToggle::Answer::Nee : JaNeeToggle::Answer::Ja;
}

}  // namespace brivane::qt
