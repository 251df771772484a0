#pragma once

#include <brivane/controls/Surface.h>
#include <brivane/toolkits/web/peers/NodePeer.h>

namespace brivane::web {

/// Shows a surface: the area that its controls stand on, or, where it is veiled, what the page says
/// in its place.
class SurfacePeer final : public NodePeer {
 public:
  SurfacePeer(controls::Surface& surface, web::Toolkit& toolkit) : NodePeer(surface, toolkit), surface_(surface) {}

  void Refresh(controls::Aspect aspect) override {
    if (aspect != controls::Aspect::Veil) return NodePeer::Refresh(aspect);
    Page().Show(Node(), aspect, surface_.IsVeiled() ? 1 : 0);
  }

 private:
  controls::Surface& surface_;
};

}  // namespace brivane::web
