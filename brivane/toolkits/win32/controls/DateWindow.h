#pragma once

#include <brivane/host/Date.h>
#include <brivane/toolkits/win32/controls/BoxWindow.h>

namespace brivane::win32 {

class Calendar;

/// A box for a date with a calendar that drops down on F4, Alt+Down or a click on its button. The focus stays
/// in the box; arrows, Page Up and Page Down move the day, Enter or a click picks it and hands it over at once,
/// Escape or a click elsewhere closes the calendar and changes nothing.
class DateWindow final : public BoxWindow {
 public:
  DateWindow(controls::TextBox& box, win32::Toolkit& toolkit);
  ~DateWindow() override;

  void OpenCalendar();
  void CloseCalendar();
  /// The open calendar, or nothing.
  [[nodiscard]] HWND CalendarShown() const;
  void Pick(host::Date date);

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  bool OnKey(WPARAM key) override;
  void PaintFrame(HDC context) override;

 private:
  /// The button lies in the frame of the box, where the edit control never draws. In pixels of the window.
  [[nodiscard]] RECT ButtonPlace() const;
  void PressButton();

  class ClickWatch;

  std::unique_ptr<Calendar> calendar_;
  std::unique_ptr<ClickWatch> clicks_;
};

}  // namespace brivane::win32
