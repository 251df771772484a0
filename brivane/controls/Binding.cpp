#include <brivane/controls/Binding.h>
#include <brivane/controls/ToolkitBase.h>

namespace brivane::controls {

Binding::Binding(host::Surface& surface) : surface_(Surface::Of(surface)), failures_(surface_.MadeBy().Desktop()) {}

void Binding::Put(BindingState state) {
  state_ = state;
  surface_.SetVeiled(IsVoid());
}

BindingResult Binding::Bind(const std::function<void()>& bind) {
  const std::weak_ptr<const char> life = life_;
  const unsigned turn = ++turn_;
  failures_.Forget();
  try {
    bind();
  } catch (...) {
    if (!life.expired() && turn == turn_) Put(BindingState::Failed);
    throw;
  }
  if (life.expired()) return BindingResult::Failed;
  const bool last = turn == turn_;
  if (failures_.Seen()) {
    // What was let go of meanwhile made the rest fail.
    if (last || state_ != BindingState::Unbound) Put(BindingState::Failed);
  } else if (last) {
    Put(BindingState::Bound);
  }
  return state_ == BindingState::Bound ? BindingResult::Bound : BindingResult::Failed;
}

void Binding::Unbind(const std::function<void()>& letGo) {
  const std::weak_ptr<const char> life = life_;
  ++turn_;
  failures_.Forget();
  Put(BindingState::Unbound);
  if (!life.expired()) letGo();
}

}  // namespace brivane::controls
