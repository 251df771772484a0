#pragma once

#include "controls/ListBox.h"
#include "toolkits/win32/window/NameLabel.h"

namespace brivane::win32 {

/// A drop-down list. An entry is picked when the list closes, or by a key while it is closed.
class ComboWindow final : public ControlWindow {
 public:
  ComboWindow(controls::ListBox& list, win32::Toolkit& toolkit);
  void Refresh(controls::Aspect aspect) override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void OnCommand(int code) override;
  bool OnKey(WPARAM key) override;
  void ShowPlace() override;
  void ShowFont() override;

 private:
  [[nodiscard]] bool IsDropped() const;
  void AddEntry(const controls::ListBox::Entry& entry) const;
  void ShowIndex() const;
  void WidenDropped() const;
  void Take();

  controls::ListBox& list_;
  int closedHeight_ = 0;  ///< in pixels, where the class would have another; else 0
  bool givenUp_ = false;
  std::unique_ptr<NameLabel> name_;
};

}  // namespace brivane::win32
