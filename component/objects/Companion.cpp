#include "component/objects/Companion.h"

namespace brivane::component {

namespace {

Companions* used_ = nullptr;

}  // namespace

Companions& Companions::Used() {
  static Companions none;
  return used_ ? *used_ : none;
}

void Companions::Use(Companions& companions) { used_ = &companions; }

}  // namespace brivane::component
