#include "component/objects/Companion.h"

namespace brivane::component {

namespace {

Companions none_;
Companions* used_ = nullptr;

}  // namespace

Companions& Companions::Used() { return used_ ? *used_ : none_; }

void Companions::Use(Companions& companions) { used_ = &companions; }

}  // namespace brivane::component
