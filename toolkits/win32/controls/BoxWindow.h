#pragma once

#include <memory>
#include <string>

#include "controls/TextBox.h"
#include "toolkits/win32/window/Bubble.h"
#include "toolkits/win32/window/NameLabel.h"

namespace brivane::win32 {

/// A text box: an edit control whose content is handed over once, when it is left after an edit or Enter is
/// pressed. Typing that is not of the box's format is refused here and never reaches the control.
///
/// Refused content stays as typed with the focus in the box, and the reason beside it. Escape puts back what
/// stood there.
class BoxWindow : public ControlWindow {
 public:
  BoxWindow(controls::TextBox& box, win32::Toolkit& toolkit);

  void Refresh(controls::Aspect aspect) override;
  void FocusByKey() override;

  /// Something was typed that was not handed over or was refused.
  [[nodiscard]] bool HasPendingEdit() const { return edited_ || refused_; }
  /// Hands a pending edit over; false where it was refused.
  bool CommitPending();
  /// The box being edited in the same top-level window, or nothing.
  [[nodiscard]] static BoxWindow* PendingWith(HWND window);
  /// The box being edited on a surface or on one that stands on it, or nothing.
  [[nodiscard]] static BoxWindow* PendingOn(const controls::Surface& surface);
  /// The reason that is shown beside the box; empty where there is none.
  [[nodiscard]] std::wstring Reason() const;
  [[nodiscard]] const Bubble* ReasonShown() const { return bubble_.get(); }
  [[nodiscard]] controls::TextBox& Box() const { return box_; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void OnCommand(int code) override;
  bool OnKey(WPARAM key) override;
  void ShowVisible() override;
  void ShowFont() override;
  void ShowBackColor() override;
  /// Makes a text the pending edit, as if typed.
  void TypeText(const std::wstring& text);
  [[nodiscard]] bool IsReadOnly() const;
  void SelectAll() const;

 private:
  [[nodiscard]] RECT RoomAbove() const;
  void PaintRoomAbove(HDC context);
  void ShowContent();
  void ShowText(const std::wstring& text);
  void OnEdited();
  bool Restore();
  void PutBack();
  void OnLeft(HWND gaining);
  void ShowReason(const std::string& reason);
  /// A keypad key that types the decimal sign here.
  bool TypeDecimalSign(WPARAM key);
  void Paste();
  void PasteColumn(const std::string& text);

  controls::TextBox& box_;
  controls::BoxValue standing_;  ///< content before the edit that is going on
  std::wstring shown_;
  std::unique_ptr<Bubble> bubble_;
  bool edited_ = false;
  bool refused_ = false;
  bool committing_ = false;
  bool taking_ = false;
  bool dropCharacter_ = false;
  // Before the edit control in its parent, but gone after it.
  std::unique_ptr<NameLabel> name_;
};

}  // namespace brivane::win32
