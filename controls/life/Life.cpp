#include "controls/life/Life.h"

namespace brivane::controls {

void Life::End(std::shared_ptr<void> remains) {
  if (std::exchange(ended_, true)) return;
  while (!open_.empty()) {
    AtEnd& last = *open_.back();
    open_.pop_back();
    // It may go while it closes.
    const std::function<void()> close = std::move(last.close_);
    close();
  }
  if (Running())
    remains_ = std::move(remains);
  else
    remains.reset();
}

Life::Call::~Call() {
  if (--life_->calls_ != 0 || !life_->remains_) return;
  std::shared_ptr<void> remains = std::move(life_->remains_);
  if (life_->bury) life_->bury(std::move(remains));
}

}  // namespace brivane::controls
