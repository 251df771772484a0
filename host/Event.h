#pragma once

#include <functional>
#include <utility>

namespace brivane::host {

/// An event with at most one listener: the control that raises it knows nothing of who listens.
///
///     box.Validation.Connect([this](bool& Cancel) { TxtBd_Validation(Cancel); });
///
/// Raising delivers at once, nested in the call that set it off; a failure of the listener is a
/// failure of the raising call.
template <class... Arguments> class Event {
 public:
  void Connect(std::function<void(Arguments...)> listener) { listener_ = std::move(listener); }
  void Disconnect() { listener_ = nullptr; }
  /// The listener, or an empty function: for a tool that connects itself and hands on to it.
  [[nodiscard]] const std::function<void(Arguments...)>& Listener() const { return listener_; }
  void Raise(Arguments... arguments) const {
    if (listener_) listener_(std::forward<Arguments>(arguments)...);
  }

 private:
  std::function<void(Arguments...)> listener_;
};

}  // namespace brivane::host
