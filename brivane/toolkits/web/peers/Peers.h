#pragma once

#include <memory>

#include <brivane/toolkits/web/peers/NodePeer.h>

namespace brivane::web {

/// The peer for a control of any kind.
[[nodiscard]] std::unique_ptr<NodePeer> MakeNodePeer(controls::AnyControl& control, Toolkit& toolkit);

}  // namespace brivane::web
