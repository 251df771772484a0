#pragma once

#include <QDate>
#include <QPointer>

#include <brivane/toolkits/qt/widgets/EntryBox.h>

namespace brivane::qt {

class CalendarPopup;

/// A box for a date with a calendar that drops down on F4, Alt+Down or a click on its icon. A day picked
/// there is handed over at once; Escape closes the calendar and changes nothing. "+" and "-" move the date by a day,
/// Page Up and Page Down by a month, with Control by a year. Without a control it takes dates all the same, and who
/// wants one reads its text.
class DateBox : public EntryBox {
 public:
  explicit DateBox(QWidget* parent = nullptr);

  void OpenCalendar();
  /// The open calendar, or nothing.
  [[nodiscard]] QWidget* Calendar() const;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  void Pick(QDate date);
  void DrawIcon();

  QAction* icon_;
  QPointer<CalendarPopup> popup_;
  bool wentTo_ = false;  ///< by key or mouse, and not by code
};

}  // namespace brivane::qt
