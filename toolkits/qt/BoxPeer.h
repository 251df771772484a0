#pragma once

#include <memory>

#include "toolkits/headless/TextBox.h"
#include "toolkits/qt/EntryBox.h"
#include "toolkits/qt/Peers.h"

namespace brivane::qt {

/// Shows a text box: formats its content, and reads what is typed. Typing that is not of the format is
/// refused here and never reaches the control.
class BoxPeer final : public WidgetPeer {
 public:
  BoxPeer(headless::TextBox& box, qt::Toolkit& toolkit, QWidget* container);

  void Refresh(headless::Aspect aspect) override;

 private:
  [[nodiscard]] EntryBox& Entry() const { return static_cast<EntryBox&>(*Widget()); }
  void ShowContent();
  [[nodiscard]] EntryBox::Verdict Commit(const QString& typed);
  void PutBack();

  headless::TextBox& box_;
  headless::BoxValue standing_;  ///< content before the edit that is going on
};

}  // namespace brivane::qt
