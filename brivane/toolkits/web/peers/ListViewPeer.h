#pragma once

#include <vector>

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
  void ShowRows();

  controls::ListView& list_;
  std::vector<controls::ListView::Item> told_;  ///< rows that the page has been told
  std::size_t selected_ = 0;                    ///< the one that is selected there
};

}  // namespace brivane::web
