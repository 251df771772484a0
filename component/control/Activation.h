#pragma once

#include "component/idl/Windows.h"

#include <optional>
#include <vector>

#include "component/automation/ComPtr.h"
#include "component/control/FrameWindow.h"
#include "component/control/Site.h"
#include "component/control/Subject.h"

namespace brivane::component {

/// How far the control is in use: drawn by the container, standing in it with a window, or having its attention.
///
/// Every call of the container may come back here, up to closing the control; what was going on then ends.
class Activation final : private FrameListener {
 public:
  Activation(Subject& subject, Site& site) : subject_(subject), site_(site), window_(subject, *this) {}

  HRESULT InPlaceActivate();
  /// Also in place where it is not yet. `by` is the key that brought the container here, if it was one.
  HRESULT UiActivate(const MSG* by);
  void UiDeactivate();
  void Deactivate();
  void Hide();

  HRESULT Place(const RECT& place, const RECT& clip);
  /// The surface has, perhaps, another height.
  void SizeChanged();
  /// Whether a form is in use or being designed.
  void FollowUserMode();
  /// A form or a message box of the control comes up, or has gone: the container's other windows take no input then.
  void Modal(bool up);

  [[nodiscard]] bool IsInPlace() const { return state_ != State::Inactive; }
  [[nodiscard]] bool IsUiActive() const { return state_ == State::UiActive; }
  [[nodiscard]] const FrameWindow& Window() const { return window_; }

 private:
  enum class State { Inactive, InPlace, UiActive };

  void FocusCame(TabEnd end) override;
  void MouseCame() override;
  void WindowLost() override;

  HRESULT Stand();
  HRESULT TakeAttention();
  void AskForOwnSize();
  [[nodiscard]] bool IsOver(unsigned turn) const { return turn != turn_; }

  Subject& subject_;
  Site& site_;
  FrameWindow window_;
  State state_ = State::Inactive;
  unsigned turn_ = 0;  ///< counts the times that the control went out of use
  ComPtr<IOleInPlaceSite> inPlace_;
  ComPtr<IOleInPlaceFrame> frame_;
  ComPtr<IOleInPlaceUIWindow> document_;
  RECT granted_{};
  RECT clip_{};
  bool asking_ = false;
  std::vector<ComPtr<IOleInPlaceFrame>> told_;  ///< of each that is up; nothing where there was no frame
  std::optional<SIZE> refused_;                 ///< what was asked for the place that was granted
};

}  // namespace brivane::component
