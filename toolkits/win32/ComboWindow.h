#pragma once

#include "toolkits/headless/ListBox.h"
#include "toolkits/win32/NameLabel.h"

namespace brivane::win32 {

/// A drop-down list. An entry is picked when the list closes, or by a key while it is closed.
class ComboWindow final : public ControlWindow {
 public:
  ComboWindow(headless::ListBox& list, win32::Toolkit& toolkit);
  void Refresh(headless::Aspect aspect) override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void OnCommand(int code) override;
  bool OnKey(WPARAM key) override;
  void ShowPlace() override;
  void ShowFont() override;

 private:
  [[nodiscard]] bool IsDropped() const;
  void AddEntry(const headless::ListBox::Entry& entry) const;
  void ShowIndex() const;
  void WidenDropped() const;
  void Take();

  headless::ListBox& list_;
  int closedHeight_ = 0;  ///< in pixels, where the class would have another; else 0
  bool givenUp_ = false;
  std::unique_ptr<NameLabel> name_;
};

}  // namespace brivane::win32
