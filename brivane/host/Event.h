#pragma once

#include <cassert>
#include <functional>
#include <utility>

#include <brivane/host/Subscription.h>

namespace brivane::host {

/// An event: the control that raises it knows nothing of who listens.
///
///     subscription_ = box.Validation.Connect([this](bool& Cancel) { TxtBd_Validation(Cancel); });
///
/// Raising delivers at once, nested in the call that set it off, to each listener in the order of connecting; a failure
/// of a listener is a failure of the raising call, and those after it are not told. Who connects while the event is
/// being raised is told from the next time on. An event and its subscriptions belong to one thread. What a listener may
/// call is told in \ref events.
template <class... Arguments> class Event {
 public:
  /// Called with what the event was raised with. It may end its own subscription, or the event.
  using Listener = std::function<void(Arguments...)>;

  /// The listener, which is not empty, is told as long as the subscription stands.
  [[nodiscard]] Subscription Connect(Listener listener) {
    assert(listener);
    Slot* const slot = new Slot(std::move(listener));
    listeners_.Add(*slot);
    return Subscription(*slot);
  }
  /// For who owns the event. It may be gone when this returns, where a listener ended its owner.
  void Raise(Arguments... arguments) const {
    if (listeners_.Empty()) return;
    detail::Listeners::Raising raising(listeners_);
    while (detail::Link* const link = raising.Next()) static_cast<Slot*>(link)->listener(arguments...);
  }

 private:
  struct Slot final : detail::Link {
    explicit Slot(Listener listener_) : listener(std::move(listener_)) {}
    Listener listener;
  };

  mutable detail::Listeners listeners_;
};

}  // namespace brivane::host
