#include "dossier/office/WaitingTimes.h"

#include <mutex>

namespace brivane::dossier {
namespace {

struct Held {
  std::mutex guard;
  WaitingTimes times;
};

/// Never destroyed: a thread that was left behind may be the last to ask.
Held& TimesHeld() {
  static Held& held = *new Held;
  return held;
}

}  // namespace

WaitingTimes WaitingTimes::Now() {
  const std::lock_guard lock(TimesHeld().guard);
  return TimesHeld().times;
}

void WaitingTimes::Set(const WaitingTimes& times) {
  const std::lock_guard lock(TimesHeld().guard);
  TimesHeld().times = times;
}

}  // namespace brivane::dossier
