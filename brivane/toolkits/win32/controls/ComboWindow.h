#pragma once

#include <brivane/controls/ListBox.h>
#include <brivane/controls/entry/TypeAhead.h>
#include <brivane/toolkits/win32/window/NameLabel.h>

namespace brivane::win32 {

/// A drop-down list in which passing by is not choosing: what the keys lead to while it is closed is shown as a
/// choice under way, and handed over by Enter or when the list is left. Picking in the dropped list hands over at
/// once. Escape puts back what stood there; so does closing the dropped list without picking.
///
/// The wheel never chooses in a closed list: it scrolls what the list stands in.
class ComboWindow final : public ControlWindow {
 public:
  ComboWindow(controls::ListBox& list, win32::Toolkit& toolkit);
  void Refresh(controls::Aspect aspect) override;

  /// Another entry is shown than stands, and was not handed over yet.
  [[nodiscard]] bool IsUnderWay() const;
  void HandOver();
  /// The list with a choice under way on a surface or on one that stands on it, or nothing.
  [[nodiscard]] static ComboWindow* UnderWayOn(const controls::Surface& surface);

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void OnCommand(int code) override;
  bool OnKey(WPARAM key) override;
  void ShowPlace() override;
  void ShowFont() override;

 private:
  [[nodiscard]] bool IsDropped() const;
  void AddEntry(const controls::ListBox::Entry& entry) const;
  [[nodiscard]] int Shown() const;
  void ShowIndex();
  void WidenDropped() const;
  /// A character that leads to an entry; false where it does not.
  bool TypeCharacter(WPARAM character);

  controls::ListBox& list_;
  controls::TypeAhead typed_;
  int closedHeight_ = 0;  ///< in pixels, where the class would have another; else 0
  bool givenUp_ = false;
  std::unique_ptr<NameLabel> name_;
};

}  // namespace brivane::win32
