#pragma once

#include <brivane/controls/TextBox.h>
#include <brivane/toolkits/qt/peers/Peers.h>
#include <brivane/toolkits/qt/widgets/EntryBox.h>

namespace brivane::qt {

/// Shows a text box by a line edit of its own.
class BoxPeer final : public WidgetPeer {
 public:
  BoxPeer(controls::TextBox& box, qt::Toolkit& toolkit, QWidget* container);

  void Refresh(controls::Aspect aspect) override;
  void TakeFocus() override;

 private:
  [[nodiscard]] EntryBox& Entry() const { return static_cast<EntryBox&>(*Widget()); }

  controls::TextBox& box_;
};

}  // namespace brivane::qt
