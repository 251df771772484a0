#pragma once

#include <QAccessible>

namespace brivane::qt {

/// A text that a screen reader reads, letter by letter too, and that is written elsewhere: nothing is selected in it.
class AccessibleText : public QAccessibleTextInterface {
 public:
  [[nodiscard]] virtual QString Content() const = 0;

  void selection(int index, int* start, int* end) const override;
  [[nodiscard]] int selectionCount() const override { return 0; }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  [[nodiscard]] int cursorPosition() const override { return 0; }
  void setCursorPosition(int) override {}
  [[nodiscard]] QString text(int start, int end) const override;
  [[nodiscard]] int characterCount() const override { return static_cast<int>(Content().size()); }
  [[nodiscard]] QRect characterRect(int) const override { return {}; }
  [[nodiscard]] int offsetAtPoint(const QPoint&) const override { return -1; }
  void scrollToSubstring(int, int) override {}
  [[nodiscard]] QString attributes(int offset, int* start, int* end) const override;
};

}  // namespace brivane::qt
