#pragma once

#include <brivane/controls/ListView.h>
#include <brivane/toolkits/web/peers/NodePeer.h>

namespace brivane::web {

/// Shows the report list by a `table`, which a person reads.
class ListViewPeer final : public NodePeer {
 public:
  ListViewPeer(controls::ListView& list, web::Toolkit& toolkit);
  void Refresh(controls::Aspect aspect) override;

 private:
  void ShowColumns() const;
  void ShowRows() const;

  controls::ListView& list_;
};

}  // namespace brivane::web
