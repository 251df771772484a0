#pragma once

#include <brivane/host/controls/Control.h>

namespace brivane::host {

/// A group of controls with a caption. A hidden frame hides what stands in it.
class Frame : public Captioned {};

}  // namespace brivane::host
