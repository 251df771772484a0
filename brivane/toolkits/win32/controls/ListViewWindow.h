#pragma once

#include <brivane/controls/ListView.h>
#include <brivane/toolkits/win32/window/NameLabel.h>

namespace brivane::win32 {

/// The report list. A person can scroll it and select nothing: its selected row is a mark of the logic.
/// The data of each item holds which of its cells are bold, bit by bit.
class ListViewWindow final : public ControlWindow {
 public:
  ListViewWindow(controls::ListView& list, win32::Toolkit& toolkit);
  void Refresh(controls::Aspect aspect) override;
  void Rescale() override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  std::optional<LRESULT> OnNotify(NMHDR& header) override;
  void ShowFont() override;
  void ShowBackColor() override;

 private:
  void ShowColumns();
  void ShowRows();
  void ShowSelection();

  controls::ListView& list_;
  std::unique_ptr<NameLabel> name_;
};

}  // namespace brivane::win32
