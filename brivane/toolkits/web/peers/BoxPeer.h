#pragma once

#include <brivane/controls/TextBox.h>
#include <brivane/controls/entry/PendingEdit.h>
#include <brivane/toolkits/web/peers/NodePeer.h>

namespace brivane::web {

/// Shows a text box by an `input`. What is typed there is a controls::PendingEdit.
class BoxPeer final : public NodePeer, private controls::EntryFace {
 public:
  BoxPeer(controls::TextBox& box, web::Toolkit& toolkit);

  void Refresh(controls::Aspect aspect) override;
  void TakeFocus() override;
  bool OnKey(const Key& key) override;
  void OnTyped(const std::string& text) override;
  void OnPasted(const std::string& text) override { edit_.Paste(text); }
  void OnLeft() override { (void)edit_.Commit(); }
  [[nodiscard]] bool MindsBeingLeft() const override { return edit_.IsPending() || said_; }
  [[nodiscard]] host::Date Day() const override;
  /// A day of a calendar, counted from 30 December 1899.
  void OnPicked(int days) override;
  [[nodiscard]] bool HandOver() override;

 private:
  [[nodiscard]] std::string Text() const override { return text_; }
  void ShowText(const std::string& text) override;
  void InsertText(const std::string& text) override;
  void SelectAll() override { Page().Show(Node(), Shows::Selected); }
  [[nodiscard]] bool HasFocus() const override { return Page().Ask(Node(), Asked::HasFocus); }
  [[nodiscard]] const frame::Texts& Texts() const override { return Toolkit().Texts(); }
  [[nodiscard]] bool ReadOnly() const override { return box_.Locked(); }
  [[nodiscard]] bool IsAtHand() const override { return Page().Ask(Node(), Asked::IsAtHand); }
  void ShowReason(const std::string& reason) override { Say(Shows::Reason, reason); }
  void ShowNote(const std::string& note) override { Say(Shows::Note, note); }
  void HideReason() override {
    if (said_) Say(Shows::Nothing, {});
  }
  void Say(Shows what, const std::string& text);

  controls::TextBox& box_;
  std::string text_;   ///< what stands in the input
  bool said_ = false;  ///< something was said beside it, and not taken away
  controls::PendingEdit edit_{*this};
};

}  // namespace brivane::web
