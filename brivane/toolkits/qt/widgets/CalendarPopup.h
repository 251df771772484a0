#pragma once

#include <QDate>
#include <QFrame>
#include <functional>
#include <optional>

class QCalendarWidget;

namespace brivane::qt {

/// A calendar of a month with a button for today, in a window that drops down from a box.
///
/// The arrows move by a day and a week, Page Up and Page Down by a month, with Control by a year; Home goes to today.
/// Enter, a click and the button pick a day; Escape closes the window and picks none. It deletes itself when it closes.
class CalendarPopup final : public QFrame {
 public:
  /// Shows the month of `shown`. Where it is not known what day it is there is no button for it.
  CalendarPopup(QWidget& box, QDate shown, std::optional<QDate> today, std::function<void(QDate)> picked);

  /// Comes up below the box, or above it where there is no room.
  void DropDown();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  [[nodiscard]] bool TakeKey(int key, Qt::KeyboardModifiers with);
  void ColorDays();

  QWidget& box_;
  std::optional<QDate> today_;
  std::function<void(QDate)> picked_;
  QCalendarWidget* calendar_;
};

}  // namespace brivane::qt
