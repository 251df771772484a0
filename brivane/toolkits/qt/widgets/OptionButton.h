#pragma once

#include <QRadioButton>

namespace brivane::qt {

/// One option of a control array. The options of one array are a group, whatever else stands in their frame, and
/// the tab order enters it at the chosen option; where none is chosen, or a person cannot go to it, at the first
/// that a person can go to.
class OptionButton final : public QRadioButton {
 public:
  /// Made as one of the group of this name in the container, at a place in the tab order.
  OptionButton(const QString& array, int tab, QWidget* container);

  /// Shows it as chosen or not, whatever the rest of its group shows.
  void Show(bool chosen);

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  [[nodiscard]] QAbstractButton* Entrance() const;
};

}  // namespace brivane::qt
