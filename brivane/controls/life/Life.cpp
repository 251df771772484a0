#include <brivane/controls/life/Life.h>

namespace brivane::controls {

void Life::CloseAll() {
  while (!open_.empty()) {
    AtEnd& last = *open_.back();
    open_.pop_back();
    // It may go while it closes.
    const std::function<void()> close = std::move(last.close_);
    close();
  }
}

void Life::Abandon() {
  if (Running()) ++turn_;
  CloseAll();
}

void Life::End(std::shared_ptr<void> remains) {
  if (std::exchange(ended_, true)) return;
  CloseAll();
  if (Running())
    remains_ = std::move(remains);
  else
    remains.reset();
}

Life::Call::~Call() {
  const bool outermost = --life_->calls_ == 0;
  life_->running_ = outermost ? life_->turn_ : around_;
  if (!outermost || !life_->remains_) return;
  std::shared_ptr<void> remains = std::move(life_->remains_);
  if (life_->bury) life_->bury(std::move(remains));
}

}  // namespace brivane::controls
