#pragma once

#include "toolkits/headless/TextBox.h"
#include "toolkits/qt/BoxLink.h"
#include "toolkits/qt/Peers.h"

namespace brivane::qt {

/// Shows a text box by a line edit of its own.
class BoxPeer final : public WidgetPeer {
 public:
  BoxPeer(headless::TextBox& box, qt::Toolkit& toolkit, QWidget* container);

  void Refresh(headless::Aspect aspect) override;

 private:
  [[nodiscard]] EntryBox& Entry() const { return static_cast<EntryBox&>(*Widget()); }

  headless::TextBox& box_;
  BoxLink link_;
};

}  // namespace brivane::qt
