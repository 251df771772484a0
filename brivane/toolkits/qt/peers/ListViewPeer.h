#pragma once

#include <brivane/controls/ListView.h>
#include <brivane/toolkits/qt/peers/Peers.h>

class QTreeWidget;

namespace brivane::qt {

/// Shows the report list. A person reads it, with the arrow keys too; which row is marked is the
/// control's to say.
class ListViewPeer final : public WidgetPeer {
 public:
  ListViewPeer(controls::ListView& list, qt::Toolkit& toolkit, QWidget* container);
  void Refresh(controls::Aspect aspect) override;
  void Rescale() override;

 private:
  [[nodiscard]] QTreeWidget& Tree() const;
  void ShowColumns();
  void ShowRows();
  void ShowSelection();

  controls::ListView& list_;
};

}  // namespace brivane::qt
