#pragma once

#include <brivane/host/controls/Control.h>

namespace brivane::host {

class Label : public Captioned {};

}  // namespace brivane::host
