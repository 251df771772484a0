#pragma once

#include <memory>
#include <string>

#include <brivane/controls/TextBox.h>
#include <brivane/controls/entry/PendingEdit.h>
#include <brivane/toolkits/win32/window/Bubble.h>
#include <brivane/toolkits/win32/window/NameLabel.h>

namespace brivane::win32 {

/// A text box: an edit control whose content is handed over once, when it is left after an edit or Enter is
/// pressed; what is being typed is a controls::PendingEdit.
class BoxWindow : public ControlWindow, private controls::EntryFace {
 public:
  BoxWindow(controls::TextBox& box, win32::Toolkit& toolkit);

  void Refresh(controls::Aspect aspect) override;
  void FocusByKey() override;
  void TakeFocus() override { ControlWindow::TakeFocus(); }

  [[nodiscard]] controls::PendingEdit& Edit() { return edit_; }
  /// Hands a pending edit over; false where it was refused.
  bool CommitPending() { return edit_.Commit(); }
  /// The box being edited in the same top-level window, or nothing.
  [[nodiscard]] static BoxWindow* PendingWith(HWND window);
  /// The reason that is shown beside the box; empty where there is none.
  [[nodiscard]] std::wstring Reason() const;
  /// The same of a note of what is typed.
  [[nodiscard]] std::wstring Note() const;
  [[nodiscard]] const Bubble* ReasonShown() const { return bubble_.get(); }
  [[nodiscard]] controls::TextBox& Box() const { return box_; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void OnCommand(int code) override;
  bool OnKey(WPARAM key) override;
  void ShowVisible() override;
  void ShowFont() override;
  void ShowBackColor() override;
  [[nodiscard]] bool ReadOnly() const override;
  /// Draws over the frame what the edit control does not: it never draws there itself.
  virtual void PaintFrame(HDC context);

 private:
  [[nodiscard]] std::string Text() const override;
  void ShowText(const std::string& text) override;
  void InsertText(const std::string& text) override;
  void SelectAll() override;
  [[nodiscard]] bool HasFocus() const override { return GetFocus() == Handle(); }
  [[nodiscard]] bool IsAtHand() const override;
  [[nodiscard]] const frame::Texts& Texts() const override { return Toolkit().Texts(); }
  void ShowReason(const std::string& reason) override;
  void ShowNote(const std::string& note) override;
  void HideReason() override { bubble_.reset(); }

  [[nodiscard]] RECT RoomAbove() const;
  void OnLeft(HWND gaining);
  /// Takes away the character that a key which was handled would type.
  void DropCharacter() const;

  controls::TextBox& box_;
  std::unique_ptr<Bubble> bubble_;
  bool isNote_ = false;  ///< what the bubble says
  controls::PendingEdit edit_{*this};
  // Before the edit control in its parent, but gone after it.
  std::unique_ptr<NameLabel> name_;
};

}  // namespace brivane::win32
